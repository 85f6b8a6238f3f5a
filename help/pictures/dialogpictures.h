// Every dialog of the program, filled with the setting of the shop.
#pragma once

class Camera;
struct Shop;

void takePicturesOfDialogs(const Shop &shop, const Camera &camera);
