#include "engine/csvreader.h"

#include "engine/csvfield.h"
#include "engine/runtexts.h"
#include "engine/systemcodec.h"

#include <QFile>
#include <QTextCodec>
#include <cstring>
#include <limits>
#include <new>
#include <string_view>

namespace {

const int blockSize = 64 * 1024;
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
    struct Lines {
        const char *bytes;
        int size;
    };

    explicit LineSource(QIODevice &device) : m_device(device)
    {
        // Text mode is the line end translation done here.
        m_device.setTextModeEnabled(false);
        m_device.seek(0);
        readMore();
    }

    // The first bytes of the device; to be asked before the first lines are taken.
    QByteArray beginning() const { return m_buffer.left(qMin(m_end, 4)); }

    // One line, or (`wholeBlock`) as many as are at hand; none at the end of the device. Valid
    // until the next call.
    Lines next(bool wholeBlock)
    {
        int end = lineEnd(m_begin, wholeBlock);
        while (end < 0) {
            const int searched = m_end - m_begin;
            if (!readMore())
                break;
            end = lineEnd(searched, wholeBlock);
        }
        if (end < 0)
            end = m_end;
        if (wholeBlock)
            end = endBeforeMark(end);
        char *bytes = m_buffer.data() + m_begin;
        const int size = translateLineEnds(bytes, end - m_begin);
        m_begin = end;
        return {bytes, size};
    }

private:
    // Behind the first line feed, or (`last`) the last one, that is not before `from`; -1 without
    // one.
    int lineEnd(int from, bool last) const
    {
        const std::string_view bytes(m_buffer.constData(), size_t(m_end));
        const size_t found = last ? bytes.rfind('\n') : bytes.find('\n', size_t(from));
        return found != bytes.npos && int(found) >= from ? int(found) + 1 : -1;
    }

    // Adds to the bytes that are not taken yet; false at the end of the device.
    bool readMore()
    {
        const int kept = m_end - m_begin;
        std::memmove(m_buffer.data(), m_buffer.constData() + m_begin, size_t(kept));
        // Grows with a line that does not end, so that a huge line is not copied again and again.
        const int wanted = qMax(blockSize, kept);
        if (kept > std::numeric_limits<int>::max() - wanted)
            throw std::bad_alloc(); // a line of a gigabyte
        if (m_buffer.size() < kept + wanted)
            m_buffer.resize(kept + wanted);
        const qint64 count = m_device.read(m_buffer.data() + kept, wanted);
        m_begin = 0;
        m_end = kept + int(qMax<qint64>(0, count));
        return count > 0;
    }

    // A line that begins with a mark begins a block, where the decoder drops the mark.
    int endBeforeMark(int end) const
    {
        const std::string_view block(m_buffer.constData() + m_begin, size_t(end - m_begin));
        const size_t found = block.find(lineFeedAndMark);
        return found == block.npos ? end : m_begin + int(found) + 1;
    }

    // Only a carriage return directly before a line feed goes. Returns the new size.
    static int translateLineEnds(char *bytes, int size)
    {
        char *write = static_cast<char *>(std::memchr(bytes, '\r', size_t(size)));
        if (!write)
            return size;
        const char *end = bytes + size;
        const char *read = write;
        while (read < end) {
            // `read` is at a carriage return.
            const bool endsLine = read + 1 < end && read[1] == '\n';
            const char *from = endsLine ? read + 1 : read;
            const void *next = std::memchr(read + 1, '\r', size_t(end - read - 1));
            read = next ? static_cast<const char *>(next) : end;
            std::memmove(write, from, size_t(read - from));
            write += read - from;
        }
        return int(write - bytes);
    }

    QIODevice &m_device;
    QByteArray m_buffer; // its bytes [m_begin, m_end) are not taken yet
    int m_begin = 0;
    int m_end = 0;
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
        if (!m_pending)
            text.resize(m_rowsEnd); // what was dropped or cut off last is not needed any more
        size_t position = text.size();
        text.append(reinterpret_cast<const char16_t *>(lines.utf16()), size_t(lines.size()));
        // A line of some encodings can decode to nothing and is a line all the same.
        do {
            position = addLine(position);
        } while (position < text.size() && !isFull());
    }

private:
    // Returns where the next line begins.
    size_t addLine(size_t begin)
    {
        if (!m_pending) {
            m_recordBegin = begin;
            m_commaCount = 0;
            m_hasQuote = false;
        }
        const char16_t *text = m_rows.text().data();
        const char16_t *textEnd = text + m_rows.text().size();
        const UnitScan::Line line = UnitScan::scanLine(text + begin, textEnd);
        m_commaCount += line.commas;
        m_hasQuote |= line.hasQuote;
        // The line feed belongs to the line.
        const size_t end = size_t(line.end - text) + (line.end < textEnd ? 1 : 0);
        if (m_rows.rowCount() == 0)
            addHeadingRow(end);
        else if (m_commaCount == m_headingCommaCount)
            addRecord(end);
        else
            m_pending = m_commaCount < m_headingCommaCount;
        return end;
    }

    // The heading line is trimmed as a whole; that takes no comma away.
    void addHeadingRow(size_t end)
    {
        const size_t begin = skipSpaces(m_recordBegin, end);
        m_headingCommaCount = m_commaCount;
        addRow(begin, skipSpacesBack(begin, end));
    }

    // Of a data record the last field is trimmed; the others keep their spaces.
    void addRecord(size_t end)
    {
        std::u16string &text = m_rows.text();
        const size_t trimmedEnd = skipSpacesBack(m_recordBegin, end);
        const size_t lastComma =
            m_commaCount > 0 ? text.rfind(u',', end - 1) : std::u16string::npos;
        const size_t lastBegin = lastComma == std::u16string::npos ? m_recordBegin : lastComma + 1;
        const size_t trimmedBegin = skipSpaces(lastBegin, end);
        if (trimmedBegin == lastBegin) {
            addRow(m_recordBegin, qMax(lastBegin, trimmedEnd));
            return;
        }
        const size_t length = trimmedEnd > trimmedBegin ? trimmedEnd - trimmedBegin : 0;
        std::memmove(&text[lastBegin], &text[trimmedBegin], length * sizeof(char16_t));
        addRow(m_recordBegin, lastBegin + length);
    }

    void addRow(size_t begin, size_t end)
    {
        if (m_hasQuote)
            end = removeQuotes(begin, end);
        m_rows.appendRow(begin, end);
        m_rowsEnd = end;
        m_pending = false;
    }

    // Takes the quotes of every field of a row away and closes the gaps. Returns the new end.
    size_t removeQuotes(size_t begin, size_t end)
    {
        char16_t *text = &m_rows.text()[0];
        char16_t *write = text + begin;
        const char16_t *read = write;
        const char16_t *rowEnd = text + end;
        while (true) {
            const char16_t *fieldEnd = UnitScan::find(read, rowEnd, u',');
            const QStringView field = unquoteField(QStringView(read, qsizetype(fieldEnd - read)));
            std::memmove(write, field.data(), size_t(field.size()) * sizeof(char16_t));
            write += field.size();
            if (fieldEnd == rowEnd)
                return size_t(write - text);
            *write++ = u',';
            read = fieldEnd + 1;
        }
    }

    size_t skipSpaces(size_t begin, size_t end) const
    {
        const std::u16string &text = m_rows.text();
        while (begin < end && QChar::isSpace(text[begin]))
            ++begin;
        return begin;
    }
    size_t skipSpacesBack(size_t begin, size_t end) const
    {
        const std::u16string &text = m_rows.text();
        while (end > begin && QChar::isSpace(text[end - 1]))
            --end;
        return end;
    }

    TextRows &m_rows;
    const int m_maximumRows;
    qint64 m_headingCommaCount = 0;
    qint64 m_commaCount = 0; // of the record being collected
    bool m_hasQuote = false;
    size_t m_recordBegin = 0;
    size_t m_rowsEnd = 0;   // behind the last row
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
    const QTextCodec *codec = QTextCodec::codecForUtfText(source.beginning(), systemLocaleCodec());
    const bool wholeBlocks = decodesWholeBlocks(*codec);

    TextRows rows;
    RecordParser parser(rows, maximumRows);
    LineSource::Lines lines = source.next(wholeBlocks);
    if (maximumRows == allRows)
        rows.text().reserve(size_t(device.size())); // no encoding gives more units than bytes
    parser.addLines(codec->toUnicode(lines.bytes, lines.size));
    if (maximumRows == allRows && lines.size > 0)
        rows.reserveRows(qMin(1.1 * rows.rowCount() * double(device.size()) / lines.size,
                              double(device.size()) / 4));
    while (!parser.isFull() && (lines = source.next(wholeBlocks)).size > 0)
        parser.addLines(codec->toUnicode(lines.bytes, lines.size));
    rows.finish();
    return rows;
}

bool openCsvFile(QFile &file, QString *errorText)
{
    if (!file.open(QIODevice::ReadOnly)) {
        *errorText = file.errorString();
        return false;
    }
    if (file.size() > TextRows::maximumUnits) {
        *errorText = RunTexts::fileTooLarge();
        return false;
    }
    return true;
}
