// Looks into a PDF file with poppler's programs, as somebody else's viewer would.
#pragma once

#include <QImage>
#include <QList>
#include <QRectF>
#include <QString>

/// One word of a page, its place in dots of 96 to the inch from the paper's upper left corner.
struct PdfWord {
    QString text;
    QRectF box;
    int page;
};

namespace PdfTools {

/// The programs are not installed.
bool areMissing();
/// A page (from 1) as black on white.
QImage page(const QString &file, int page, int dotsPerInch);
QList<PdfWord> words(const QString &file);
/// The text of the whole file in reading order, line by line as it is laid out.
QString text(const QString &file);
/// A value of pdfinfo's list; empty when there is none.
QString info(const QString &file, const QString &key);
/// The lines of pdffonts, one for each font.
QStringList fonts(const QString &file);

} // namespace PdfTools
