// The reader of the CSV dialect: every rule by name, then random bytes against the plain loops of
// the oracle, in several code pages and across the borders of the reader's blocks.
#include "engine/csvfield.h"
#include "engine/csvreader.h"
#include "tests/engine/csvoracle.h"
#include "tests/engine/tabletext.h"
#include "tests/engine/testlocales.h"
#include "tests/settings/workingfolder.h"

#include <QBuffer>
#include <QRandomGenerator>
#include <QtTest>

namespace {

const int readerBlockBytes = 256 * 1024;
const int anyNumberOfRows = std::numeric_limits<int>::max();

TextRows readBytes(const QByteArray &bytes, int maximumRows = anyNumberOfRows)
{
    QBuffer device;
    device.setData(bytes);
    device.open(QIODevice::ReadOnly | QIODevice::Text);
    return maximumRows == anyNumberOfRows ? readCsv(device) : readCsv(device, maximumRows);
}

// What has broken readers before: separators, quotes, line ends, marks at any place, pieces of
// characters of several code pages, trail bytes that look like separators, escapes.
const QList<QByteArray> nastyPieces = {
    ",",
    ",",
    ",",
    ",,",
    "\"",
    "\"",
    "\"\"",
    "\n",
    "\n",
    "\n",
    "\r\n",
    "\r\n",
    "\n\n",
    " ",
    "\t",
    "\v",
    "\f",
    "a",
    "7",
    "|",
    "\\",
    "@",
    QByteArray("\0", 1),
    QByteArray("\0\n", 2),
    QByteArray("\n\0", 2),
    QByteArray(",\0", 2),
    QByteArray("\0,", 2),
    "\xEF\xBB\xBF",
    "\n\xEF\xBB\xBF",
    "\r\n\xEF\xBB\xBF\xEF\xBB\xBF",
    "\xEF",
    "\xBB\xBF",
    "\xFF\xFE",
    "\xFE\xFF",
    "\n\xFF\xFE",
    "\n\xFE\xFF",
    QByteArray("\xFF\xFE\0\0", 4),
    QByteArray("\0\0\xFE\xFF", 4),
    "\x81",
    "\x81\x5C",
    "\x81\n",
    "\x81,",
    "\x81\"",
    "\x83\x5C",
    "\x82\xA0",
    "\x40",
    "\xC6\x52",
    "\xB0\xA1",
    "\xA1\xA1",
    "\xA1",
    "\xFE",
    "\x80",
    "\xA0",
    "\x8F",
    "\x8E\xB1",
    "\x1B$B",
    "\x1B(B",
    "\x0E",
    "\x0F",
    "\x1A",
    "\xE3\x80\x80",
    "\xC2\xA0",
    "\xC2\x85",
    "\xE2\x80\xA8",
    "\xF0\x9F\x98\x80",
    "\xED\xA0\x80",
    "\xF4\x90\x80\x80",
    "\xC0\xAF",
};

const QList<QByteArray> beginnings = {
    "",
    "",
    "a\n",
    "a,b\n",
    "a,b,c\r\n",
    "\xEF\xBB\xBF"
    "a,b\n",
    "\xFF\xFE",
    "\xFE\xFF",
    QByteArray("\xFF\xFE"
               "a\0,\0b\0\n\0",
               10),
    QByteArray("\xFE\xFF\0a\0,\0b\0\n", 10),
    QByteArray("\xFF\xFE\0\0", 4),
    QByteArray("\0\0\xFE\xFF", 4),
};

template <typename Type> const Type &anyOf(const QList<Type> &list, QRandomGenerator &random)
{
    return list.at(random.bounded(list.size()));
}

QByteArray nastyBytes(int maximumPieces, bool withLoneReturns, QRandomGenerator &random)
{
    QByteArray bytes;
    const int pieces = random.bounded(maximumPieces);
    for (int i = 0; i < pieces; ++i) {
        if (withLoneReturns && random.bounded(12) == 0)
            bytes += '\r';
        else
            bytes += anyOf(nastyPieces, random);
    }
    return bytes;
}

// A device that breaks off, and one that gives its bytes in small pieces.
class PoorDevice : public QIODevice
{
public:
    PoorDevice(const QByteArray &bytes, int pieceSize, int failsAt = -1)
        : m_bytes(bytes), m_pieceSize(pieceSize), m_failsAt(failsAt)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    qint64 size() const override { return m_bytes.size(); }

protected:
    qint64 readData(char *data, qint64 maximum) override
    {
        const int begin = int(pos());
        if (m_failsAt >= 0 && begin >= m_failsAt)
            return -1;
        const int end = m_failsAt >= 0 ? m_failsAt : m_bytes.size();
        const int count = int(qMin(qMin(maximum, qint64(m_pieceSize)), qint64(end - begin)));
        memcpy(data, m_bytes.constData() + begin, size_t(count));
        return count;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    const QByteArray m_bytes;
    const int m_pieceSize;
    const int m_failsAt;
};

void addCodePages(const TestLocales &locales)
{
    QTest::addColumn<QString>("locale");
    QTest::newRow("C") << "C";
    for (const QString &name : locales.names())
        QTest::newRow(qPrintable(name)) << name;
}

} // namespace

class TestCsvReader : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void unquotesField_data();
    void unquotesField();
    void quotesField_data();
    void quotesField();

    void readsRows_data();
    void readsRows();
    void choosesTheEncoding_data();
    void choosesTheEncoding();
    void sixteenBitsAreCutAtEachLineFeedByte_data();
    void sixteenBitsAreCutAtEachLineFeedByte();
    void readsTheFirstRowsOnly();
    void readsFromTheStart();

    void randomBytesAsTheOracle_data();
    void randomBytesAsTheOracle();
    void randomFilesAsTheOracle_data();
    void randomFilesAsTheOracle();
    void randomBytesAtBlockBorders_data();
    void randomBytesAtBlockBorders();
    void randomBytesFromPoorDevices();
    void everyLineAtTheBlockBorder_data();
    void everyLineAtTheBlockBorder();

    void tenThousandColumns();
    void fieldOfFiftyMegabytes();
    void headingOfFiftyMegabytes();
    void aMillionBlankLines();
    void aMillionMarks();
    void deviceThatBreaksOff();

    void opensFile();
    void tellsWhyAFileCannotBeOpened_data();
    void tellsWhyAFileCannotBeOpened();

private:
    const TestLocales m_locales;
};

void TestCsvReader::initTestCase()
{
    startInTheCLocale(m_locales);
}

// --- one field --------------------------------------------------------------------------------

void TestCsvReader::unquotesField_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("unquoted");

    QTest::newRow("plain text stays") << "abc"
                                      << "abc";
    QTest::newRow("empty text stays") << ""
                                      << "";
    QTest::newRow("quotes go") << "\"abc\""
                               << "abc";
    QTest::newRow("quotes around nothing go") << "\"\""
                                              << "";
    QTest::newRow("a single quote begins and ends the text") << "\""
                                                             << "";
    QTest::newRow("three quotes keep the middle one") << "\"\"\""
                                                      << "\"";
    QTest::newRow("doubled quotes inside stay doubled") << "\"a\"\"b\""
                                                        << "a\"\"b";
    QTest::newRow("quote at the start only stays") << "\"abc"
                                                   << "\"abc";
    QTest::newRow("quote at the end only stays") << "abc\""
                                                 << "abc\"";
    QTest::newRow("blank before the quote keeps the quotes") << " \"abc\""
                                                             << " \"abc\"";
    QTest::newRow("blank behind the quote keeps the quotes") << "\"abc\" "
                                                             << "\"abc\" ";
    QTest::newRow("blanks inside the quotes stay") << "\" a \""
                                                   << " a ";
    QTest::newRow("other quotation marks stay") << "'abc'"
                                                << "'abc'";
    QTest::newRow("full-width quotes stay") << "＂abc＂"
                                            << "＂abc＂";
    QTest::newRow("line break inside") << "\"a\nb\""
                                       << "a\nb";
}

void TestCsvReader::unquotesField()
{
    QFETCH(QString, text);
    QTEST(unquoteField(text).toString(), "unquoted");
    QCOMPARE(CsvOracle::unquoted(text), unquoteField(text).toString());
}

void TestCsvReader::quotesField_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("quoted");

    QTest::newRow("plain text") << "abc"
                                << "\"abc\"";
    QTest::newRow("empty text") << ""
                                << "\"\"";
    QTest::newRow("quoted text stays") << "\"abc\""
                                       << "\"abc\"";
    QTest::newRow("a single quote begins and ends the text") << "\""
                                                             << "\"";
    QTest::newRow("quote at the start only") << "\"abc"
                                             << "\"\"abc\"";
    QTest::newRow("quote at the end only") << "abc\""
                                           << "\"abc\"\"";
    QTest::newRow("quotes inside are not doubled") << "a\"b"
                                                   << "\"a\"b\"";
    QTest::newRow("line break") << "a\nb"
                                << "\"a\nb\"";
}

void TestCsvReader::quotesField()
{
    QFETCH(QString, text);
    QTEST(quoteField(text), "quoted");
}

// --- whole files ------------------------------------------------------------------------------

void TestCsvReader::readsRows_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("lines");

    const auto row = [](const char *name, const QByteArray &bytes, const QStringList &lines) {
        QTest::newRow(name) << bytes << lines;
    };
    row("empty file has one empty heading", "", {"||"});
    row("one line feed has one empty heading", "\n", {"||"});
    row("heading row without a line end", "a,b", {"|a|b|"});
    row("heading row only", "a,b\n", {"|a|b|"});
    row("heading and data rows in file order", "a,b\n1,2\n3,4\n", {"|a|b|", "|1|2|", "|3|4|"});
    row("last line without a line end", "a,b\n1,2\n3,4", {"|a|b|", "|1|2|", "|3|4|"});
    row("CR LF", "a,b\r\n1,2\r\n", {"|a|b|", "|1|2|"});
    row("CR LF without the last one", "a,b\r\n1,2", {"|a|b|", "|1|2|"});
    row("mixed line ends", "a,b\r\n1,2\n3,4\r\n", {"|a|b|", "|1|2|", "|3|4|"});
    row("a carriage return alone ends no line", "a,b\n1,2\r3,4\r5,6\n7,8\n", {"|a|b|", "|7|8|"});
    row("a carriage return alone stays in a field", "a,b\n1\r2,3\n", {"|a|b|", "|1\\r2|3|"});
    row("carriage returns at the end of a line are trimmed", "a,b\r\r\n1,2\r\r\n",
        {"|a|b|", "|1|2|"});
    row("empty fields are kept", "a,b,c\n,,\n1,,\n", {"|a|b|c|", "||||", "|1|||"});

    row("heading line is trimmed as a whole", " \ta , b \t \n1,2\n", {"|a | b|", "|1|2|"});
    row("trimming the headings takes no comma away", ",a, \n1,2,3\n", {"||a||", "|1|2|3|"});
    row("headings lose their quotes", "\"a\",\"b\"\n1,2\n", {"|a|b|", "|1|2|"});
    row("heading with a quoted comma is two headings", "\"a,b\",c\n1,2,3\n",
        {"|\"a|b\"|c|", "|1|2|3|"});
    row("headings twice and without a name", "a,a,,\n1,2,3,4\n", {"|a|a|||", "|1|2|3|4|"});
    row("heading that is one quote alone", "\",b\n1,2\n", {"||b|", "|1|2|"});
    row("blank first line is the heading row", "\na,b\n", {"||"});
    row("blank first line: one column", "\na\n\nb\n", {"||", "|a|", "||", "|b|"});

    row("quotes around fields go", "a,b\n\"1\",\"2\"\n", {"|a|b|", "|1|2|"});
    row("doubled quotes stay doubled", "a,b\n\"x\"\"y\",2\n", {"|a|b|", "|x\"\"y|2|"});
    row("a quote alone is an empty value", "a,b\n\",\"\n", {"|a|b|", "|||"});
    row("blank before a quote keeps the quotes", "a,b\n \"1\",2\n", {"|a|b|", "| \"1\"|2|"});
    row("last field is trimmed before it loses its quotes", "a,b\n1,  \"2\"  \n",
        {"|a|b|", "|1|2|"});
    row("only the last field is trimmed", "a,b,c\n 1 , 2 , 3 \n", {"|a|b|c|", "| 1 | 2 |3|"});
    row("the only field is the last field", "a\n  x  \n", {"|a|", "|x|"});
    row("full-width blanks and no-break spaces are trimmed", "a,b\n1,　2 　\n", {"|a|b|", "|1|2|"});
    row("blanks inside the quotes of the last field stay", "a,b\n1,\" 2 \"\n",
        {"|a|b|", "|1| 2 |"});

    row("quoted comma splits and the record is dropped", "a,b,c\n1,\"2,x\",3\n4,5,6\n",
        {"|a|b|c|", "|4|5|6|"});
    row("more fields than headings", "a,b\n1,2,3\n4,5\n", {"|a|b|", "|4|5|"});
    row("comma behind the last field is one field more", "a,b\n1,2,\n4,5\n", {"|a|b|", "|4|5|"});
    row("line break inside quotes", "a,b,c\n1,\"x\ny\",3\n", {"|a|b|c|", "|1|x\\ny|3|"});
    row("CR LF inside quotes becomes a line feed", "a,b,c\r\n1,\"x\r\ny\",3\r\n",
        {"|a|b|c|", "|1|x\\ny|3|"});
    row("two line breaks inside quotes", "a,b,c\n1,\"x\n\ny\",3\n", {"|a|b|c|", "|1|x\\n\\ny|3|"});
    row("line break in the last field ends the record", "a,b\n1,\"x\ny\"\n2,z\n",
        {"|a|b|", "|1|\"x|", "|y\"\\n2|z|"});
    row("short record takes in the next line", "a,b,c\n1,2\n3,4,5\n6,7,8\n",
        {"|a|b|c|", "|6|7|8|"});
    row("short records until the fields suffice", "a,b,c\n1\n2\n3,4,5\n",
        {"|a|b|c|", "|1\\n2\\n3|4|5|"});
    row("short record at the end is dropped", "a,b\n1,2\n3\n", {"|a|b|", "|1|2|"});
    row("short record at the end without a line end is dropped", "a,b\n1,2\n3", {"|a|b|", "|1|2|"});
    row("blank line goes into the next record", "a,b\n1,2\n\n3,4\n",
        {"|a|b|", "|1|2|", "|\\n3|4|"});
    row("blank lines go into the next record", "a,b\n\n\n3,4\n", {"|a|b|", "|\\n\\n3|4|"});
    row("blank line keeps the quotes of the next record", "a,b\n\n\"3\",\"4\"\n",
        {"|a|b|", "|\\n\"3\"|4|"});
    row("blank line at the end is dropped", "a,b\n1,2\n\n", {"|a|b|", "|1|2|"});
    row("blank line under one heading is a record", "a\n1\n\n2\n", {"|a|", "|1|", "||", "|2|"});
    row("line of blanks under two headings", "a,b\n  \n1,2\n", {"|a|b|", "|  \\n1|2|"});
    row("record that becomes too long is dropped whole", "a,b\n1\n2,3,4\n5,6\n",
        {"|a|b|", "|5|6|"});

    row("NUL", QByteArray("a,b\n1\0x,\0\n", 10), {"|a|b|", "|1\\x0;x|\\x0;|"});
    row("only NULs", QByteArray(3, '\0'), {"|\\x0;\\x0;\\x0;|"});
    row("semicolons and tabs separate nothing", "a;b\tc\n1;2\t3\n", {"|a;b\tc|", "|1;2\t3|"});
    row("full-width comma separates nothing", "a，b\n1，2\n", {"|a，b|", "|1，2|"});
    row("other Unicode line ends end nothing", "a,b\n1\u2028x,\u0085 2\n",
        {"|a|b|", "|1\u2028x|2|"});
    row("broken UTF-8", "a,b\n\xE3\x81,\xFF\n", {"|a|b|", "|\\xfffd;\\xfffd;|\\xfffd;|"});
    row("broken character does not eat the line end", "a,b\n1,\xE3\n\x81,4\n",
        {"|a|b|", "|1|\\xfffd;|", "|\\xfffd;|4|"});
    row("emoji", "a,b\n😀,2\n", {"|a|b|", "|\\xd83d;\\xde00;|2|"});
}

void TestCsvReader::readsRows()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, lines);
    // The tab is the one character of these tables that is easier to read escaped.
    lines.replaceInStrings("\t", "\\x9;");
    QCOMPARE(tableLines(readBytes(bytes)), lines);
    QCOMPARE(tableLines(CsvOracle::rowsOfBytes(bytes)), lines);
}

void TestCsvReader::choosesTheEncoding_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("lines");

    QTest::newRow("UTF-8 mark is no part of the heading")
        << QByteArray("\xEF\xBB\xBF주문,b\n1,é\n") << QStringList{"|주문|b|", "|1|é|"};
    QTest::newRow("no mark: code page of the system, here UTF-8")
        << QByteArray("주문,b\n1,é\n") << QStringList{"|주문|b|", "|1|é|"};
    QTest::newRow("UTF-8 mark alone") << QByteArray("\xEF\xBB\xBF") << QStringList{"||"};
    QTest::newRow("part of a UTF-8 mark")
        << QByteArray("\xEF\xBB") << QStringList{"|\\xfffd;\\xfffd;|"};
    QTest::newRow("second mark stays") << QByteArray("\xEF\xBB\xBF\xEF\xBB\xBFx,b\n1,2\n")
                                       << QStringList{"|\\xfeff;x|b|", "|1|2|"};
    QTest::newRow("mark at the start of a later line goes, as each line is decoded by itself")
        << QByteArray("a,b\n\xEF\xBB\xBF"
                      "1,2\n3,4\n\xEF\xBB\xBF\xEF\xBB\xBF"
                      "5,6\n")
        << QStringList{"|a|b|", "|1|2|", "|3|4|", "|\\xfeff;5|6|"};
    QTest::newRow("mark inside a line stays")
        << QByteArray("a,b\n1,x\xEF\xBB\xBFy\n") << QStringList{"|a|b|", "|1|x\\xfeff;y|"};
    QTest::newRow("mark behind a quoted line break goes") << QByteArray("a,b\n\"1\n\xEF\xBB\xBF"
                                                                        "x\",2\n")
                                                          << QStringList{"|a|b|", "|1\\nx|2|"};
    QTest::newRow("blank before the mark: no mark at the start of the file")
        << QByteArray(" \xEF\xBB\xBF"
                      "a\nx\n")
        << QStringList{"|\\xfeff;a|", "|x|"};
}

void TestCsvReader::choosesTheEncoding()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, lines);
    QCOMPARE(tableLines(readBytes(bytes)), lines);
    QCOMPARE(tableLines(CsvOracle::rowsOfBytes(bytes)), lines);
}

void TestCsvReader::sixteenBitsAreCutAtEachLineFeedByte_data()
{
    QTest::addColumn<QByteArray>("codec");

    for (const char *codec : {"UTF-16LE", "UTF-16BE", "UTF-32LE", "UTF-32BE"})
        QTest::newRow(codec) << QByteArray(codec);
}

// The lines are cut at the byte 0x0A, before decoding. With the high byte first this leaves whole
// characters; with the low byte first the zeros of a line feed begin the next line and move all
// that follows. Odd, and the same in every version.
void TestCsvReader::sixteenBitsAreCutAtEachLineFeedByte()
{
    QFETCH(QByteArray, codec);
    QByteArray bytes;
    for (const QChar unit : QStringLiteral("\uFEFF주문,b\n1,2\n3,4\n")) {
        const ushort value = unit.unicode();
        const QByteArray zeros(codec.startsWith("UTF-32") ? 2 : 0, '\0');
        if (codec.endsWith("BE"))
            bytes += zeros + char(value >> 8) + char(value & 0xFF);
        else
            bytes += QByteArray(1, char(value & 0xFF)) + char(value >> 8) + zeros;
    }
    const QStringList lines = tableLines(readBytes(bytes));
    QCOMPARE(lines, tableLines(CsvOracle::rowsOfBytes(bytes)));
    QCOMPARE(lines.first(), QString("|주문|b|"));
    if (codec.endsWith("BE"))
        QCOMPARE(lines, (QStringList{"|주문|b|", "|1|2|", "|3|4|"}));
}

void TestCsvReader::readsTheFirstRowsOnly()
{
    const QByteArray bytes = "a,b\n1,2\nshort\n3,4\n5,6\n";
    const QStringList all = {"|a|b|", "|1|2|", "|short\\n3|4|", "|5|6|"};
    for (int count = 1; count <= 6; ++count)
        QCOMPARE(tableLines(readBytes(bytes, count)), all.mid(0, count));
    QCOMPARE(tableLines(readBytes(QByteArray(), 1)), QStringList("||"));
}

void TestCsvReader::readsFromTheStart()
{
    QBuffer device;
    device.setData("a,b\n1,2\n");
    device.open(QIODevice::ReadOnly | QIODevice::Text);
    device.read(6);
    QCOMPARE(tableLines(readCsv(device, 1)), QStringList("|a|b|"));
    QCOMPARE(tableLines(readCsv(device)), (QStringList{"|a|b|", "|1|2|"}));
    QCOMPARE(tableLines(readCsv(device)), (QStringList{"|a|b|", "|1|2|"}));
}

// --- random bytes -----------------------------------------------------------------------------

void TestCsvReader::randomBytesAsTheOracle_data()
{
    addCodePages(m_locales);
}

void TestCsvReader::randomBytesAsTheOracle()
{
    QFETCH(QString, locale);
    const CodePageScope codePage(m_locales, locale);
    QVERIFY(codePage.isSet());
    QRandomGenerator random(1);
    for (int i = 0; i < 4000; ++i) {
        const QByteArray bytes = anyOf(beginnings, random) + nastyBytes(40, true, random);
        const QStringList expected = tableLines(CsvOracle::rowsOfBytes(bytes));
        const QStringList lines = tableLines(readBytes(bytes));
        if (lines != expected)
            qWarning() << "bytes:" << bytes.toHex(' ');
        QCOMPARE(lines, expected);
        const int rows = 1 + random.bounded(4);
        QCOMPARE(tableLines(readBytes(bytes, rows)), expected.mid(0, rows));
    }
}

void TestCsvReader::randomFilesAsTheOracle_data()
{
    addCodePages(m_locales);
}

void TestCsvReader::randomFilesAsTheOracle()
{
    QFETCH(QString, locale);
    const CodePageScope codePage(m_locales, locale);
    QVERIFY(codePage.isSet());
    const WorkingFolder folder;
    QRandomGenerator random(2);
    for (int i = 0; i < 1000; ++i) {
        const QByteArray bytes = anyOf(beginnings, random) + nastyBytes(60, false, random);
        const QString path = folder.write("random.csv", bytes);
        QFile file(path);
        QString reason;
        QVERIFY2(openCsvFile(file, &reason), qPrintable(reason));
        const QStringList expected = tableLines(CsvOracle::rowsOfFile(path));
        const QStringList lines = tableLines(readCsv(file));
        if (lines != expected)
            qWarning() << "bytes:" << bytes.toHex(' ');
        QCOMPARE(lines, expected);
    }
}

void TestCsvReader::randomBytesAtBlockBorders_data()
{
    addCodePages(m_locales);
}

void TestCsvReader::randomBytesAtBlockBorders()
{
    QFETCH(QString, locale);
    const CodePageScope codePage(m_locales, locale);
    QVERIFY(codePage.isSet());
    QRandomGenerator random(3);
    for (int i = 0; i < 60; ++i) {
        QByteArray bytes = random.bounded(3) == 0 ? "\xEF\xBB\xBF" : "";
        bytes += random.bounded(2) == 0 ? "a,b\n" : "a,b,c\r\n";
        // Long lines, so that the oracle is quick, and nasty bytes around each border.
        for (int block = 1; block <= 2; ++block) {
            const int border = block * readerBlockBytes - random.bounded(60);
            while (bytes.size() < border) {
                const int length = qMin(40000 + random.bounded(40000), border - bytes.size());
                bytes += QByteArray(length, 'x') + (random.bounded(2) == 0 ? ",y\n" : ",y\r\n");
            }
            bytes += nastyBytes(60, true, random);
        }
        const QStringList expected = tableLines(CsvOracle::rowsOfBytes(bytes));
        const QStringList lines = tableLines(readBytes(bytes));
        QVERIFY2(lines == expected, bytes.right(400).toHex(' ').constData());
    }
}

void TestCsvReader::randomBytesFromPoorDevices()
{
    QRandomGenerator random(4);
    for (int i = 0; i < 300; ++i) {
        const QByteArray bytes = anyOf(beginnings, random) + nastyBytes(60, true, random);
        PoorDevice device(bytes, 4 + random.bounded(20)); // a mark comes in one piece
        const QStringList expected = tableLines(CsvOracle::rowsOfBytes(bytes));
        const QStringList lines = tableLines(readCsv(device));
        if (lines != expected)
            qWarning() << "bytes:" << bytes.toHex(' ');
        QCOMPARE(lines, expected);
    }
}

void TestCsvReader::everyLineAtTheBlockBorder_data()
{
    QTest::addColumn<QByteArray>("record");
    QTest::addColumn<QString>("line");

    QTest::newRow("plain") << QByteArray("1,2\n") << "|1|2|";
    QTest::newRow("CR LF") << QByteArray("1,2\r\n") << "|1|2|";
    QTest::newRow("mark at the start of the line") << QByteArray("\xEF\xBB\xBF"
                                                                 "1,2\n")
                                                   << "|1|2|";
    QTest::newRow("characters of several bytes")
        << QByteArray("한日é,😀\n") << "|한日é|\\xd83d;\\xde00;|";
    QTest::newRow("line break in quotes") << QByteArray("\"1\n2\",3\n") << "|1\\n2|3|";
}

// The first block ends at each byte of the record in turn.
void TestCsvReader::everyLineAtTheBlockBorder()
{
    QFETCH(QByteArray, record);
    QFETCH(QString, line);
    for (int offset = -1; offset <= record.size() + 1; ++offset) {
        QByteArray bytes = "a,b\n";
        bytes += QByteArray(readerBlockBytes - offset - bytes.size() - 3, 'x') + ",y\n";
        QCOMPARE(bytes.size(), readerBlockBytes - offset);
        bytes += record + record;
        const QStringList lines = tableLines(readBytes(bytes));
        QCOMPARE(lines.size(), 4);
        QCOMPARE(lines.mid(2), (QStringList{line, line}));
    }
}

// --- great files ------------------------------------------------------------------------------

void TestCsvReader::tenThousandColumns()
{
    QByteArray bytes;
    QStringList headings;
    QStringList values;
    for (int column = 0; column < 10000; ++column) {
        headings.append("h" + QString::number(column));
        values.append(QString::number(column * 7));
    }
    bytes = headings.join(',').toUtf8() + '\n' + QByteArray(9998, ',') + '\n'
        + values.join("\",\"").toUtf8().prepend('"').append("\"\n") + QByteArray(10000, ',') + '\n'
        + values.join(',').toUtf8();
    const TextRows rows = readBytes(bytes);
    // The line with a comma less takes in the next one and is then too long.
    QCOMPARE(rows.rowCount(), 2);
    QCOMPARE(rows.row(0), headings);
    QCOMPARE(rows.row(1), values);
    QCOMPARE(rows.field(1, 9999).toString(), QString("69993"));
    QVERIFY(rows.field(1, 10000).isEmpty());
    QVERIFY(rows.field(1, -1).isEmpty());
}

void TestCsvReader::fieldOfFiftyMegabytes()
{
    const int length = 50 * 1000 * 1000;
    QByteArray bytes("a,b\n1,2\n");
    bytes.reserve(length + 100);
    bytes += QByteArray(length, 'x');
    bytes += ",y\n3,4\n";
    const TextRows rows = readBytes(bytes);
    QCOMPARE(rows.rowCount(), 4);
    QCOMPARE(rows.field(1, 1).toString(), QString("2"));
    QCOMPARE(int(rows.field(2, 0).size()), length);
    QCOMPARE(rows.field(2, 0).back(), QChar('x'));
    QCOMPARE(rows.field(2, 1).toString(), QString("y"));
    QCOMPARE(rows.row(3), (QStringList{"3", "4"}));
}

void TestCsvReader::headingOfFiftyMegabytes()
{
    const int length = 50 * 1000 * 1000;
    const TextRows rows = readBytes(QByteArray(length, 'x'));
    QCOMPARE(rows.rowCount(), 1);
    QCOMPARE(rows.fieldCount(0), 1);
    QCOMPARE(int(rows.field(0, 0).size()), length);
}

void TestCsvReader::aMillionBlankLines()
{
    const TextRows rows = readBytes("a,b\n" + QByteArray(1000000, '\n') + "1,2\n3,4\n");
    QCOMPARE(rows.rowCount(), 3);
    QCOMPARE(int(rows.field(1, 0).size()), 1000001);
    QCOMPARE(rows.row(2), (QStringList{"3", "4"}));
}

void TestCsvReader::aMillionMarks()
{
    const TextRows rows = readBytes("a\n" + QByteArray("\xEF\xBB\xBFx\n").repeated(1000000));
    QCOMPARE(rows.rowCount(), 1000001);
    QCOMPARE(rows.row(0), QStringList("a"));
    for (const int row : {1, 500000, 1000000})
        QCOMPARE(rows.row(row), QStringList("x"));
}

void TestCsvReader::deviceThatBreaksOff()
{
    const QByteArray bytes = "a,b\n1,2\n" + QByteArray(300000, 'x') + ",y\n";
    for (const int failsAt : {0, 2, 6, 100, readerBlockBytes, readerBlockBytes + 1000}) {
        PoorDevice device(bytes, 100000, failsAt);
        QCOMPARE(tableLines(readCsv(device)),
                 tableLines(CsvOracle::rowsOfBytes(bytes.left(failsAt))));
    }
}

// --- opening ----------------------------------------------------------------------------------

void TestCsvReader::opensFile()
{
    const WorkingFolder folder;
    QFile file(folder.write("orders.csv", "a,b\r\n1,2\r\n"));
    QString reason = "untouched";
    QVERIFY(openCsvFile(file, &reason));
    QCOMPARE(reason, QString("untouched"));
    QCOMPARE(tableLines(readCsv(file)), (QStringList{"|a|b|", "|1|2|"}));
    QCOMPARE(folder.read("orders.csv"), QByteArray("a,b\r\n1,2\r\n"));
}

void TestCsvReader::tellsWhyAFileCannotBeOpened_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("missing file") << "missing.csv";
    QTest::newRow("folder") << ".";
    QTest::newRow("file below a file") << "orders.csv/orders.csv";
    QTest::newRow("empty path") << "";
}

void TestCsvReader::tellsWhyAFileCannotBeOpened()
{
    QFETCH(QString, path);
    const WorkingFolder folder;
    folder.write("orders.csv", "a,b\n");
    QFile sameFile(path);
    if (path.isEmpty())
        QTest::ignoreMessage(QtWarningMsg, "QFSFileEngine::open: No file name specified");
    QVERIFY(!sameFile.open(QIODevice::ReadOnly | QIODevice::Text));
    QFile file(path);
    QString reason;
    if (path.isEmpty())
        QTest::ignoreMessage(QtWarningMsg, "QFSFileEngine::open: No file name specified");
    QVERIFY(!openCsvFile(file, &reason));
    QCOMPARE(reason, sameFile.errorString());
    QVERIFY(!reason.isEmpty());
}

QTEST_GUILESS_MAIN(TestCsvReader)

#include "tst_csvreader.moc"
