// Fills the fields of the dialog in front.
#pragma once

#include "tests/drive/formstep.h"

class Walk;

/// Carries out the steps with mouse and keys and waits until the dialog shows each of them. A field
/// that shows it already is left alone, but a row of a list is always clicked.
bool fillForm(Walk &walk, const FormSteps &steps);
