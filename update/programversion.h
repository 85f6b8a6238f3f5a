// The number of this program's version: the one that the program tells its users and compares with
// the latest one of the maker's web site.
#pragma once

#include <QString>

/// "1.00", as the build was told (project() of the top CMakeLists.txt).
QString programVersion();
