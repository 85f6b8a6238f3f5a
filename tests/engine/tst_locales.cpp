// Conversions in the code pages of real Korean and Japanese systems. Each runs in a process of its
// own, because a process takes its locale from its environment when it starts.
#include "engine/conversionrun.h"
#include "settings/inputsetting.h"
#include "settings/outputitem.h"
#include "tests/engine/recordingreporter.h"
#include "tests/engine/testlocales.h"
#include "tests/settings/workingfolder.h"

#include <QtTest>
#include <cstdio>

namespace {

const QString convertSwitch = "--convert";
const QString settingName = "shop";

// The child: converts in.csv of its current folder to out.csv.
int convert()
{
    RecordingReporter reporter;
    const bool converted = runConversion({{"in.csv"}, "out.csv", settingName}, reporter);
    fputs(reporter.errors.join('\n').toUtf8().constData(), stdout);
    return converted ? 0 : 1;
}

OutputItem columns(const QString &name, const QList<int> &numbers, const QStringList &rules = {})
{
    OutputItem item;
    item.name = name;
    for (const int number : numbers)
        item.appendMapping(InputSource, number, "column");
    item.separator = "／"; // full width: two bytes in each of the code pages
    item.rules = rules;
    return item;
}

} // namespace

class TestLocalesOfShops : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void converts_data();
    void converts();
    void everyCharacterOfTheCodePage_data();
    void everyCharacterOfTheCodePage();

private:
    void startChild(const QString &locale, QProcess &child) const;

    const TestLocales m_locales;
};

void TestLocalesOfShops::initTestCase()
{
    if (m_locales.names().isEmpty())
        QSKIP("NOT TESTED: no locale with another code page can be made here (localedef and the "
              "locale sources are needed)");
}

void TestLocalesOfShops::startChild(const QString &locale, QProcess &child) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LOCPATH", m_locales.folder());
    environment.insert("LC_ALL", locale);
    child.setProcessEnvironment(environment);
    child.start(QCoreApplication::applicationFilePath(), QStringList(convertSwitch));
    child.waitForFinished();
}

void TestLocalesOfShops::converts_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("headings");
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QByteArray>("output"); // without the heading row; empty: other headings

    const auto row = [](const char *name, const QString &locale, const QString &headings,
                        const QByteArray &input, const QByteArray &output) {
        QTest::newRow(name) << locale << headings << input << output;
    };
    const QByteArray utf8Mark = "\xEF\xBB\xBF";

    // 주문 상품 수량; 똠 is in CP949 and not in the older standard.
    row("CP949", "ko_KR.CP949", "주문,상품,수량",
        "\xC1\xD6\xB9\xAE,\xBB\xF3\xC7\xB0,\xBC\xF6\xB7\xAE\r\n"
        "1,\x8C\x63\x20\xB0\xA1,2\r\n",
        "1\xA3\xAF\x8C\x63\x20\xB0\xA1,\x8C\x63\n");
    row("CP949: trail bytes that are letters", "ko_KR.CP949", "a,b,c",
        "a,b,c\n1,\xC6\x52\x81\x41\xA0\x7A,2\n", "1\xA3\xAF\xC6\x52\x81\x41\xA0\x7A,\xC6\x52\n");
    row("CP949: quotes and a line break", "ko_KR.CP949", "a,b,c",
        "a,b,c\n1,\"\xB0\xA1\n\xB3\xAA\",2\n", "\"1\xA3\xAF\xB0\xA1\n\xB3\xAA\",\xB0\xA1\n");
    row("CP949: lead byte before a comma does not eat it", "ko_KR.CP949", "a,b,c",
        "a,b,c\n1,\x81,2\n", "1\xA3\xAF?,?\n");
    row("CP949: lead byte before the line end does not eat it", "ko_KR.CP949", "a,b,c",
        "a,b,c\n1,x,\x81\n2,y,3\n", "1\xA3\xAFx,x\n2\xA3\xAFy,y\n");
    row("EUC-KR", "ko_KR.EUC-KR", "주문,상품,수량",
        "\xC1\xD6\xB9\xAE,\xBB\xF3\xC7\xB0,\xBC\xF6\xB7\xAE\n1,\xB0\xA1\xB3\xAA,2\n",
        "1\xA3\xAF\xB0\xA1\xB3\xAA,\xB0\xA1\n");

    // 受注 商品 数量
    row("WINDOWS-31J", "ja_JP.WINDOWS-31J", "受注,商品,数量",
        "\x8E\xF3\x92\x8D,\x8F\xA4\x95\x69,\x90\x94\x97\xCA\r\n1,\x82\xA0\xB1,2\r\n",
        "1\x81\x5E\x82\xA0\xB1,\x82\xA0\n");
    row("WINDOWS-31J: trail byte 0x5C", "ja_JP.WINDOWS-31J", "ソ,表,能",
        "\x83\x5C,\x95\x5C,\x94\x5C\n1,\x83\x5C\x95\x5C\\,2\n",
        "1\x81\x5E\x83\x5C\x95\x5C\\,\x83\x5C\n");
    row("WINDOWS-31J: trail bytes 0x40 to 0x7E that look like signs", "ja_JP.WINDOWS-31J", "a,b,c",
        "a,b,c\n1,\x81\x40\x81\x5B\x81\x62\x83\x7C\x81\x60,2\n",
        "1\x81\x5E\x81\x40\x81\x5B\x81\x62\x83\x7C\x81\x60,\x81\x40\n");
    row("WINDOWS-31J: full-width comma and quote separate nothing", "ja_JP.WINDOWS-31J", "a,b,c",
        "a,b,c\n1,\x81\x43\x81\x68,2\n", "1\x81\x5E\x81\x43\x81\x68,\x81\x43\n");
    row("WINDOWS-31J: signs of this code page only", "ja_JP.WINDOWS-31J", "a,b,c",
        "a,b,c\n1,\x87\x40\x87\x8A\xFA\x40,2\n", "1\x81\x5E\x87\x40\x87\x8A\xFA\x40,\x87\x40\n");
    row("WINDOWS-31J: lead byte before a comma does not eat it", "ja_JP.WINDOWS-31J", "a,b,c",
        "a,b,c\n1,\x83,2\n", "1\x81\x5E?,?\n");
    row("WINDOWS-31J: full-width blank is trimmed at the end of the last field",
        "ja_JP.WINDOWS-31J", "a,b,c", "a,b,c\n1,x\x81\x40,2\x81\x40\n", "1\x81\x5Ex\x81\x40,x\n");

    row("UTF-8", "ko_KR.UTF-8", "주문,상품,수량", "주문,상품,수량\n1,똠 é 😀,2\n", "1／똠 é 😀,똠\n");
    row("C is UTF-8", "C", "주문,상품,수량", "주문,상품,수량\n1,똠 é,2\n", "1／똠 é,똠\n");
    row("a locale that is not there is UTF-8", "xx_XX.nothing", "주문,상품,수량",
        "주문,상품,수량\n1,똠 é,2\n", "1／똠 é,똠\n");

    row("UTF-8 with a mark, written as CP949", "ko_KR.CP949", "주문,상품,수량",
        utf8Mark + "주문,상품,수량\n1,똠é,2\n", "1\xA3\xAF\x8C\x63?,\x8C\x63\n");
    row("UTF-8 with a mark, written as WINDOWS-31J", "ja_JP.WINDOWS-31J", "주문,상품,수량",
        utf8Mark + "주문,상품,수량\n1,表한,2\n", "1\x81\x5E\x95\x5C?,\x95\x5C\n");
    row("UTF-8 without a mark is not UTF-8 in CP949", "ko_KR.CP949", "주문,상품,수량",
        "주문,상품,수량\n1,x,2\n", "");
    row("CP949 is not read as UTF-8", "ko_KR.UTF-8", "주문,상품,수량",
        "\xC1\xD6\xB9\xAE,\xBB\xF3\xC7\xB0,\xBC\xF6\xB7\xAE\n1,x,2\n", "");
}

// The output columns are: number and article joined, and the first character of the article.
void TestLocalesOfShops::converts()
{
    QFETCH(QString, locale);
    QFETCH(QString, headings);
    QFETCH(QByteArray, input);
    QFETCH(QByteArray, output);
    if (m_locales.missing().contains(locale))
        QSKIP("NOT TESTED: this locale cannot be made here");
    const WorkingFolder folder;
    InputSetting setting;
    setting.files = {{"form", headings.split(','), -1, -1}};
    saveInputSetting(settingName, setting);
    saveOutputItems(settingName, {columns("all", {0, 1}), columns("first", {1}, {"left(1)"})});
    folder.write("in.csv", input);

    QProcess child;
    startChild(locale, child);
    const QByteArray errors = child.readAllStandardOutput();
    QCOMPARE(child.exitStatus(), QProcess::NormalExit);
    if (output.isEmpty()) {
        QCOMPARE(errors,
                 QByteArray("Input file dose not match with setting.\n"
                            "Please check the input file(s)."));
        QCOMPARE(child.exitCode(), 1);
        return;
    }
    QCOMPARE(errors, QByteArray());
    QCOMPARE(child.exitCode(), 0);
    QCOMPARE(folder.read("out.csv").toHex(' '), ("all,first\n" + output).toHex(' '));
}

void TestLocalesOfShops::everyCharacterOfTheCodePage_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QByteArray>("leadBytes"); // first and last of each range
    QTest::addColumn<QByteArray>("trailBytes");

    QTest::newRow("CP949") << "ko_KR.CP949" << QByteArray("\x81\xC6\xC7\xFE")
                           << QByteArray("\x41\x5A\x61\x7A\x81\xFE");
    QTest::newRow("WINDOWS-31J") << "ja_JP.WINDOWS-31J" << QByteArray("\x81\x9F\xE0\xFC")
                                 << QByteArray("\x40\x7E\x80\xFC");
}

// Every pair of a lead and a trail byte as a field between two others: no pair may move a comma or
// a line end, whether the code page knows it or not.
void TestLocalesOfShops::everyCharacterOfTheCodePage()
{
    QFETCH(QString, locale);
    QFETCH(QByteArray, leadBytes);
    QFETCH(QByteArray, trailBytes);
    if (m_locales.missing().contains(locale))
        QSKIP("NOT TESTED: this locale cannot be made here");
    const auto allOf = [](const QByteArray &ranges) {
        QByteArray bytes;
        for (int i = 0; i < ranges.size(); i += 2) {
            for (int byte = uchar(ranges.at(i)); byte <= uchar(ranges.at(i + 1)); ++byte)
                bytes.append(char(byte));
        }
        return bytes;
    };
    const WorkingFolder folder;
    InputSetting setting;
    setting.files = {{"form", {"a", "b", "c"}, -1, -1}};
    saveInputSetting(settingName, setting);
    saveOutputItems(settingName, {columns("before", {0}), columns("behind", {2})});
    QByteArray input = "a,b,c\n";
    QByteArray output = "before,behind\n";
    int number = 0;
    for (const char lead : allOf(leadBytes)) {
        for (const char trail : allOf(trailBytes)) {
            ++number;
            const QByteArray text = QByteArray::number(number);
            input += text + ',' + lead + trail + ",x" + text + '\n';
            output += text + ",x" + text + '\n';
        }
    }
    folder.write("in.csv", input);
    QProcess child;
    startChild(locale, child);
    QCOMPARE(child.exitCode(), 0);
    QCOMPARE(folder.read("out.csv").split('\n'), output.split('\n'));
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (application.arguments().contains(convertSwitch))
        return convert();
    TestLocalesOfShops test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_locales.moc"
