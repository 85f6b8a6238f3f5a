// Paints statements: one A4 page for each record, as one PDF file.
#pragma once

#include "statement/statementdocument.h"

/// A StatementGenerator. Needs a QGuiApplication. What cannot be written leaves no half file: the
/// old one, if there is one, stays as it was. Nobody is told why.
bool generateStatementPdf(const StatementDocument &document, const QString &fileName,
                          StatementProgress &progress);
