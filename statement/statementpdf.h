// Paints statements: one A4 page for each record, as one PDF file.
#pragma once

#include "statement/statementdocument.h"

/// A StatementGenerator. Needs a QGuiApplication. A file that cannot be written whole is not
/// written at all (only in a folder that lets files be changed but not made, it is written in
/// place). Nobody is told why.
bool generateStatementPdf(const StatementDocument &document, const QString &fileName,
                          StatementProgress &progress);
