#include "tests/statement/pdftools.h"

#include <QProcess>
#include <QStandardPaths>
#include <QXmlStreamReader>

namespace {

// With the length: a text may hold a zero.
QString toText(const QByteArray &bytes)
{
    return QString::fromUtf8(bytes.constData(), qMax(0, bytes.size()));
}

QByteArray outputOf(const char *program, const QStringList &arguments)
{
    QProcess process;
    process.start(QLatin1String(program), arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("%s: %s", program, process.readAllStandardError().constData());
    return process.readAllStandardOutput();
}

} // namespace

bool PdfTools::areMissing()
{
    return QStandardPaths::findExecutable(QStringLiteral("pdftoppm")).isEmpty();
}

QImage PdfTools::page(const QString &file, int page, int dotsPerInch)
{
    const QString number = QString::number(page);
    const QByteArray png =
        outputOf("pdftoppm",
                 {QStringLiteral("-png"), QStringLiteral("-gray"), QStringLiteral("-r"),
                  QString::number(dotsPerInch), QStringLiteral("-f"), number, QStringLiteral("-l"),
                  number, file});
    return QImage::fromData(png).convertToFormat(QImage::Format_Grayscale8);
}

QList<PdfWord> PdfTools::words(const QString &file)
{
    QXmlStreamReader xml(
        outputOf("pdftotext", {QStringLiteral("-bbox"), file, QStringLiteral("-")}));
    QList<PdfWord> words;
    int page = 0;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("page"))
            ++page;
        if (xml.name() != QLatin1String("word"))
            continue;
        const QXmlStreamAttributes attributes = xml.attributes();
        const auto dots = [&attributes](const char *name) {
            return attributes.value(QLatin1String(name)).toDouble() * 96 / 72;
        };
        const QRectF box(QPointF(dots("xMin"), dots("yMin")), QPointF(dots("xMax"), dots("yMax")));
        words.append({xml.readElementText(), box, page});
    }
    return words;
}

QString PdfTools::text(const QString &file)
{
    return toText(outputOf("pdftotext", {QStringLiteral("-layout"), file, QStringLiteral("-")}));
}

QString PdfTools::info(const QString &file, const QString &key)
{
    const QStringList lines = toText(outputOf("pdfinfo", {file})).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (line.startsWith(key + QLatin1Char(':')))
            return line.mid(key.size() + 1).trimmed();
    }
    return QString();
}

QStringList PdfTools::fonts(const QString &file)
{
    return toText(outputOf("pdffonts", {file}))
        .split(QLatin1Char('\n'), Qt::SkipEmptyParts)
        .mid(2); // the heading
}
