#include "engine/csvwriter.h"

#include "engine/csvfield.h"
#include "engine/systemcodec.h"
#include "rules/unitscan.h"

#include <QIODevice>
#include <QTextCodec>

namespace {

// In code units. Encoding and writing cost much less in large pieces.
const size_t blockUnits = 32768;

} // namespace

CsvWriter::CsvWriter(QIODevice &device) : m_device(device), m_codec(systemLocaleCodec())
{
    m_buffer.reserve(blockUnits + blockUnits / 4);
}

void CsvWriter::writeHeading(const QStringList &names)
{
    const QString line = names.join(QLatin1Char(',')) + QLatin1Char('\n');
    m_buffer.append(reinterpret_cast<const char16_t *>(line.utf16()), size_t(line.size()));
    m_rowBegin = m_buffer.size();
}

void CsvWriter::addField(QStringView field)
{
    if (!m_fieldEnds.empty())
        m_buffer.push_back(u',');
    m_buffer.append(reinterpret_cast<const char16_t *>(field.data()), size_t(field.size()));
    m_fieldEnds.push_back(m_buffer.size());
}

// A block always ends with a row, so that no surrogate pair is torn.
void CsvWriter::endRow()
{
    const char16_t *begin = m_buffer.data() + m_rowBegin;
    const char16_t *end = m_buffer.data() + m_buffer.size();
    if (UnitScan::find(begin, end, u'\n') != end)
        quoteRow();
    m_buffer.push_back(u'\n');
    m_fieldEnds.clear();
    if (m_buffer.size() >= blockUnits)
        writeBuffer();
    m_rowBegin = m_buffer.size();
}

// Line breaks are rare, so a row is looked at as a whole first; here at least one field has one.
void CsvWriter::quoteRow()
{
    const std::u16string row = m_buffer.substr(m_rowBegin);
    const size_t rowBegin = m_rowBegin;
    m_buffer.resize(rowBegin);
    size_t begin = 0;
    for (const size_t fieldEnd : m_fieldEnds) {
        const size_t end = fieldEnd - rowBegin;
        const QStringView field(row.data() + begin, qsizetype(end - begin));
        if (begin > 0)
            m_buffer.push_back(u',');
        const bool hasLineBreak = field.indexOf(QLatin1Char('\n')) >= 0;
        const QString text = hasLineBreak ? quoteField(field) : field.toString();
        m_buffer.append(reinterpret_cast<const char16_t *>(text.utf16()), size_t(text.size()));
        begin = end + 1;
    }
}

bool CsvWriter::flush()
{
    writeBuffer();
    return !m_failed;
}

void CsvWriter::writeBuffer()
{
    const QByteArray bytes =
        m_codec->fromUnicode(QStringView(m_buffer.data(), qsizetype(m_buffer.size())));
    m_buffer.clear();
    // A device that is full takes a part first, and only says why it takes no more when asked
    // again.
    for (qint64 written = 0; !m_failed && written < bytes.size();) {
        const qint64 size = m_device.write(bytes.constData() + written, bytes.size() - written);
        m_failed = size <= 0;
        written += size;
    }
}
