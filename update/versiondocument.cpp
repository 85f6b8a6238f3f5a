#include "update/versiondocument.h"

#include <QXmlStreamReader>
#include <cmath>

namespace {

double versionNumber(const QString &text)
{
    // No number of a version is longer, and the question could not show it.
    constexpr int longestNumber = 100;
    if (text.size() > longestNumber)
        return 0;
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    // The words for infinity pass as numbers, too.
    return isNumber && std::isfinite(number) ? number : 0;
}

} // namespace

VersionDocument readVersionDocument(const QByteArray &bytes)
{
    QXmlStreamReader reader(bytes);
    // Names count as they are written; a prefix that nobody declared is no error.
    reader.setNamespaceProcessing(false);

    // Counted, not recursive: the depth of a document is the sender's choice.
    enum { Before, Within, After } place = Before;
    int depth = 0; // of elements within the version
    QString version;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            if (place == Within)
                ++depth;
            else if (place == Before && reader.qualifiedName() == QLatin1String("version"))
                place = Within;
            break;
        case QXmlStreamReader::EndElement:
            if (place == Within && depth-- == 0)
                place = After;
            break;
        case QXmlStreamReader::Characters:
            if (place == Within)
                version += reader.text();
            break;
        default:
            break;
        }
    }

    VersionDocument document;
    document.wellFormed = !reader.hasError();
    if (document.wellFormed) {
        document.latestVersion = version;
    } else {
        document.errorLine = reader.lineNumber();
        document.errorColumn = reader.columnNumber();
    }
    return document;
}

bool isNewerVersion(const QString &latest, const QString &current)
{
    return versionNumber(latest) > versionNumber(current);
}
