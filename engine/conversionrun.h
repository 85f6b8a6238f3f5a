// One whole conversion, from the input files to the output file.
#pragma once

#include "statement/statementdocument.h"

#include <QStringList>

struct RunReporter;

/// What the user asked for.
struct ConversionRequest {
    QStringList inputFiles; ///< paths, in the user's order
    QString outputFile;     ///< path; an existing file is overwritten
    QString settingName;    ///< a convert setting of the settings file
};

/// Converts, synchronously. Returns whether all went well; otherwise the one failure has been
/// reported through `reporter`, and what was written until then stays. When the setting asks for
/// statements, `generator` makes them beside the output file, which is complete by then; that it
/// could not is no failure. Without a generator there are none.
bool runConversion(const ConversionRequest &request, RunReporter &reporter,
                   StatementGenerator generator = nullptr);
