// How the columns of the input side are called in front of the user.
#pragma once

#include <QString>

/// The label of a zero-based column as spreadsheets have it: A to Z, AA, AB and so on. Empty for a
/// negative number.
QString columnLabel(int column);
