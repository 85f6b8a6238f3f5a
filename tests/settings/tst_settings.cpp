// What is saved is read back equal, whatever the texts, names and lists are, and stands in the file
// byte for byte as older versions of this program expect it. Files that other versions have written
// with other spellings of the same values are understood as well.
#include "settings/convertsettings.h"
#include "tests/settings/settingstest.h"

#include <QRegularExpression>
#include <QtTest>

class TestSettings : public SettingsTest
{
    Q_OBJECT

private slots:
    void inputSettingReadsBackEqual();
    void outputItemsReadBackEqual();
    void companyInfoReadsBackEqual();
    void anyTextReadsBackEqual_data();
    void anyTextReadsBackEqual();
    void anyNameReadsBackEqual_data();
    void anyNameReadsBackEqual();
    void listsReadBackEqual_data();
    void listsReadBackEqual();

    void bytesOfASetting();
    void bytesOfTheCompany();
    void storedTextIsRead_data();
    void storedTextIsRead();
    void storedListIsRead_data();
    void storedListIsRead();
};

// --- what is written is read back -------------------------------------------------------------

void TestSettings::inputSettingReadsBackEqual()
{
    const InputSetting input = inputWithEveryFieldDifferent();
    saveInputSetting(settingName, input);
    const InputSetting read = loadInputSetting(settingName);
    QCOMPARE(read.heads, input.heads);
    QCOMPARE(read.ex1, input.ex1);
    QCOMPARE(read.ex2, input.ex2);
    QCOMPARE(read.files.size(), 2);
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(read.files.at(i).name, input.files.at(i).name);
        QCOMPARE(read.files.at(i).heads, input.files.at(i).heads);
        QCOMPARE(read.files.at(i).targetKey, input.files.at(i).targetKey);
        QCOMPARE(read.files.at(i).key, input.files.at(i).key);
    }
    QVERIFY(read == input);
}

void TestSettings::outputItemsReadBackEqual()
{
    const QList<OutputItem> items = {itemWithEveryFieldDifferent(100),
                                     itemWithEveryFieldDifferent(200)};
    saveOutputItems(settingName, items);
    const QList<OutputItem> read = loadOutputItems(settingName);
    QCOMPARE(read.size(), 2);
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(read.at(i).name, items.at(i).name);
        QCOMPARE(read.at(i).mapSources, items.at(i).mapSources);
        QCOMPARE(read.at(i).mapNums, items.at(i).mapNums);
        QCOMPARE(read.at(i).mappings, items.at(i).mappings);
        QCOMPARE(read.at(i).separator, items.at(i).separator);
        QCOMPARE(read.at(i).condSources, items.at(i).condSources);
        QCOMPARE(read.at(i).condNums, items.at(i).condNums);
        QCOMPARE(read.at(i).conditions, items.at(i).conditions);
        QCOMPARE(read.at(i).condRules, items.at(i).condRules);
        QCOMPARE(read.at(i).condCombination, items.at(i).condCombination);
        QCOMPARE(read.at(i).rules, items.at(i).rules);
        QCOMPARE(read.at(i).afterRules, items.at(i).afterRules);
        QCOMPARE(read.at(i).distinct, items.at(i).distinct);
        QCOMPARE(read.at(i).merge, items.at(i).merge);
        QCOMPARE(read.at(i).mergeSeparator, items.at(i).mergeSeparator);
    }
    QVERIFY(read == items);
}

void TestSettings::companyInfoReadsBackEqual()
{
    const CompanyInfo company = companyWithEveryFieldDifferent();
    saveCompanyInfo(company);
    const CompanyInfo read = loadCompanyInfo();
    for (int i = 0; i < CompanyInfo::FieldCount; ++i)
        QCOMPARE(read.fields[i], company.fields[i]);
    QVERIFY(read == company);
}

void TestSettings::anyTextReadsBackEqual_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("empty") << "";
    QTest::newRow("one blank") << " ";
    QTest::newRow("blanks around") << "  a  ";
    QTest::newRow("comma") << "a,b";
    QTest::newRow("comma and blank alone") << ", ";
    QTest::newRow("semicolon") << "a;b";
    QTest::newRow("equals sign") << "a=b";
    QTest::newRow("quotes") << "\"a\" \"\"";
    QTest::newRow("backslash") << "C:\\new\\x41";
    QTest::newRow("line feed") << "a\nb";
    QTest::newRow("carriage return and line feed") << "\r\n";
    QTest::newRow("tab") << "\t";
    QTest::newRow("NUL") << QString(QChar(0));
    QTest::newRow("at sign") << "@";
    QTest::newRow("looks like no value") << "@Invalid()";
    QTest::newRow("looks like a stored object") << "@Variant(\\0)";
    QTest::newRow("looks like a section") << "[SettingInfo]";
    QTest::newRow("looks like a number") << "007";
    QTest::newRow("Korean") << QStringLiteral("주문번호 똠방각하");
    QTest::newRow("Japanese") << QStringLiteral("受注番号 ソ能表");
    QTest::newRow("accents") << QStringLiteral("é ß ¥");
    QTest::newRow("hexadecimal digits behind a Korean letter") << QStringLiteral("한abc");
    QTest::newRow("emoji") << QStringLiteral("😀");
    QTest::newRow("half a surrogate pair") << QString(QChar(0xD83D));
    QTest::newRow("byte-order mark") << QString(QChar(0xFEFF));
    QTest::newRow("a hundred thousand letters") << QString(100000, QLatin1Char('x'));
}

void TestSettings::anyTextReadsBackEqual()
{
    QFETCH(QString, text);
    OutputItem item = itemWithEveryFieldDifferent(1);
    item.name = text;
    item.mappings = QStringList{text, text, QStringLiteral("between"), text};
    item.separator = text;
    item.condRules = QStringList{text, text};
    item.rules = QStringList(text);
    item.mergeSeparator = text;
    saveOutputItems(settingName, {item});
    CompanyInfo company = companyWithEveryFieldDifferent();
    company.fields[CompanyInfo::Address] = text;
    saveCompanyInfo(company);

    const OutputItem read = loadOutputItems(settingName).value(0);
    QCOMPARE(read.name, item.name);
    QCOMPARE(read.mappings, item.mappings);
    QCOMPARE(read.separator, item.separator);
    QCOMPARE(read.condRules, item.condRules);
    QCOMPARE(read.rules, item.rules);
    QCOMPARE(read.mergeSeparator, item.mergeSeparator);
    QCOMPARE(companyValue(CompanyInfo::Address), text);
}

void TestSettings::anyNameReadsBackEqual_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("letters") << "cart";
    QTest::newRow("blanks inside") << "my cart 2";
    QTest::newRow("Korean") << QStringLiteral("우체국 택배");
    QTest::newRow("Japanese") << QStringLiteral("ヤマト 発送");
    QTest::newRow("dots, percent and equals sign") << "..100%=%UC124";
    QTest::newRow("brackets") << "[General]";
    QTest::newRow("backslash") << "a\\b";
    QTest::newRow("comma and quotes") << "a,\"b\"";
    QTest::newRow("emoji") << QStringLiteral("😀");
    QTest::newRow("name of a key of the store itself") << "input";
    QTest::newRow("only digits") << "1";
    QTest::newRow("size") << "size";
}

void TestSettings::anyNameReadsBackEqual()
{
    QFETCH(QString, name);
    const InputSetting input = inputWithEveryFieldDifferent();
    const QList<OutputItem> items = {itemWithEveryFieldDifferent(1)};
    saveInputSetting(name, input);
    saveOutputItems(name, items);
    QCOMPARE(settingNames(), QStringList(name));
    QVERIFY(loadInputSetting(name) == input);
    QVERIFY(loadOutputItems(name) == items);
    removeSetting(name);
    QCOMPARE(settingNames(), QStringList());
}

void TestSettings::listsReadBackEqual_data()
{
    QTest::addColumn<QStringList>("list");

    QTest::newRow("no entry") << QStringList();
    QTest::newRow("one entry") << QStringList{"a"};
    QTest::newRow("one empty entry") << QStringList{""};
    QTest::newRow("two empty entries") << QStringList{"", ""};
    QTest::newRow("empty entry at the end") << QStringList{"a", ""};
    QTest::newRow("one entry with a comma") << QStringList{"a, b"};
    QTest::newRow("entries with commas") << QStringList{"a,b", ",", "c"};
    QTest::newRow("one entry that begins with an at sign") << QStringList{"@a"};
    QTest::newRow("ten thousand entries")
        << QString(9999, QLatin1Char(',')).split(QLatin1Char(','));
}

void TestSettings::listsReadBackEqual()
{
    QFETCH(QStringList, list);
    InputSetting input;
    input.heads = list;
    input.ex1 = list;
    input.ex2 = list;
    input.files = {{QStringLiteral("form"), list, 0, 0}};
    saveInputSetting(settingName, input);
    const InputSetting read = loadInputSetting(settingName);
    QCOMPARE(read.heads, list);
    QCOMPARE(read.ex1, list);
    QCOMPARE(read.ex2, list);
    QCOMPARE(read.files.value(0).heads, list);
}

// --- the bytes --------------------------------------------------------------------------------

void TestSettings::bytesOfASetting()
{
    InputSetting input;
    input.heads = QStringList{QStringLiteral("no"), QStringLiteral("주문")};
    input.ex1 = QStringList{QStringLiteral("one entry")};
    input.files = {{QStringLiteral("cart"), input.heads, -1, -1},
                   {QStringLiteral("受注"), QStringList(), 2, 3}};
    OutputItem item;
    item.name = QStringLiteral("\"q\"; a");
    item.appendMapping(InputSource, 3, QStringLiteral("a, b"));
    item.appendMapping(CompanySource, 7, QStringLiteral("[é]"));
    item.separator = QStringLiteral(" ");
    item.appendCondition(InputSource, 0, QStringLiteral("no"));
    item.rules = QStringList{QStringLiteral("left(3)")};
    item.afterRules = QStringList{QStringLiteral("@x")};
    item.distinct = QStringLiteral("YES");
    item.merge = QStringLiteral("STRING");
    item.mergeSeparator = QStringLiteral("\r\n");
    saveInputSetting(QStringLiteral("설정 1"), input);
    saveOutputItems(QStringLiteral("설정 1"), {item});

    const QStringList expected = {
        R"([SettingInfo])",
        R"(%UC124%UC815%201\input\ex1=one entry)",
        R"(%UC124%UC815%201\input\ex2=@Invalid())",
        R"(%UC124%UC815%201\input\files\1\heads=no, \xc8fc\xbb38)",
        R"(%UC124%UC815%201\input\files\1\key=-1)",
        R"(%UC124%UC815%201\input\files\1\name=cart)",
        R"(%UC124%UC815%201\input\files\1\targetKey=-1)",
        R"(%UC124%UC815%201\input\files\2\heads=@Invalid())",
        R"(%UC124%UC815%201\input\files\2\key=3)",
        R"(%UC124%UC815%201\input\files\2\name=\x53d7\x6ce8)",
        R"(%UC124%UC815%201\input\files\2\targetKey=2)",
        R"(%UC124%UC815%201\input\files\size=2)",
        R"(%UC124%UC815%201\input\heads=no, \xc8fc\xbb38)",
        R"(%UC124%UC815%201\output\1\afterRules=@@x)",
        R"(%UC124%UC815%201\output\1\condCombination=AND)",
        R"(%UC124%UC815%201\output\1\condNums=0)",
        R"(%UC124%UC815%201\output\1\condRules=)",
        R"(%UC124%UC815%201\output\1\condSources=1)",
        R"(%UC124%UC815%201\output\1\conditions=no)",
        R"(%UC124%UC815%201\output\1\distinct=YES)",
        R"(%UC124%UC815%201\output\1\mapNums=3, 7)",
        R"(%UC124%UC815%201\output\1\mapSources=1, 0)",
        R"(%UC124%UC815%201\output\1\mappings="a, b", [\xe9])",
        R"(%UC124%UC815%201\output\1\merge=STRING)",
        R"(%UC124%UC815%201\output\1\mergeSeparator=\r\n)",
        R"(%UC124%UC815%201\output\1\name="\"q\"; a")",
        R"(%UC124%UC815%201\output\1\rules=left(3))",
        R"(%UC124%UC815%201\output\1\separator=" ")",
        R"(%UC124%UC815%201\output\size=1)",
    };
    const QString text = QString::fromLatin1(m_folder->read(settingsFile));
    QCOMPARE(text.trimmed().split(QRegularExpression(QStringLiteral("\r?\n"))), expected);
    QCOMPARE(m_folder->fileNames(), QStringList(settingsFile));
}

void TestSettings::bytesOfTheCompany()
{
    CompanyInfo company = companyWithEveryFieldDifferent();
    company.fields[CompanyInfo::Name] = QStringLiteral("회사");
    company.fields[CompanyInfo::Fax].clear();
    saveCompanyInfo(company);
    const QStringList expected = {
        R"([CompanyInfo])",
        R"(address=address)",
        R"(email=email)",
        R"(fax=)",
        R"(name=\xd68c\xc0ac)",
        R"(postCode=post code)",
        R"(storeName=store name)",
        R"(storeSite=store site)",
        R"(tel=tel)",
    };
    const QString text = QString::fromLatin1(m_folder->read(settingsFile));
    QCOMPARE(text.trimmed().split(QRegularExpression(QStringLiteral("\r?\n"))), expected);
}

void TestSettings::storedTextIsRead_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QString>("text");

    QTest::newRow("plain") << QByteArray("abc") << "abc";
    QTest::newRow("escaped Korean") << QByteArray("\\xc8fc\\xbb38") << QStringLiteral("주문");
    QTest::newRow("quoted") << QByteArray("\"a;b\"") << "a;b";
    QTest::newRow("no value") << QByteArray("@Invalid()") << "";
    QTest::newRow("at sign") << QByteArray("@@a") << "@a";
    QTest::newRow("number") << QByteArray("12") << "12";
    QTest::newRow("truth value") << QByteArray("true") << "true";
    QTest::newRow("byte array") << QByteArray("@ByteArray(abc)") << "abc";
    QTest::newRow("rectangle is no text") << QByteArray("@Rect(1 2 3 4)") << "";
    QTest::newRow("unfinished rectangle is text") << QByteArray("@Rect(") << "@Rect(";
    QTest::newRow("list of two is no text") << QByteArray("a, b") << "";
    QTest::newRow("byte that is not escaped counts as Latin-1")
        << QByteArray("\xE9") << QStringLiteral("é");
    QTest::newRow("comment") << QByteArray("abc ; rest") << "abc";
}

void TestSettings::storedTextIsRead()
{
    QFETCH(QByteArray, stored);
    QFETCH(QString, text);
    m_folder->write(settingsFile,
                    "[SettingInfo]\nA\\output\\size=1\nA\\output\\1\\name=" + stored
                        + "\n[CompanyInfo]\ntel=" + stored + "\n");
    QCOMPARE(loadOutputItems(settingName).value(0).name, text);
    QCOMPARE(companyValue(CompanyInfo::Tel), text);
    QCOMPARE(loadCompanyInfo().value(CompanyInfo::Tel), text);
}

void TestSettings::storedListIsRead_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QStringList>("list");

    QTest::newRow("several entries") << QByteArray("a, b, c") << QStringList{"a", "b", "c"};
    QTest::newRow("no blanks behind the commas") << QByteArray("a,b") << QStringList{"a", "b"};
    QTest::newRow("one entry") << QByteArray("a") << QStringList{"a"};
    QTest::newRow("one quoted entry") << QByteArray("\"a, b\"") << QStringList{"a, b"};
    QTest::newRow("one empty entry") << QByteArray("") << QStringList{""};
    QTest::newRow("two empty entries") << QByteArray(", ") << QStringList{"", ""};
    QTest::newRow("no entry") << QByteArray("@Invalid()") << QStringList();
    QTest::newRow("something else than a list") << QByteArray("@Size(1 2)") << QStringList();
}

void TestSettings::storedListIsRead()
{
    QFETCH(QByteArray, stored);
    QFETCH(QStringList, list);
    m_folder->write(settingsFile,
                    "[SettingInfo]\nA\\input\\heads=" + stored + "\nA\\input\\ex1=" + stored
                        + "\nA\\input\\ex2=" + stored
                        + "\nA\\output\\size=1\nA\\output\\1\\rules=" + stored + "\n");
    const InputSetting input = loadInputSetting(settingName);
    QCOMPARE(input.heads, list);
    QCOMPARE(input.ex1, list);
    QCOMPARE(input.ex2, list);
    QCOMPARE(loadOutputItems(settingName).value(0).rules, list);
}

QTEST_GUILESS_MAIN(TestSettings)
#include "tst_settings.moc"
