// The main window on its way through one conversion, and the statement that the conversion makes.
#pragma once

class Camera;
struct Shop;

void takePicturesOfWindow(const Shop &shop, const Camera &camera);
