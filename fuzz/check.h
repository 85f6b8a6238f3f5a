// What a fuzz target does when a promise is broken: it says which one and ends as a crash, so that
// libFuzzer keeps the input. Assertions of the library are not used: they vanish in some builds.
#pragma once

#include <QString>
#include <cstdio>
#include <cstdlib>

inline void check(bool holds, const char *promise, const QString &details = QString())
{
    if (holds)
        return;
    std::fprintf(stderr, "Broken promise: %s\n%s\n", promise, details.toUtf8().constData());
    std::abort();
}
