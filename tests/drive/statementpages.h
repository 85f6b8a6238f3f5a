// The pages of a statement as pictures.
#pragma once

#include <QStringList>

/// Paints every page of a PDF file with pdftoppm into pictures whose names begin with `prefix`, and
/// tells their names. Returns what went wrong; nothing when all went well.
QString paintPages(const QString &pdfFile, const QString &prefix, QStringList *pictures);
