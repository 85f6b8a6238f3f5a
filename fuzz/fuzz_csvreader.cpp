// Any bytes as a CSV file. The first byte chooses how many rows are asked for, the rest is the
// file. The rows are compared with those of a plain reader, written below line by line as the
// dialect is described: read a line, decode it, split it, compare the number of fields with the
// headings'.
#include "engine/csvreader.h"
#include "engine/systemcodec.h"
#include "fuzz/check.h"

#include <QBuffer>
#include <QTextCodec>
#include <clocale>

namespace {

QString unquoted(const QString &field)
{
    const QChar quote = QLatin1Char('"');
    if (field.startsWith(quote) && field.endsWith(quote))
        return field.size() > 1 ? field.mid(1, field.size() - 2) : QString();
    return field;
}

QStringList unquotedFields(const QStringList &fields)
{
    QStringList result;
    for (const QString &field : fields)
        result.append(unquoted(field));
    return result;
}

// The text mode of a file takes the CR of a line end away and no other CR. (The text mode of a
// buffer takes every CR away, so it is not used here.)
QByteArray readTextLine(QIODevice &device)
{
    QByteArray line = device.readLine();
    if (line.endsWith("\r\n"))
        line.replace(line.size() - 2, 2, "\n");
    return line;
}

QList<QStringList> plainlyRead(const QByteArray &bytes)
{
    const QTextCodec *codec = QTextCodec::codecForUtfText(bytes, systemLocaleCodec());
    QBuffer device;
    device.setData(bytes);
    device.open(QIODevice::ReadOnly);

    QList<QStringList> rows;
    const QChar comma = QLatin1Char(',');
    rows.append(unquotedFields(codec->toUnicode(readTextLine(device)).trimmed().split(comma)));
    const int fieldCount = rows.first().size();
    QStringList pending;
    while (!device.atEnd()) {
        QStringList parts = codec->toUnicode(readTextLine(device)).split(comma);
        if (!pending.isEmpty())
            pending.last().append(parts.takeFirst());
        pending.append(parts);
        if (pending.size() < fieldCount)
            continue;
        if (pending.size() == fieldCount) {
            pending.last() = pending.last().trimmed();
            rows.append(unquotedFields(pending));
        }
        pending.clear();
    }
    return rows;
}

void compareRows(const TextRows &rows, const QList<QStringList> &expected, int maximumRows)
{
    check(rows.rowCount() >= 1, "the heading row is always there");
    check(rows.rowCount() == qMin(expected.size(), qMax(1, maximumRows)), "the number of rows",
          QStringLiteral("got %1, expected %2 of %3")
              .arg(rows.rowCount())
              .arg(expected.size())
              .arg(maximumRows));
    for (int row = 0; row < rows.rowCount(); ++row) {
        check(rows.fieldCount(row) == rows.fieldCount(0), "a row is as long as the heading row");
        check(rows.row(row) == expected.at(row), "the fields of a row",
              QStringLiteral("row %1\ngot      <%2>\nexpected <%3>")
                  .arg(row)
                  .arg(rows.row(row).join(QStringLiteral("|")),
                       expected.at(row).join(QStringLiteral("|"))));
        for (int column = -1; column <= rows.fieldCount(row); ++column) {
            const bool isInside = column >= 0 && column < rows.fieldCount(row);
            check(isInside || rows.field(row, column).isEmpty(), "no field beside a row");
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    std::setlocale(LC_ALL, ""); // so that LC_ALL chooses the code page of a file without a mark
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    if (size == 0)
        return 0;
    QByteArray bytes(reinterpret_cast<const char *>(data + 1), int(size - 1));
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);

    const QList<QStringList> expected = plainlyRead(bytes);
    const int maximumRows = data[0] % 8;
    compareRows(readCsv(device), expected, expected.size());
    compareRows(readCsv(device, maximumRows), expected, maximumRows);
    return 0;
}
