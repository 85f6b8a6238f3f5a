#include "engine/csvreader.h"

#include "engine/csvfield.h"
#include "engine/systemcodec.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextCodec>
#include <cstring>
#include <limits>
#include <string_view>

namespace {

const int blockSize = 256 * 1024;
const int allRows = std::numeric_limits<int>::max();
const std::string_view lineFeedAndMark("\n\xEF\xBB\xBF");

// Every line is decoded by itself, so that a mark or a broken character in one line does nothing to
// the next. For encodings in which a line feed is always one byte of its own, whole blocks of lines
// give the same text and are much faster.
bool decodesWholeBlocks(const QTextCodec &codec)
{
    const QByteArray name = codec.name().toUpper();
    for (const char *lineWise : {"UTF-16", "UTF-32", "ISO-2022", "UTF-7", "SCSU", "BOCU", "HZ"}) {
        if (name.startsWith(lineWise))
            return false;
    }
    return true;
}

// Gives the bytes of a device in pieces of whole lines, each line end a single line feed.
class LineSource
{
public:
    explicit LineSource(QIODevice &device) : m_device(device)
    {
        // Text mode is the line end translation done here.
        m_device.setTextModeEnabled(false);
        m_device.seek(0);
        m_buffer = m_device.read(blockSize);
    }

    const QByteArray &beginning() const { return m_buffer; }

    // One line, or (`wholeBlock`) as many as are at hand; empty at the end of the device.
    QByteArray next(bool wholeBlock)
    {
        int end = lineEnd(m_begin, wholeBlock);
        while (end < 0) {
            const int searched = m_buffer.size() - m_begin;
            if (!readMore())
                break;
            end = lineEnd(searched, wholeBlock);
        }
        if (end < 0)
            end = m_buffer.size();
        if (wholeBlock)
            end = endBeforeMark(end);
        QByteArray lines = m_buffer.mid(m_begin, end - m_begin);
        m_begin = end;
        translateLineEnds(lines);
        return lines;
    }

private:
    // Behind the first line feed, or (`last`) the last one, that is not before `from`; -1 without one.
    int lineEnd(int from, bool last) const
    {
        const int found = last ? m_buffer.lastIndexOf('\n') : m_buffer.indexOf('\n', from);
        return found >= from ? found + 1 : -1;
    }

    bool readMore()
    {
        m_buffer.remove(0, m_begin);
        m_begin = 0;
        // Grows with a line that does not end, so that a huge line is not copied again and again.
        const QByteArray more = m_device.read(qMax(blockSize, m_buffer.size()));
        m_buffer.append(more);
        return !more.isEmpty();
    }

    // A line that begins with a mark begins a block, where the decoder drops the mark.
    int endBeforeMark(int end) const
    {
        const std::string_view block(m_buffer.constData() + m_begin, size_t(end - m_begin));
        const size_t found = block.find(lineFeedAndMark);
        return found == block.npos ? end : m_begin + int(found) + 1;
    }

    static void translateLineEnds(QByteArray &lines)
    {
        if (!lines.contains('\r'))
            return;
        char *out = lines.data();
        const char *end = lines.constData() + lines.size();
        char *write = out;
        for (const char *read = out; read < end; ++read) {
            const bool endsLine = *read == '\r' && read + 1 < end && read[1] == '\n';
            if (!endsLine)
                *write++ = *read;
        }
        lines.truncate(int(write - out));
    }

    QIODevice &m_device;
    QByteArray m_buffer;
    int m_begin = 0;
};

// Collects lines into records and records into rows, in place, in the text of the rows.
class RecordParser
{
public:
    RecordParser(TextRows &rows, int maximumRows) : m_rows(rows), m_maximumRows(maximumRows) {}

    bool isFull() const { return m_rows.rowCount() >= m_maximumRows; }

    // Text of whole lines; only the last line of all may lack its line feed.
    void addLines(const QString &lines)
    {
        std::u16string &text = m_rows.text();
        if (!m_pending) // what was dropped or has been cut off is not needed any more
            text.resize(m_recordEnd);
        size_t position = text.size();
        if (!m_pending)
            m_recordBegin = position;
        text.append(reinterpret_cast<const char16_t *>(lines.utf16()), size_t(lines.size()));
        // A line of some encodings can decode to nothing and is a line all the same.
        do {
            position = addLine(position);
        } while (position < text.size() && !isFull());
    }

private:
    // Returns where the next line begins.
    size_t addLine(size_t position)
    {
        if (!m_pending) {
            m_recordBegin = position;
            m_commas.clear();
        }
        const char16_t *text = m_rows.text().data();
        const size_t size = m_rows.text().size();
        while (position < size) {
            const char16_t unit = text[position];
            // Both characters looked for are below every letter and digit.
            if (unit <= u',') {
                if (unit == u',')
                    m_commas.push_back(quint32(position));
                else if (unit == u'\n')
                    break;
            }
            ++position;
        }
        if (position < size)
            ++position; // the line feed belongs to the line

        const int fieldCount = int(m_commas.size()) + 1;
        if (m_rows.rowCount() == 0)
            addHeadingRow(position);
        else if (fieldCount == m_rows.fieldCount(0))
            addRecord(position, false);
        else
            m_pending = fieldCount < m_rows.fieldCount(0);
        return position;
    }

    // The heading line is trimmed as a whole; that takes no comma away.
    void addHeadingRow(size_t end)
    {
        const char16_t *text = m_rows.text().data();
        const char16_t *lineBegin = text + m_recordBegin;
        const char16_t *lineEnd = text + end;
        trim(lineBegin, lineEnd);
        m_recordBegin = size_t(lineBegin - text);
        addRecord(size_t(lineEnd - text), true);
    }

    // Cuts [m_recordBegin, end) into fields: trims the last one, takes the quotes away and closes the
    // gaps, so that exactly one unit stands between two fields.
    void addRecord(size_t end, bool isHeading)
    {
        char16_t *text = &m_rows.text()[0];
        m_begins.clear();
        size_t read = m_recordBegin;
        size_t write = m_recordBegin;
        for (size_t i = 0; i <= m_commas.size(); ++i) {
            const bool isLast = i == m_commas.size();
            const char16_t *fieldBegin = text + read;
            const char16_t *fieldEnd = text + (isLast ? end : size_t(m_commas[i]));
            if (isLast && !isHeading)
                trim(fieldBegin, fieldEnd);
            if (!isLast)
                read = m_commas[i] + 1;
            const QStringView field =
                unquoteField(QStringView(fieldBegin, qsizetype(fieldEnd - fieldBegin)));
            m_begins.push_back(quint32(write));
            if (reinterpret_cast<const char16_t *>(field.data()) != text + write)
                std::memmove(text + write, field.data(), size_t(field.size()) * sizeof(char16_t));
            write += size_t(field.size()) + 1;
        }
        m_begins.push_back(quint32(write));
        m_rows.appendRow(m_begins.data(), int(m_commas.size()) + 1);
        m_recordEnd = qMin(write, m_rows.text().size());
        m_pending = false;
    }

    static void trim(const char16_t *&begin, const char16_t *&end)
    {
        while (begin < end && QChar::isSpace(*begin))
            ++begin;
        while (end > begin && QChar::isSpace(end[-1]))
            --end;
    }

    TextRows &m_rows;
    const int m_maximumRows;
    std::vector<quint32> m_commas; // of the record being collected
    std::vector<quint32> m_begins;
    size_t m_recordBegin = 0;
    size_t m_recordEnd = 0; // behind the last record that became a row
    bool m_pending = false; // a record lacks fields
};

} // namespace

TextRows readCsv(QIODevice &device)
{
    return readCsv(device, allRows);
}

TextRows readCsv(QIODevice &device, int maximumRows)
{
    LineSource source(device);
    const QTextCodec *codec =
        QTextCodec::codecForUtfText(source.beginning().left(4), systemLocaleCodec());
    const bool wholeBlocks = decodesWholeBlocks(*codec);

    TextRows rows;
    RecordParser parser(rows, maximumRows);
    QByteArray lines = source.next(wholeBlocks);
    if (maximumRows == allRows)
        rows.text().reserve(size_t(device.size())); // no encoding has more units than bytes
    parser.addLines(codec->toUnicode(lines));
    if (maximumRows == allRows && !lines.isEmpty())
        rows.expectMoreRows(double(device.size()) / lines.size());
    while (!parser.isFull() && !(lines = source.next(wholeBlocks)).isEmpty())
        parser.addLines(codec->toUnicode(lines));
    return rows;
}

bool openCsvFile(QFile &file, QString *errorText)
{
    if (!file.open(QIODevice::ReadOnly)) {
        *errorText = file.errorString();
        return false;
    }
    if (file.size() > TextRows::maximumUnits) {
        *errorText = QCoreApplication::translate("ConversionRun", "The file is too large");
        return false;
    }
    return true;
}
