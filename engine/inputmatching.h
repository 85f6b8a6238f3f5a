// Gives the input files to the input forms of a setting and makes one table of them. A file belongs
// to a form when its heading row equals the form's headings.
#pragma once

#include "settings/inputsetting.h"

#include <QStringList>

class Table;
struct RunReporter;

/// For a setting with exactly one input form: every file must have its headings; their rows follow
/// one another. Returns false after an error was reported.
bool loadSingleForm(const InputForm &form, const QStringList &files, Table &table,
                    RunReporter &reporter);

/// For a setting with several input forms: each takes the first file with its headings, and the
/// files are joined in the order of the forms. Returns false after an error was reported.
bool loadMultipleForms(const QList<InputForm> &forms, const QStringList &files, Table &table,
                       RunReporter &reporter);
