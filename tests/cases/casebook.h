// The golden cases of this folder, each described in one place. The test writes the settings file
// and the input files of each folder from here when it is told to rewrite them, and compares
// otherwise.
#pragma once

#include "tests/cases/casebuilder.h"

const QString caseSettingName = "택배 cart";

QList<Case> caseBook();
