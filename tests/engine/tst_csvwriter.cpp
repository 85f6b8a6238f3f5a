// The writer of the CSV dialect: every rule by name, then random texts against the toolkit's text
// stream with the same code page.
#include "engine/csvwriter.h"
#include "engine/systemcodec.h"
#include "tests/engine/testlocales.h"
#include "tests/settings/workingfolder.h"

#include <QBuffer>
#include <QRandomGenerator>
#include <QTextCodec>
#include <QTextStream>
#include <QtTest>

namespace {

using Rows = QList<QStringList>;

// Row 0 is the heading row.
QByteArray written(const Rows &rows)
{
    QBuffer device;
    device.open(QIODevice::WriteOnly | QIODevice::Text);
    CsvWriter writer(device);
    writer.writeHeading(rows.first());
    for (const QStringList &row : rows.mid(1)) {
        for (const QString &field : row)
            writer.addField(field);
        writer.endRow();
    }
    return writer.flush() ? device.data() : "not written";
}

QString quotedOnce(const QString &text)
{
    return text.startsWith('"') && text.endsWith('"') ? text : '"' + text + '"';
}

QByteArray streamed(const Rows &rows)
{
    QBuffer device;
    device.open(QIODevice::WriteOnly | QIODevice::Text);
    QTextStream stream(&device);
    stream.setCodec(systemLocaleCodec());
    for (int row = 0; row < rows.size(); ++row) {
        QStringList fields = rows.at(row);
        for (QString &field : fields) {
            if (row > 0 && field.contains('\n'))
                field = quotedOnce(field);
        }
        stream << fields.join(',') + '\n';
    }
    stream.flush();
    return device.data();
}

const QStringList nastyTexts = {
    "",
    "a",
    "12345",
    ",",
    "\"",
    "\"\"",
    "\n",
    "\r\n",
    "\r",
    " ",
    "\t",
    "\\",
    "~",
    "주문",
    "똠방",
    "日本語",
    "ソ能表",
    "ｱｲｳ",
    "é",
    "¥",
    "‾",
    "〜",
    "～",
    "−",
    "－",
    "①㈱",
    "😀",
    "𠮷",
    "한",
    QString(QChar(0)),
    QString(QChar(0x80)),
    QString(QChar(0xA0)),
    QString(QChar(0xD83D)),
    QString(QChar(0xDE00)),
    QString(QChar(0xFEFF)),
    QString(QChar(0xFFFD)),
    QString(QChar(0xFFFF)),
    QString(QChar(0xE000)),
    QString(QChar(0x2028)),
    QString("e") + QChar(0x301),
};

QString nastyText(QRandomGenerator &random)
{
    QString text;
    const int pieces = random.bounded(5);
    for (int i = 0; i < pieces; ++i)
        text += nastyTexts.at(random.bounded(nastyTexts.size()));
    return text;
}

// A disk that is full after some bytes.
class FullDevice : public QIODevice
{
public:
    explicit FullDevice(qint64 room) : m_room(room) { open(QIODevice::WriteOnly); }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *, qint64 size) override
    {
        const qint64 taken = qMin(size, m_room);
        m_room -= taken;
        if (taken > 0 || size == 0)
            return taken;
        setErrorString("full");
        return -1;
    }

private:
    qint64 m_room;
};

void addCodePages(const TestLocales &locales)
{
    QTest::addColumn<QString>("locale");
    QTest::newRow("C") << "C";
    for (const QString &name : locales.names())
        QTest::newRow(qPrintable(name)) << name;
}

} // namespace

class TestCsvWriter : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void writesRow_data();
    void writesRow();
    void headingsAreNeverQuoted();
    void rowWithoutFieldsIsAnEmptyLine();
    void systemCodecByLocale_data();
    void systemCodecByLocale();
    void bytesByLocale_data();
    void bytesByLocale();
    void randomTextsAsTheTextStream_data();
    void randomTextsAsTheTextStream();
    void manyBlocksAsTheTextStream_data();
    void manyBlocksAsTheTextStream();
    void fieldOfTenMillionLetters();
    void fileInTextMode();
    void tellsThatTheDiskIsFull_data();
    void tellsThatTheDiskIsFull();

private:
    const TestLocales m_locales;
};

void TestCsvWriter::initTestCase()
{
    startInTheCLocale(m_locales);
}

void TestCsvWriter::writesRow_data()
{
    QTest::addColumn<QStringList>("fields");
    QTest::addColumn<QByteArray>("line");

    const auto row = [](const char *name, const QStringList &fields, const QByteArray &line) {
        QTest::newRow(name) << fields << line;
    };
    row("fields between commas", {"a", "b", "c"}, "a,b,c");
    row("one field", {"a"}, "a");
    row("one empty field", {""}, "");
    row("empty fields", {"", "", ""}, ",,");
    row("first field empty", {"", "b"}, ",b");
    row("comma is written as it is and shifts the columns", {"a,b", "c"}, "a,b,c");
    row("quote is written as it is", {"a\"b", "\"", "\"c\""}, "a\"b,\",\"c\"");
    row("line feed brings quotes", {"a\nb", "c"}, "\"a\nb\",c");
    row("line feed alone", {"\n"}, "\"\n\"");
    row("line feed and comma", {"a,b\nc"}, "\"a,b\nc\"");
    row("line feed in a quoted text brings no second quotes", {"\"a\nb\""}, "\"a\nb\"");
    row("quotes inside are not doubled", {"a\"\nb"}, "\"a\"\nb\"");
    row("quote at the start only", {"\"a\nb"}, "\"\"a\nb\"");
    row("quote at the end only", {"a\nb\""}, "\"a\nb\"\"");
    row("carriage return alone brings no quotes", {"a\rb"}, "a\rb");
    row("carriage return stays before the line feed", {"a\r\nb"}, "\"a\r\nb\"");
    row("blanks stay", {" a ", "\t"}, " a ,\t");
    row("NUL", {QString(QChar(0)), "b"}, QByteArray("\0,b", 3));
    row("Korean", {"주문"}, "주문");
    row("emoji", {"😀"}, "😀");
    row("half a surrogate pair", {QString(QChar(0xD83D)), "b"}, "?,b");
    row("halves of a pair in two fields", {QString(QChar(0xD83D)), QString(QChar(0xDE00))}, "?,?");
    row("mark character is written like any other", {QString(QChar(0xFEFF))}, "\xEF\xBB\xBF");
}

void TestCsvWriter::writesRow()
{
    QFETCH(QStringList, fields);
    QFETCH(QByteArray, line);
    QCOMPARE(written({{"h"}, fields, {"z"}}), "h\n" + line + "\nz\n");
    QCOMPARE(streamed({{"h"}, fields, {"z"}}), "h\n" + line + "\nz\n");
}

void TestCsvWriter::headingsAreNeverQuoted()
{
    QCOMPARE(written({{"a,b", "c\nd", "\"e\"", ""}}), QByteArray("a,b,c\nd,\"e\",\n"));
    QCOMPARE(written({{"주문"}}), QByteArray("주문\n")); // and no mark before them
    QCOMPARE(written({{}}), QByteArray("\n"));
}

void TestCsvWriter::rowWithoutFieldsIsAnEmptyLine()
{
    QCOMPARE(written({{}, {}, {}}), QByteArray("\n\n\n"));
}

void TestCsvWriter::systemCodecByLocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");

    QTest::newRow("C counts as UTF-8") << "C" << QByteArray("\xED\x95\x9C") << "한";
    QTest::newRow("POSIX counts as UTF-8") << "POSIX" << QByteArray("\xED\x95\x9C") << "한";
    QTest::newRow("UTF-8") << "ko_KR.UTF-8" << QByteArray("\xED\x95\x9C") << "한";
    QTest::newRow("CP949") << "ko_KR.CP949" << QByteArray("\xC7\xD1\x8C\x63") << "한똠";
    QTest::newRow("EUC-KR") << "ko_KR.EUC-KR" << QByteArray("\xC7\xD1") << "한";
    QTest::newRow("WINDOWS-31J, the backslash stays one, trail byte 0x5C")
        << "ja_JP.WINDOWS-31J" << QByteArray("\x5C\x83\x5C\x87\x40") << "\\ソ①";
}

void TestCsvWriter::systemCodecByLocale()
{
    QFETCH(QString, locale);
    QFETCH(QByteArray, bytes);
    if (m_locales.missing().contains(locale))
        QSKIP("the locale cannot be made here");
    const CodePageScope codePage(m_locales, locale);
    QVERIFY(codePage.isSet());
    QTextCodec *codec = systemLocaleCodec();
    QVERIFY(codec);
    QTEST(codec->toUnicode(bytes), "text");
    QFETCH(QString, text);
    QCOMPARE(codec->fromUnicode(text), bytes);
}

void TestCsvWriter::bytesByLocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("CP949 writes every Hangul syllable") << "ko_KR.CP949"
                                                        << "가똠" << QByteArray("\xB0\xA1\x8C\x63");
    QTest::newRow("CP949 cannot write é") << "ko_KR.CP949"
                                          << "aéb" << QByteArray("a?b");
    QTest::newRow("CP949: the line end behind what cannot be written stays")
        << "ko_KR.CP949"
        << "é" << QByteArray("?");
    QTest::newRow("CP949 cannot write half a pair")
        << "ko_KR.CP949" << QString("a") + QChar(0xD83D) << QByteArray("a?");
    QTest::newRow("WINDOWS-31J writes trail byte 0x5C")
        << "ja_JP.WINDOWS-31J"
        << "ソ,表" << QByteArray("\x83\x5C,\x95\x5C");
    QTest::newRow("WINDOWS-31J cannot write Hangul") << "ja_JP.WINDOWS-31J"
                                                     << "a한b" << QByteArray("a?b");
    QTest::newRow("WINDOWS-31J: half-width katakana are one byte") << "ja_JP.WINDOWS-31J"
                                                                   << "ｱ" << QByteArray("\xB1");
}

void TestCsvWriter::bytesByLocale()
{
    QFETCH(QString, locale);
    QFETCH(QString, text);
    QFETCH(QByteArray, bytes);
    if (m_locales.missing().contains(locale))
        QSKIP("the locale cannot be made here");
    const CodePageScope codePage(m_locales, locale);
    QVERIFY(codePage.isSet());
    QCOMPARE(written({{text}, {text}}), bytes + '\n' + bytes + '\n');
}

void TestCsvWriter::randomTextsAsTheTextStream_data()
{
    addCodePages(m_locales);
}

void TestCsvWriter::randomTextsAsTheTextStream()
{
    QFETCH(QString, locale);
    const CodePageScope codePage(m_locales, locale);
    QVERIFY(codePage.isSet());
    QRandomGenerator random(1);
    for (int i = 0; i < 3000; ++i) {
        Rows rows;
        const int rowCount = 1 + random.bounded(5);
        for (int row = 0; row < rowCount; ++row) {
            QStringList fields;
            const int fieldCount = 1 + random.bounded(4);
            for (int field = 0; field < fieldCount; ++field)
                fields.append(nastyText(random));
            rows.append(fields);
        }
        QCOMPARE(written(rows).toHex(' '), streamed(rows).toHex(' '));
    }
}

void TestCsvWriter::manyBlocksAsTheTextStream_data()
{
    addCodePages(m_locales);
}

// Several times what the writer holds back before it encodes.
void TestCsvWriter::manyBlocksAsTheTextStream()
{
    QFETCH(QString, locale);
    const CodePageScope codePage(m_locales, locale);
    QVERIFY(codePage.isSet());
    QRandomGenerator random(2);
    Rows rows = {{"h", "i"}};
    for (int row = 0; row < 20000; ++row)
        rows.append({nastyText(random) + QString(random.bounded(40), 'x'), nastyText(random)});
    const QByteArray bytes = written(rows);
    QVERIFY(bytes.size() > 3 * 128 * 1024);
    QVERIFY(bytes == streamed(rows));
}

void TestCsvWriter::fieldOfTenMillionLetters()
{
    const QString text(10 * 1000 * 1000, QChar(0xD55C));
    const QByteArray bytes = written({{"h"}, {text, "b"}, {"c"}});
    QVERIFY(bytes == "h\n" + text.toUtf8() + ",b\nc\n");
}

void TestCsvWriter::fileInTextMode()
{
    const WorkingFolder folder;
    QFile file(folder.path("out.csv"));
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Text));
    CsvWriter writer(file);
    writer.writeHeading({"a", "b"});
    writer.addField(QStringView());
    writer.addField(u"x\ny");
    writer.endRow();
    QVERIFY(writer.flush());
    file.close();
#ifdef Q_OS_WIN
    QCOMPARE(folder.read("out.csv"), QByteArray("a,b\r\n,\"x\r\ny\"\r\n"));
#else
    QCOMPARE(folder.read("out.csv"), QByteArray("a,b\n,\"x\ny\"\n"));
#endif
}

void TestCsvWriter::tellsThatTheDiskIsFull_data()
{
    QTest::addColumn<qint64>("room");
    QTest::addColumn<bool>("fits");

    QTest::newRow("no room") << qint64(0) << false;
    QTest::newRow("room for a part of a row") << qint64(3) << false;
    QTest::newRow("full in a later block") << qint64(200000) << false;
    QTest::newRow("one byte too few") << qint64(600007) << false;
    QTest::newRow("just enough") << qint64(600008) << true;
}

void TestCsvWriter::tellsThatTheDiskIsFull()
{
    QFETCH(qint64, room);
    FullDevice device(room);
    CsvWriter writer(device);
    writer.writeHeading({"heading"});
    for (int row = 0; row < 100000; ++row) {
        writer.addField(u"12345");
        writer.endRow();
    }
    QTEST(writer.flush(), "fits");
    QTEST(writer.flush(), "fits"); // a failure is not forgotten
    QFETCH(bool, fits);
    if (!fits)
        QCOMPARE(device.errorString(), QString("full")); // also where a part still went in
}

QTEST_GUILESS_MAIN(TestCsvWriter)

#include "tst_csvwriter.moc"
