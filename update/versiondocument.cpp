#include "update/versiondocument.h"

#include <cmath>

namespace {

// No number of a version is longer, and the question could not show it.
constexpr int longestNumber = 100;
constexpr int mostLineBreaks = 4;

double versionNumber(const QString &text)
{
    if (text.size() > longestNumber || text.count(QLatin1Char('\n')) > mostLineBreaks)
        return 0;
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    // The words for infinity pass as numbers, too.
    return isNumber && std::isfinite(number) ? number : 0;
}

} // namespace

VersionDocumentReader::VersionDocumentReader()
{
    // Names count as they are written; a prefix that nobody declared is no error.
    m_reader.setNamespaceProcessing(false);
    // In characters, for each place where an entity stands: thousands of places must not make much.
    m_reader.setEntityExpansionLimit(longestNumber);
}

void VersionDocumentReader::addData(const QByteArray &bytes)
{
    if (m_refused || !isCheap(bytes)) {
        m_refused = true;
        return;
    }
    m_reader.addData(bytes);
    read();
}

// The reader compares every attribute of a tag with every other one, and every element with every
// default that the document declares for attributes: some kilobytes of these take minutes. A
// document about a version has no use for either.
bool VersionDocumentReader::isCheap(const QByteArray &bytes)
{
    constexpr int mostEqualsSigns = 1000;
    constexpr qint64 largestWideDocument = 1 << 16;
    for (const char byte : bytes) {
        if (byte == '<')
            m_equalsSigns = 0;
        else if (byte == '=' && ++m_equalsSigns > mostEqualsSigns)
            return false;
        else if (byte == '\0')
            m_isWide = true;
    }
    // Where a character is more than a byte, as in UTF-16, bytes do not tell tags.
    m_size += bytes.size();
    if (m_isWide && m_size > largestWideDocument)
        return false;

    const QByteArray defaults = QByteArrayLiteral("<!ATTLIST");
    const QByteArray seam = m_lastBytes + bytes.left(defaults.size() - 1);
    if (seam.contains(defaults) || bytes.contains(defaults))
        return false;
    m_lastBytes = (m_lastBytes + bytes.right(defaults.size() - 1)).right(defaults.size() - 1);
    return true;
}

void VersionDocumentReader::read()
{
    while (!m_reader.atEnd()) {
        switch (m_reader.readNext()) {
        case QXmlStreamReader::StartElement:
            if (m_place == Within)
                ++m_depth;
            else if (m_place == Before && m_reader.qualifiedName() == QLatin1String("version"))
                m_place = Within;
            break;
        case QXmlStreamReader::EndElement:
            if (m_place == Within && m_depth-- == 0)
                m_place = After;
            break;
        case QXmlStreamReader::Characters:
            // Nothing reads what is longer than a number; it only must not pass for one.
            if (m_place == Within && m_version.size() <= longestNumber)
                m_version += m_reader.text();
            break;
        default:
            break;
        }
    }
}

VersionDocument VersionDocumentReader::finish()
{
    VersionDocument document;
    // Without a single byte the reader has met neither an error nor an end.
    document.wellFormed = !m_refused && m_reader.tokenType() == QXmlStreamReader::EndDocument;
    if (document.wellFormed) {
        document.latestVersion = m_version;
    } else {
        document.errorLine = m_reader.lineNumber();
        document.errorColumn = m_reader.columnNumber();
    }
    return document;
}

VersionDocument readVersionDocument(const QByteArray &bytes)
{
    VersionDocumentReader reader;
    reader.addData(bytes);
    return reader.finish();
}

bool isNewerVersion(const QString &latest, const QString &current)
{
    return versionNumber(latest) > versionNumber(current);
}
