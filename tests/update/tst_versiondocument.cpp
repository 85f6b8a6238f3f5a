// What is read out of the document that names the latest version, whatever the network sends.
#include "update/versiondocument.h"

#include <QTemporaryFile>
#include <QtTest>

class TestVersionDocument : public QObject
{
    Q_OBJECT

private slots:
    void latestVersion_data();
    void latestVersion();
    void errorsTellTheirPlace_data();
    void errorsTellTheirPlace();
    void externalEntityIsNotFetched();
    void deepElementsDoNotEndTheStack();
    void costlyDocumentsAreRefused_data();
    void costlyDocumentsAreRefused();
    void piecesMakeTheSame_data();
    void piecesMakeTheSame();
    void isNewer_data();
    void isNewer();
};

void TestVersionDocument::latestVersion_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("wellFormed");
    QTest::addColumn<QString>("latest");
    const auto row = [](const char *name, const QByteArray &bytes, bool wellFormed,
                        const char *latest) {
        QTest::newRow(name) << bytes << wellFormed << QString::fromUtf8(latest);
    };
    row("the root", "<version>1.01</version>", true, "1.01");
    row("within another element", "<product><version>1.01</version></product>", true, "1.01");
    row("deep within", "<a><b>x<c><version>2</version></c></b></a>", true, "2");
    row("with a declaration and line breaks",
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<p>\r\n <version>1.01</version>\r\n</p>\r\n",
        true, "1.01");
    row("the first of two", "<p><version>1.01</version><version>3</version></p>", true, "1.01");
    row("the first one is empty", "<p><version/><version>3</version></p>", true, "");
    row("the first one has attributes", "<p><version n='3'>1.02</version></p>", true, "1.02");
    row("elements within count with their text", "<version>1.<b>0<i>2</i></b>3</version>", true,
        "1.023");
    row("a version within the version belongs to its text",
        "<p><version>1.<version>5</version></version><version>9</version></p>", true, "1.5");
    row("a section of characters", "<version><![CDATA[1.01]]></version>", true, "1.01");
    row("comments are no text", "<version>1.<!-- 9 -->01</version>", true, "1.01");
    row("spaces stay as they are", "<version> 1.01\n</version>", true, " 1.01\n");
    row("words stay as they are", "<version>2.0 beta</version>", true, "2.0 beta");
    row("other cases of the name", "<p><Version>2</Version><VERSION>3</VERSION></p>", true, "");
    row("an attribute of that name", "<p version='2'>2</p>", true, "");
    row("a name with a prefix is another name", "<p><x:version>2</x:version></p>", true, "");
    row("no such element", "<p>2</p>", true, "");
    row("another encoding",
        "<?xml version='1.0' encoding='EUC-KR'?><p><a>\xc4\xf5</a><version>1.01</version></p>",
        true, "1.01");
    row("UTF-16",
        QByteArray::fromHex(
            "fffe3c00760065007200730069006f006e003e0032003c002f00760065007200730069006f006e003e00"),
        true, "2");
    row("an entity of its own", "<!DOCTYPE v [<!ENTITY n '1.01'>]><version>&n;</version>", true,
        "1.01");

    row("nothing", "", false, "");
    row("spaces", " \r\n", false, "");
    row("no XML", "latest version: 2.0", false, "");
    row("a web page that is no XML", "<html><body><br>2<p>3</body></html>", false, "");
    row("broken after the version", "<p><version>2</version>", false, "");
    row("two roots", "<version>2</version><version>3</version>", false, "");
    row("a zero byte", QByteArray("<version>2\0</version>", 21), false, "");
    row("bytes of no encoding", "<version>2\xff</version>", false, "");
    row("an entity that nobody declared", "<version>&n;</version>", false, "");
    row("an entity that holds itself",
        "<!DOCTYPE v [<!ENTITY n '&n;'>]><p><version>2</version>&n;</p>", false, "");

    QByteArray bomb = "<!DOCTYPE v [<!ENTITY a0 'ha'>";
    for (int i = 1; i <= 30; ++i)
        bomb += "<!ENTITY a" + QByteArray::number(i) + " '&a" + QByteArray::number(i - 1) + ";&a"
            + QByteArray::number(i - 1) + ";'>";
    row("entities that double thirty times", bomb + "]><p><version>2</version>&a30;</p>", false,
        "");
    row("a large document", "<p>" + QByteArray(50 << 20, 'x') + "<version>1.01</version></p>", true,
        "1.01");
}

void TestVersionDocument::latestVersion()
{
    QFETCH(QByteArray, bytes);
    const VersionDocument document = readVersionDocument(bytes);
    QTEST(document.wellFormed, "wellFormed");
    QTEST(document.latestVersion, "latest");
}

void TestVersionDocument::errorsTellTheirPlace_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("line");
    QTest::newRow("first line") << QByteArray("not xml") << 1;
    QTest::newRow("third line") << QByteArray("<p>\n<version>2</version>\n</q>\n") << 3;
}

void TestVersionDocument::errorsTellTheirPlace()
{
    QFETCH(QByteArray, bytes);
    const VersionDocument document = readVersionDocument(bytes);
    QVERIFY(!document.wellFormed);
    QTEST(int(document.errorLine), "line");
}

void TestVersionDocument::externalEntityIsNotFetched()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write("9.99");
    file.close();
    const QByteArray address = QUrl::fromLocalFile(file.fileName()).toEncoded();
    const VersionDocument document =
        readVersionDocument("<!DOCTYPE v SYSTEM '" + address + "' [<!ENTITY n SYSTEM '" + address
                            + "'>]><p><version>&n;</version></p>");
    QCOMPARE(document.latestVersion, QString());
}

void TestVersionDocument::deepElementsDoNotEndTheStack()
{
    constexpr int depth = 500000;
    const QByteArray opening = QByteArray("<a>").repeated(depth);
    const QByteArray closing = QByteArray("</a>").repeated(depth);
    QCOMPARE(
        readVersionDocument("<version>1" + opening + ".5" + closing + "</version>").latestVersion,
        QStringLiteral("1.5"));
    QCOMPARE(readVersionDocument(opening + "<version>2</version>" + closing).latestVersion,
             QStringLiteral("2"));
}

/// Each of these took minutes, or all memory, when it was read without bounds.
void TestVersionDocument::costlyDocumentsAreRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray entity = "<!DOCTYPE u [<!ENTITY a '" + QByteArray(4000, '1') + "'>]>";
    const QByteArray uses = QByteArray("&a;").repeated(300000);
    QTest::newRow("an entity in many places") << entity + "<u>" + uses + "<version>2</version></u>";
    QTest::newRow("an entity many times in the version")
        << entity + "<u><version>" + uses + "</version></u>";
    QTest::newRow("an entity many times in an attribute")
        << entity + "<u b='" + uses + "'><version>2</version></u>";

    QByteArray attributes;
    QByteArray defaults;
    for (int i = 0; i < 300000; ++i) {
        const QByteArray name = 'a' + QByteArray::number(i);
        attributes += ' ' + name + "=''";
        if (i < 10000)
            defaults += name + " CDATA '' ";
    }
    QTest::newRow("a tag of many attributes") << "<u" + attributes + "><version>2</version></u>";
    QTest::newRow("defaults for many attributes") << "<!DOCTYPE u [<!ATTLIST u " + defaults
            + ">]><u>" + QByteArray("<u/>").repeated(100000) + "<version>2</version></u>";
    QByteArray wide;
    const QByteArray narrow = "<u" + attributes + "><version>2</version></u>";
    for (const char byte : narrow)
        wide.append(byte).append('\0');
    QTest::newRow("the same in UTF-16") << "\xff\xfe" + wide;
}

void TestVersionDocument::costlyDocumentsAreRefused()
{
    QFETCH(QByteArray, bytes);
    const VersionDocument document = readVersionDocument(bytes);
    QVERIFY(!document.wellFormed);
    QCOMPARE(document.latestVersion, QString());
}

void TestVersionDocument::piecesMakeTheSame_data()
{
    latestVersion_data();
    const auto row = [](const char *name, const QByteArray &bytes, bool wellFormed,
                        const char *latest) {
        QTest::newRow(name) << bytes << wellFormed << QString::fromLatin1(latest);
    };
    row("defaults for attributes",
        "<!DOCTYPE u [<!ATTLIST u a CDATA '1'>]><u><version>2</version></u>", false, "");
    row("a tag of some attributes", "<u a='1' b='2' c='=='><version>2</version></u>", true, "2");
}

void TestVersionDocument::piecesMakeTheSame()
{
    QFETCH(QByteArray, bytes);
    // Of three and of seven bytes, or of the millionth part of a large document.
    for (const int size : {3, 7}) {
        const int step = bytes.size() > 10000 ? size * 100000 : size;
        VersionDocumentReader reader;
        for (int i = 0; i < bytes.size(); i += step)
            reader.addData(bytes.mid(i, step));
        const VersionDocument document = reader.finish();
        QTEST(document.wellFormed, "wellFormed");
        QTEST(document.latestVersion, "latest");
    }
}

void TestVersionDocument::isNewer_data()
{
    QTest::addColumn<QString>("latest");
    QTest::addColumn<bool>("newer");
    const auto row = [](const QString &latest, bool newer) {
        QTest::newRow(qPrintable(latest.left(20))) << latest << newer;
    };
    for (const char *latest : {"1.01", "1.1", "2", "10.0", "1.001", "01.01", "1e1", " 1.01 "})
        row(QLatin1String(latest), true);
    for (const char *latest : {"1.00", "1.0", "1", "0.9", "0", "-2", "1.0000", ""})
        row(QLatin1String(latest), false);
    // Not numbers as a whole, so 0.
    for (const char *latest : {"2.0 beta", "beta 2.0", "2.0.1", "v2", "2,0", "1,000", "0x10", "inf",
                               "Infinity", "nan", "1e999", "beta"})
        row(QLatin1String(latest), false);
    row(QString::fromUtf8("２.０"), false);
    QTest::newRow("line breaks that push the buttons off the screen")
        << QString(20, QLatin1Char('\n')) + QLatin1Char('2') << false;
    QTest::newRow("a number that no window can show") << QString(1000, QLatin1Char('9')) << false;
    QTest::newRow("not compared as text: 9 is less than 10") << "9" << true;
}

void TestVersionDocument::isNewer()
{
    QFETCH(QString, latest);
    QTEST(isNewerVersion(latest, QStringLiteral("1.00")), "newer");
}

QTEST_APPLESS_MAIN(TestVersionDocument)

#include "tst_versiondocument.moc"
