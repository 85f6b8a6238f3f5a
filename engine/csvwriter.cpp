#include "engine/csvwriter.h"

#include "engine/csvfield.h"
#include "engine/systemcodec.h"

#include <QIODevice>
#include <QTextCodec>

namespace {

// In code units. Encoding and writing cost much less in large pieces.
const size_t blockUnits = 128 * 1024;

} // namespace

CsvWriter::CsvWriter(QIODevice &device) : m_device(device), m_codec(systemLocaleCodec())
{
    m_buffer.reserve(blockUnits + blockUnits / 4);
}

void CsvWriter::writeHeading(const QStringList &names)
{
    append(names.join(QLatin1Char(',')));
    endRow();
}

void CsvWriter::addField(QStringView field)
{
    if (!m_rowIsEmpty)
        m_buffer.push_back(u',');
    m_rowIsEmpty = false;
    if (field.indexOf(QLatin1Char('\n')) < 0)
        append(field);
    else
        append(quoteField(field));
}

// A block always ends with a row, so that no surrogate pair is torn.
void CsvWriter::endRow()
{
    m_buffer.push_back(u'\n');
    m_rowIsEmpty = true;
    if (m_buffer.size() >= blockUnits)
        writeBuffer();
}

bool CsvWriter::flush()
{
    writeBuffer();
    return !m_failed;
}

void CsvWriter::append(QStringView text)
{
    m_buffer.append(reinterpret_cast<const char16_t *>(text.data()), size_t(text.size()));
}

void CsvWriter::writeBuffer()
{
    const QByteArray bytes =
        m_codec->fromUnicode(QStringView(m_buffer.data(), qsizetype(m_buffer.size())));
    m_buffer.clear();
    if (!m_failed && m_device.write(bytes) != bytes.size())
        m_failed = true;
}
