// Paints statements: one A4 page for each record, as one PDF file.
#pragma once

#include "statement/statementdocument.h"

/// A StatementGenerator. Needs a QGuiApplication. A file that cannot be written whole is not
/// written at all. Nobody is told why.
bool generateStatementPdf(const StatementDocument &document, const QString &fileName,
                          StatementProgress &progress);
