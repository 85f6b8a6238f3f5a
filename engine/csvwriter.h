// The writer of the program's CSV dialect. A field is quoted only when it holds a line break; one
// with a comma or a quote is written as it is. The encoding is that of the system's locale, without
// a byte-order mark.
#pragma once

#include <QStringList>
#include <QStringView>
#include <string>
#include <vector>

class QIODevice;
class QTextCodec;

class CsvWriter
{
public:
    /// `device` is open for writing, in text mode: every line feed becomes the platform's line end.
    explicit CsvWriter(QIODevice &device);
    Q_DISABLE_COPY(CsvWriter)

    /// The headings are never quoted.
    void writeHeading(const QStringList &names);
    void addField(QStringView field);
    void endRow();

    /// Writes what is still held back. Returns whether everything has reached the device.
    bool flush();

private:
    void quoteRow();
    void writeBuffer();

    QIODevice &m_device;
    const QTextCodec *m_codec;
    std::u16string m_buffer;
    size_t m_rowBegin = 0;           // in the buffer, as are the field ends
    std::vector<size_t> m_fieldEnds; // of the row being written
    bool m_failed = false;
};
