// The reader's rules as plain loops over string lists: line by line, in the order in which the
// rules are told. Slow and easy to check by eye; the reader of the program must give the same rows.
#pragma once

#include "engine/systemcodec.h"

#include <QFile>
#include <QStringList>
#include <QTextCodec>

namespace CsvOracle {

inline QString unquoted(const QString &text)
{
    if (text.startsWith('"') && text.endsWith('"'))
        return text.mid(1, text.size() - 2);
    return text;
}

inline QStringList unquoted(QStringList fields)
{
    for (QString &field : fields)
        field = unquoted(field);
    return fields;
}

/// Lines with their line feeds; the first one is the heading line, even of an empty file.
inline QList<QStringList> rows(const QList<QByteArray> &lines, const QTextCodec &codec)
{
    const QString headingLine = codec.toUnicode(lines.value(0)).trimmed();
    const QStringList headings = unquoted(headingLine.split(','));
    QList<QStringList> rows = {headings};
    QStringList pending;
    for (int i = 1; i < lines.size(); ++i) {
        QStringList parts = codec.toUnicode(lines.at(i)).split(',');
        if (pending.isEmpty()) {
            pending = parts;
        } else {
            pending.last().append(parts.takeFirst());
            pending.append(parts);
        }
        if (pending.size() == headings.size()) {
            pending.last() = pending.last().trimmed();
            rows.append(unquoted(pending));
            pending.clear();
        } else if (pending.size() > headings.size()) {
            pending.clear();
        }
    }
    return rows;
}

/// Reads a file in the toolkit's text mode. The toolkit's text mode drops single carriage returns
/// here and there (depending on where its buffers end), so this is for files without such.
inline QList<QStringList> rowsOfFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    const QByteArray all = file.readAll();
    const QTextCodec *codec = QTextCodec::codecForUtfText(all, systemLocaleCodec());
    file.seek(0);
    QList<QByteArray> lines;
    while (!file.atEnd())
        lines.append(file.readLine());
    return rows(lines, *codec);
}

/// Cuts the bytes into lines here; a carriage return goes only with the line feed behind it.
inline QList<QStringList> rowsOfBytes(const QByteArray &bytes)
{
    const QTextCodec *codec = QTextCodec::codecForUtfText(bytes, systemLocaleCodec());
    QList<QByteArray> lines;
    for (int begin = 0; begin < bytes.size();) {
        int end = bytes.indexOf('\n', begin) + 1;
        if (end == 0)
            end = bytes.size();
        QByteArray line = bytes.mid(begin, end - begin);
        if (line.endsWith("\r\n"))
            line.replace(line.size() - 2, 2, "\n");
        lines.append(line);
        begin = end;
    }
    return rows(lines, *codec);
}

} // namespace CsvOracle
