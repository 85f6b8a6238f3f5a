// The settings file: what is written, byte by byte, and what is read back from files that this
// program, an older one or an accident has written.
#include "settings/companyinfo.h"
#include "settings/convertsettings.h"
#include "settings/inputsetting.h"
#include "settings/outputitem.h"
#include "settings/settings.h"
#include "tests/settings/workingfolder.h"

#include <QProcess>
#include <QtTest>

#if defined(Q_OS_UNIX) && !defined(__SANITIZE_ADDRESS__)
#include <sys/resource.h>
#endif

namespace {

const QString settingsFile = QStringLiteral("quorinConverter.dat");
const QString settingName = QStringLiteral("A");
const QString loadSwitch = QStringLiteral("--load");

// Every field differs from every other, so that no two keys can be taken for one another.
OutputItem itemWithEveryFieldDifferent(int seed)
{
    const auto text = [seed](const char *field) {
        return QStringLiteral("%1 %2").arg(QLatin1String(field)).arg(seed);
    };
    OutputItem item;
    item.name = text("name");
    item.mapSources = {1, 0, seed};
    item.mapNums = {seed + 10, seed + 11, seed + 12};
    item.mappings = QStringList{text("first"), text("second"), text("third")};
    item.separator = text("separator");
    item.condSources = {0, seed + 1};
    item.condNums = {seed + 20, seed + 21};
    item.conditions = QStringList{text("tested"), text("tested too")};
    item.condRules = QStringList{text("equalTo"), QString()};
    item.condCombination = text("combination");
    item.rules = QStringList{text("left"), text("right")};
    item.afterRules = QStringList{text("after"), text("then")};
    item.distinct = text("distinct");
    item.merge = text("merge");
    item.mergeSeparator = text("merge separator");
    return item;
}

InputSetting inputWithEveryFieldDifferent()
{
    InputSetting input;
    input.heads = QStringList{QStringLiteral("item 1"), QStringLiteral("item 2")};
    input.ex1 = QStringList{QStringLiteral("example 1"), QStringLiteral("example 2")};
    input.ex2 = QStringList{QStringLiteral("example 3"), QStringLiteral("example 4")};
    input.files = {{QStringLiteral("form 1"), {QStringLiteral("a"), QStringLiteral("b")}, -1, -2},
                   {QStringLiteral("form 2"), {QStringLiteral("c"), QStringLiteral("d")}, 3, 4}};
    return input;
}

CompanyInfo companyWithEveryFieldDifferent()
{
    CompanyInfo company;
    company.fields = {QStringLiteral("company name"), QStringLiteral("store name"),
                      QStringLiteral("store site"),   QStringLiteral("post code"),
                      QStringLiteral("address"),      QStringLiteral("tel"),
                      QStringLiteral("fax"),          QStringLiteral("email")};
    return company;
}

QStringList itemNames(const QList<OutputItem> &items)
{
    QStringList names;
    for (const OutputItem &item : items)
        names.append(item.name);
    return names;
}

// Loads all there is, as the program does in the course of a conversion. Runs in a process of its
// own, so that a crash or an endless loop is one failing test and not the end of all.
int loadEverything()
{
#if defined(Q_OS_UNIX) && !defined(__SANITIZE_ADDRESS__)
    // On a small machine: what a file announces must not be believed.
    const rlimit fourGigabytes = {rlim_t(4) << 30, rlim_t(4) << 30};
    setrlimit(RLIMIT_AS, &fourGigabytes);
#endif
    InputSetting input;
    QList<OutputItem> items;
    for (const QString &name : settingNames()) {
        input = loadInputSetting(name);
        items = loadOutputItems(name);
    }
    loadCompanyInfo();
    return 0;
}

} // namespace

class TestSettings : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void inputSettingReadsBackEqual();
    void outputItemsReadBackEqual();
    void companyInfoReadsBackEqual();
    void equalityLooksAtEveryField();
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

    void absentKeysOfAnOutputItem();
    void absentKeysOfAnInputForm();
    void absentDistinctIsNo_data();
    void absentDistinctIsNo();
    void missingFileIsEmpty();
    void fileWithoutSettingInfoHasNoSettings();
    void emptySecondExampleIsNoRow();
    void numbersThatAreNoneReadAsZero();
    void shrunkSettingKeepsTheOldEntry();
    void savingKeepsForeignKeys();
    void savingOnePartKeepsTheOther();

    void fileIsLookedForInTheCurrentFolder();
    void changeIsSeenWithoutRestart();
    void companyValueReadsTheFileEachTime();
    void companyValueByNumber_data();
    void companyValueByNumber();

    void namesAreAscending();
    void removedSettingIsGone();
    void removingWhatIsNotThereDoesNothing_data();
    void removingWhatIsNotThereDoesNothing();
    void renamedSettingIsOneGroup();

    void appendingKeepsTheListsParallel();
    void removingKeepsTheListsParallel_data();
    void removingKeepsTheListsParallel();
    void firstConditionChoosesAnd();
    void flagsAreExactTexts_data();
    void flagsAreExactTexts();

    void damagedFileIsRead_data();
    void damagedFileIsRead();
    void damagedFileNeitherCrashesNorHangs_data();
    void damagedFileNeitherCrashesNorHangs();
    void everyTruncationIsRead();
    void settingsFileThatIsAFolderIsEmpty();

private:
    QScopedPointer<WorkingFolder> m_folder;
};

void TestSettings::init()
{
    m_folder.reset(new WorkingFolder);
}

void TestSettings::cleanup()
{
    m_folder.reset();
}

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

void TestSettings::equalityLooksAtEveryField()
{
    const OutputItem item = itemWithEveryFieldDifferent(1);
    const QList<void (*)(OutputItem &)> itemChanges = {
        [](OutputItem &changed) { changed.name.clear(); },
        [](OutputItem &changed) { changed.mapSources.clear(); },
        [](OutputItem &changed) { changed.mapNums.clear(); },
        [](OutputItem &changed) { changed.mappings.clear(); },
        [](OutputItem &changed) { changed.separator.clear(); },
        [](OutputItem &changed) { changed.condSources.clear(); },
        [](OutputItem &changed) { changed.condNums.clear(); },
        [](OutputItem &changed) { changed.conditions.clear(); },
        [](OutputItem &changed) { changed.condRules.clear(); },
        [](OutputItem &changed) { changed.condCombination.clear(); },
        [](OutputItem &changed) { changed.rules.clear(); },
        [](OutputItem &changed) { changed.afterRules.clear(); },
        [](OutputItem &changed) { changed.distinct.clear(); },
        [](OutputItem &changed) { changed.merge.clear(); },
        [](OutputItem &changed) { changed.mergeSeparator.clear(); },
    };
    QCOMPARE(itemChanges.size(), 15);
    for (int i = 0; i < itemChanges.size(); ++i) {
        OutputItem changed = item;
        itemChanges.at(i)(changed);
        QVERIFY2(!(changed == item), qPrintable(QString::number(i)));
    }

    const InputSetting input = inputWithEveryFieldDifferent();
    const QList<void (*)(InputSetting &)> inputChanges = {
        [](InputSetting &changed) { changed.heads.clear(); },
        [](InputSetting &changed) { changed.ex1.clear(); },
        [](InputSetting &changed) { changed.ex2.clear(); },
        [](InputSetting &changed) { changed.files.clear(); },
        [](InputSetting &changed) { changed.files[0].name.clear(); },
        [](InputSetting &changed) { changed.files[0].heads.clear(); },
        [](InputSetting &changed) { changed.files[1].targetKey = 0; },
        [](InputSetting &changed) { changed.files[1].key = 0; },
    };
    for (int i = 0; i < inputChanges.size(); ++i) {
        InputSetting changed = input;
        inputChanges.at(i)(changed);
        QVERIFY2(!(changed == input), qPrintable(QString::number(i)));
    }
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

// --- what is absent ---------------------------------------------------------------------------

void TestSettings::absentKeysOfAnOutputItem()
{
    m_folder->write(settingsFile, "[SettingInfo]\nA\\output\\size=1\n");
    OutputItem expected;
    expected.distinct = QStringLiteral("NO");
    const QList<OutputItem> items = loadOutputItems(settingName);
    QCOMPARE(items.size(), 1);
    QVERIFY(items.first() == expected);
    QVERIFY(!items.first().isDistinct());
    QVERIFY(!items.first().mergesTexts());
    QVERIFY(!items.first().mergesNumbers());
}

void TestSettings::absentKeysOfAnInputForm()
{
    m_folder->write(settingsFile, "[SettingInfo]\nA\\input\\files\\size=1\n");
    const InputSetting input = loadInputSetting(settingName);
    QCOMPARE(input.heads, QStringList());
    QCOMPARE(input.ex1, QStringList());
    QCOMPARE(input.ex2, QStringList());
    QCOMPARE(input.files.size(), 1);
    QCOMPARE(input.files.first().name, QString());
    QCOMPARE(input.files.first().heads, QStringList());
    QCOMPARE(input.files.first().targetKey, 0);
    QCOMPARE(input.files.first().key, 0);
}

void TestSettings::absentDistinctIsNo_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("distinct");

    QTest::newRow("absent") << QByteArray("") << "NO";
    QTest::newRow("empty stays empty") << QByteArray("A\\output\\1\\distinct=\n") << "";
    QTest::newRow("any text stays") << QByteArray("A\\output\\1\\distinct=yes\n") << "yes";
}

void TestSettings::absentDistinctIsNo()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, distinct);
    m_folder->write(settingsFile,
                    "[SettingInfo]\nA\\output\\size=1\nA\\output\\1\\name=a\n" + line);
    QCOMPARE(loadOutputItems(settingName).value(0).distinct, distinct);
}

void TestSettings::missingFileIsEmpty()
{
    QCOMPARE(settingNames(), QStringList());
    QVERIFY(loadInputSetting(settingName) == InputSetting());
    QVERIFY(loadOutputItems(settingName).isEmpty());
    QVERIFY(loadCompanyInfo() == CompanyInfo());
    QCOMPARE(m_folder->fileNames(), QStringList()); // reading makes no file
}

void TestSettings::fileWithoutSettingInfoHasNoSettings()
{
    saveCompanyInfo(companyWithEveryFieldDifferent());
    QCOMPARE(settingNames(), QStringList());
    QVERIFY(loadInputSetting(settingName) == InputSetting());
}

void TestSettings::emptySecondExampleIsNoRow()
{
    InputSetting input;
    input.heads = QStringList{QStringLiteral("a"), QStringLiteral("b")};
    saveInputSetting(settingName, input);
    QVERIFY(m_folder->read(settingsFile).contains("A\\input\\ex1=@Invalid()"));
    QVERIFY(m_folder->read(settingsFile).contains("A\\input\\ex2=@Invalid()"));
    const InputSetting read = loadInputSetting(settingName);
    QCOMPARE(read.heads, input.heads);
    QVERIFY(read.ex1.isEmpty());
    QVERIFY(read.ex2.isEmpty());
}

void TestSettings::numbersThatAreNoneReadAsZero()
{
    m_folder->write(settingsFile,
                    "[SettingInfo]\nA\\output\\size=1\n"
                    "A\\output\\1\\mapNums=3, x\n"
                    "A\\output\\1\\mapSources=1, \n"
                    "A\\output\\1\\condNums=-7, 1.5, 99999999999\n"
                    "A\\output\\1\\condSources=x\n"
                    "A\\input\\files\\size=2\n"
                    "A\\input\\files\\1\\key=x\n"
                    "A\\input\\files\\1\\targetKey=-12\n"
                    "A\\input\\files\\2\\key=4294967297\n"
                    "A\\input\\files\\2\\targetKey=-3000000000\n");
    const OutputItem item = loadOutputItems(settingName).value(0);
    QCOMPARE(item.mapNums, (QList<int>{3, 0}));
    QCOMPARE(item.mapSources, (QList<int>{1, 0}));
    QCOMPARE(item.condNums, (QList<int>{-7, 0, 0}));
    QCOMPARE(item.condSources, QList<int>{0});
    const InputForm form = loadInputSetting(settingName).files.value(0);
    QCOMPARE(form.key, 0);
    QCOMPARE(form.targetKey, -12);
    const InputForm beyond32Bits = loadInputSetting(settingName).files.value(1);
    QCOMPARE(beyond32Bits.key, 0);
    QCOMPARE(beyond32Bits.targetKey, 0);
}

void TestSettings::shrunkSettingKeepsTheOldEntry()
{
    OutputItem first, second, third;
    first.name = QStringLiteral("first");
    second.name = QStringLiteral("second");
    third.name = QStringLiteral("third");
    saveOutputItems(settingName, {first, second, third});
    InputSetting input = inputWithEveryFieldDifferent();
    saveInputSetting(settingName, input);

    saveOutputItems(settingName, {second, first});
    input.files.removeLast();
    saveInputSetting(settingName, input);

    QCOMPARE(itemNames(loadOutputItems(settingName)),
             (QStringList{QStringLiteral("second"), QStringLiteral("first")}));
    QVERIFY(loadInputSetting(settingName) == input);
    // Required: the entries beyond the size stay in the file and are not read.
    const QByteArray bytes = m_folder->read(settingsFile);
    QVERIFY(bytes.contains("A\\output\\size=2"));
    QVERIFY(bytes.contains("A\\output\\3\\name=third"));
    QVERIFY(bytes.contains("A\\input\\files\\size=1"));
    QVERIFY(bytes.contains("A\\input\\files\\2\\name=form 2"));

    saveOutputItems(settingName, {});
    QCOMPARE(loadOutputItems(settingName).size(), 0);
    QVERIFY(m_folder->read(settingsFile).contains("A\\output\\size=0"));
}

void TestSettings::savingKeepsForeignKeys()
{
    m_folder->write(settingsFile,
                    "[SettingInfo]\nA\\PdfSetting\\generate=true\n"
                    "A\\Name\\separator=x\n[Other]\nkey=value\n");
    saveInputSetting(settingName, inputWithEveryFieldDifferent());
    saveOutputItems(settingName, {itemWithEveryFieldDifferent(1)});
    saveCompanyInfo(companyWithEveryFieldDifferent());
    const QByteArray bytes = m_folder->read(settingsFile);
    QVERIFY(bytes.contains("A\\PdfSetting\\generate=true"));
    QVERIFY(bytes.contains("A\\Name\\separator=x"));
    QVERIFY(bytes.contains("key=value"));
}

void TestSettings::savingOnePartKeepsTheOther()
{
    const InputSetting input = inputWithEveryFieldDifferent();
    const QList<OutputItem> items = {itemWithEveryFieldDifferent(1)};
    saveInputSetting(settingName, input);
    saveOutputItems(QStringLiteral("B"), items);
    saveOutputItems(settingName, items);
    saveInputSetting(QStringLiteral("B"), input);
    for (const QString &name : settingNames()) {
        QVERIFY(loadInputSetting(name) == input);
        QVERIFY(loadOutputItems(name) == items);
    }
    QCOMPARE(settingNames(), (QStringList{settingName, QStringLiteral("B")}));
}

// --- which file, and when ---------------------------------------------------------------------

void TestSettings::fileIsLookedForInTheCurrentFolder()
{
    saveOutputItems(QStringLiteral("first shop"), {OutputItem()});
    const WorkingFolder secondFolder;
    QCOMPARE(settingNames(), QStringList());
    saveOutputItems(QStringLiteral("second shop"), {OutputItem()});
    QCOMPARE(settingNames(), QStringList(QStringLiteral("second shop")));
    m_folder->enter();
    QCOMPARE(settingNames(), QStringList(QStringLiteral("first shop")));

    // An object that is open keeps to the file it has opened.
    Settings settings(nullptr);
    secondFolder.enter();
    settings.beginGroup(QStringLiteral("SettingInfo"));
    QCOMPARE(settings.childGroups(), QStringList(QStringLiteral("first shop")));
    QCOMPARE(settings.format(), QSettings::IniFormat);
    QCOMPARE(QFileInfo(settings.fileName()).fileName(), settingsFile);
}

void TestSettings::changeIsSeenWithoutRestart()
{
    saveOutputItems(settingName, {itemWithEveryFieldDifferent(1)});
    QCOMPARE(loadOutputItems(settingName).size(), 1);
    m_folder->write(settingsFile,
                    "[SettingInfo]\nB\\output\\size=2\n"
                    "B\\output\\2\\name=written by another program\n");
    QCOMPARE(settingNames(), QStringList(QStringLiteral("B")));
    QCOMPARE(loadOutputItems(settingName).size(), 0);
    QCOMPARE(itemNames(loadOutputItems(QStringLiteral("B"))),
             (QStringList{QString(), QStringLiteral("written by another program")}));
    QVERIFY(QFile::remove(m_folder->path(settingsFile)));
    QCOMPARE(settingNames(), QStringList());
}

void TestSettings::companyValueReadsTheFileEachTime()
{
    CompanyInfo company = companyWithEveryFieldDifferent();
    saveCompanyInfo(company);
    QCOMPARE(companyValue(CompanyInfo::Name), QStringLiteral("company name"));
    company.fields[CompanyInfo::Name] = QStringLiteral("another name");
    saveCompanyInfo(company);
    QCOMPARE(companyValue(CompanyInfo::Name), QStringLiteral("another name"));
    m_folder->write(settingsFile, "[CompanyInfo]\nname=a name from outside\n");
    QCOMPARE(companyValue(CompanyInfo::Name), QStringLiteral("a name from outside"));
}

void TestSettings::companyValueByNumber_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");

    QTest::newRow("0 is the company name") << 0 << "company name";
    QTest::newRow("1 is the store name") << 1 << "store name";
    QTest::newRow("2 is the store site") << 2 << "store site";
    QTest::newRow("3 is the postal code") << 3 << "post code";
    QTest::newRow("4 is the address") << 4 << "address";
    QTest::newRow("5 is the telephone, its key being tel") << 5 << "tel";
    QTest::newRow("6 is the fax") << 6 << "fax";
    QTest::newRow("7 is the e-mail address") << 7 << "email";
    QTest::newRow("8 is nothing") << 8 << "";
    QTest::newRow("-1 is nothing") << -1 << "";
    QTest::newRow("the greatest number is nothing") << std::numeric_limits<int>::max() << "";
    QTest::newRow("the least number is nothing") << std::numeric_limits<int>::min() << "";
}

void TestSettings::companyValueByNumber()
{
    QFETCH(int, number);
    QFETCH(QString, text);
    m_folder->write(settingsFile,
                    "[CompanyInfo]\nname=company name\nstoreName=store name\n"
                    "storeSite=store site\npostCode=post code\naddress=address\n"
                    "tel=tel\nfax=fax\nemail=email\nphone=no such field\n");
    QCOMPARE(companyValue(number), text);
    QCOMPARE(loadCompanyInfo().value(number), text);
}

// --- names ------------------------------------------------------------------------------------

void TestSettings::namesAreAscending()
{
    for (const char *name : {"b", "a", "10", "9", "B"})
        saveOutputItems(QString::fromLatin1(name), {});
    saveOutputItems(QStringLiteral("가"), {});
    QCOMPARE(settingNames(), (QStringList{"10", "9", "B", "a", "b", QStringLiteral("가")}));
}

void TestSettings::removedSettingIsGone()
{
    saveInputSetting(settingName, inputWithEveryFieldDifferent());
    saveOutputItems(settingName, {itemWithEveryFieldDifferent(1)});
    saveInputSetting(QStringLiteral("AB"), inputWithEveryFieldDifferent());
    saveCompanyInfo(companyWithEveryFieldDifferent());
    removeSetting(settingName);
    QCOMPARE(settingNames(), QStringList(QStringLiteral("AB")));
    QVERIFY(loadInputSetting(settingName) == InputSetting());
    QVERIFY(loadOutputItems(settingName).isEmpty());
    QVERIFY(loadInputSetting(QStringLiteral("AB")) == inputWithEveryFieldDifferent());
    QVERIFY(loadCompanyInfo() == companyWithEveryFieldDifferent());
    QVERIFY(!m_folder->read(settingsFile).contains("\nA\\"));
}

void TestSettings::removingWhatIsNotThereDoesNothing_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("another name") << "B";
    QTest::newRow("another case") << "a";
    QTest::newRow("empty name") << "";
    QTest::newRow("one slash") << "/";
    QTest::newRow("two slashes") << "//";
    QTest::newRow("parent folder") << "..";
    QTest::newRow("the other group") << "../CompanyInfo";
}

void TestSettings::removingWhatIsNotThereDoesNothing()
{
    QFETCH(QString, name);
    saveOutputItems(settingName, {itemWithEveryFieldDifferent(1)});
    saveCompanyInfo(companyWithEveryFieldDifferent());
    removeSetting(name);
    QCOMPARE(settingNames(), QStringList(settingName));
    QVERIFY(loadCompanyInfo() == companyWithEveryFieldDifferent());
}

void TestSettings::renamedSettingIsOneGroup()
{
    const QString newName = QStringLiteral("새 이름");
    saveOutputItems(settingName, {itemWithEveryFieldDifferent(1)});
    saveOutputItems(newName, loadOutputItems(settingName));
    removeSetting(settingName);
    QCOMPARE(settingNames(), QStringList(newName));
    QVERIFY(loadOutputItems(newName).value(0) == itemWithEveryFieldDifferent(1));
}

// --- the parallel lists -----------------------------------------------------------------------

void TestSettings::appendingKeepsTheListsParallel()
{
    OutputItem item;
    item.appendMapping(InputSource, 4, QStringLiteral("heading"));
    item.appendMapping(CompanySource, 5, QStringLiteral("[field]"));
    QCOMPARE(item.mapSources, (QList<int>{1, 0}));
    QCOMPARE(item.mapNums, (QList<int>{4, 5}));
    QCOMPARE(item.mappings, (QStringList{"heading", "[field]"}));

    item.appendCondition(CompanySource, 6, QStringLiteral("[tested]"));
    item.condRules[0] = QStringLiteral("equalTo(a)");
    item.appendCondition(InputSource, 7, QStringLiteral("tested"));
    QCOMPARE(item.condSources, (QList<int>{0, 1}));
    QCOMPARE(item.condNums, (QList<int>{6, 7}));
    QCOMPARE(item.conditions, (QStringList{"[tested]", "tested"}));
    QCOMPARE(item.condRules, (QStringList{"equalTo(a)", ""}));
}

void TestSettings::removingKeepsTheListsParallel_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("left");

    QTest::newRow("first") << 0 << "bc";
    QTest::newRow("middle") << 1 << "ac";
    QTest::newRow("last") << 2 << "ab";
    QTest::newRow("behind the last") << 3 << "abc";
    QTest::newRow("before the first") << -1 << "abc";
}

void TestSettings::removingKeepsTheListsParallel()
{
    QFETCH(int, index);
    QFETCH(QString, left);
    OutputItem item;
    OutputItem expected;
    for (const QChar letter : QStringLiteral("abc")) {
        item.appendMapping(letter.unicode(), letter.unicode() + 100, letter);
        item.appendCondition(letter.unicode() + 200, letter.unicode() + 300, letter);
        item.condRules.last() = letter;
    }
    for (const QChar letter : left) {
        expected.appendMapping(letter.unicode(), letter.unicode() + 100, letter);
        expected.appendCondition(letter.unicode() + 200, letter.unicode() + 300, letter);
        expected.condRules.last() = letter;
    }
    item.removeMapping(index);
    item.removeCondition(index);
    QVERIFY(item == expected);

    // A damaged file can bring lists of different lengths.
    item.mapNums.clear();
    item.condRules.clear();
    for (int i = 5; i >= -1; --i) {
        item.removeMapping(i);
        item.removeCondition(i);
    }
    QCOMPARE(item.mappings, QStringList());
    QCOMPARE(item.conditions, QStringList());
}

void TestSettings::firstConditionChoosesAnd()
{
    OutputItem item;
    QCOMPARE(item.condCombination, QString());
    item.appendCondition(InputSource, 0, QStringLiteral("a"));
    QCOMPARE(item.condCombination, QStringLiteral("AND"));
    item.condCombination = QStringLiteral("OR");
    item.appendCondition(InputSource, 1, QStringLiteral("b"));
    QCOMPARE(item.condCombination, QStringLiteral("OR"));
}

void TestSettings::flagsAreExactTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isDistinct");
    QTest::addColumn<bool>("mergesTexts");
    QTest::addColumn<bool>("mergesNumbers");

    QTest::newRow("YES") << "YES" << true << false << false;
    QTest::newRow("STRING") << "STRING" << false << true << false;
    QTest::newRow("NUMBER") << "NUMBER" << false << false << true;
    QTest::newRow("yes") << "yes" << false << false << false;
    QTest::newRow("blank behind") << "YES " << false << false << false;
    QTest::newRow("NO") << "NO" << false << false << false;
    QTest::newRow("string") << "string" << false << false << false;
    QTest::newRow("true") << "true" << false << false << false;
    QTest::newRow("empty") << "" << false << false << false;
}

void TestSettings::flagsAreExactTexts()
{
    QFETCH(QString, text);
    OutputItem item;
    item.distinct = text;
    item.merge = text;
    QTEST(item.isDistinct(), "isDistinct");
    QTEST(item.mergesTexts(), "mergesTexts");
    QTEST(item.mergesNumbers(), "mergesNumbers");
}

// --- damage -----------------------------------------------------------------------------------

void TestSettings::damagedFileIsRead_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<int>("formCount");
    QTest::addColumn<int>("itemCount");

    const QByteArray begin("[SettingInfo]\n");
    const QStringList none;
    const QStringList onlyA(settingName);
    QTest::newRow("empty file") << QByteArray("") << none << 0 << 0;
    QTest::newRow("no section") << QByteArray("A\\output\\size=3\n") << none << 0 << 0;
    QTest::newRow("unfinished section") << QByteArray("[SettingInfo") << none << 0 << 0;
    QTest::newRow("only NULs") << QByteArray(1000, '\0') << none << 0 << 0;
    QTest::newRow("NULs behind the section") << begin + QByteArray(1000, '\0') << none << 0 << 0;
    QTest::newRow("key without a value") << begin + "A\\output\\size" << none << 0 << 0;
    QTest::newRow("value without a key") << begin + "=3\n" << none << 0 << 0;
    QTest::newRow("cut behind the equals sign") << begin + "A\\output\\size=" << onlyA << 0 << 0;
    QTest::newRow("size is a text") << begin + "A\\output\\size=x\nA\\input\\files\\size=x\n"
                                    << onlyA << 0 << 0;
    QTest::newRow("size is a list") << begin + "A\\output\\size=1, 2\nA\\input\\files\\size=1, 2\n"
                                    << onlyA << 0 << 0;
    QTest::newRow("size is broken") << begin + "A\\output\\size=2.5\nA\\input\\files\\size=2.5\n"
                                    << onlyA << 0 << 0;
    QTest::newRow("size is negative")
        << begin + "A\\output\\size=-1\nA\\input\\files\\size=-2147483648\n"
        << onlyA << 0 << 0;
    QTest::newRow("size is no value")
        << begin + "A\\output\\size=@Invalid()\nA\\input\\files\\size=@Rect(1 2 3 4)\n"
        << onlyA << 0 << 0;
    QTest::newRow("size is missing") << begin + "A\\output\\1\\name=a\nA\\input\\files\\1\\name=a\n"
                                     << onlyA << 0 << 0;
    QTest::newRow("size exceeds the entries")
        << begin + "A\\output\\size=3\nA\\output\\1\\name=a\nA\\input\\files\\size=2\n"
        << onlyA << 2 << 3;
    QTest::newRow("byte-order mark before the section") << QByteArray("\xEF\xBB\xBF") + begin
            + "A\\output\\size=1\n" << onlyA << 0 << 1;
    QTest::newRow("carriage returns")
        << QByteArray("[SettingInfo]\r\nA\\output\\size=1\r\nA\\input\\files\\size=2\r\n") << onlyA
        << 2 << 1;
    QTest::newRow("old line ends")
        << QByteArray("[SettingInfo]\rA\\output\\size=1\rA\\input\\files\\size=2\r") << onlyA << 2
        << 1;
}

void TestSettings::damagedFileIsRead()
{
    QFETCH(QByteArray, bytes);
    m_folder->write(settingsFile, bytes);
    QTEST(settingNames(), "names");
    QTEST(loadInputSetting(settingName).files.size(), "formCount");
    QTEST(loadOutputItems(settingName).size(), "itemCount");
    QVERIFY(loadCompanyInfo() == CompanyInfo());
    QCOMPARE(m_folder->read(settingsFile), bytes); // reading repairs nothing
}

void TestSettings::damagedFileNeitherCrashesNorHangs_data()
{
    QTest::addColumn<QByteArray>("bytes");

    const QByteArray begin("[SettingInfo]\n");
    const auto everywhere = [&begin](const QByteArray &value) {
        return begin + "A\\input\\heads=" + value
            + "\nA\\input\\files\\size=1\nA\\input\\files\\1\\key=" + value
            + "\nA\\input\\files\\1\\name=" + value + "\nA\\output\\size=1\n"
            + "A\\output\\1\\mapNums=" + value + "\n[CompanyInfo]\nname=" + value + "\n";
    };
    QByteArray allBytes;
    for (int i = 0; i < 256 * 40; ++i)
        allBytes.append(char(i * 7 + i / 256));
    QTest::newRow("every byte") << allBytes;
    QTest::newRow("every byte behind the section") << begin + allBytes;
    QTest::newRow("every byte as a value") << begin + "A\\output\\size=" + allBytes;
    QTest::newRow("a line of ten million letters") << begin + QByteArray(10000000, 'x');
    QTest::newRow("a key of a million levels")
        << begin + QByteArray("a\\").repeated(1000000) + "=1\n";
    QTest::newRow("a list of a million entries")
        << begin + "A\\input\\heads=" + QByteArray(1000000, ',') + "\n";
    QTest::newRow("a quote that does not end")
        << begin + "A\\input\\heads=\"a\nA\\output\\size=1\n";
    QTest::newRow("size of two thousand million")
        << begin + "A\\output\\size=2000000000\nA\\input\\files\\size=2000000000\n";
    QTest::newRow("size beyond 32 bits")
        << begin + "A\\output\\size=99999999999\nA\\input\\files\\size=99999999999\n";
    QTest::newRow("size of two thousand million, and the last entry is there")
        << begin + "A\\output\\size=2000000000\nA\\output\\2000000000\\name=last\n";
    QTest::newRow("unfinished stored object") << everywhere("@Variant(");
    QTest::newRow("stored object of a type that is not there")
        << everywhere("@Variant(\\0\\0\\0\\x41\\0)");
    QTest::newRow("stored list that announces a thousand million entries")
        << everywhere("@Variant(\\0\\0\\0\\x9\\x3f\\xff\\xff\\xff)");
    QTest::newRow("stored text that announces two thousand million letters")
        << everywhere("@Variant(\\0\\0\\0\\xa\\x7f\\xff\\xff\\xff)");
}

void TestSettings::damagedFileNeitherCrashesNorHangs()
{
    QFETCH(QByteArray, bytes);
    m_folder->write(settingsFile, bytes);
    // A refused allocation is the program's own affair, also under the address sanitizer.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("ASAN_OPTIONS", "allocator_may_return_null=1");
    QProcess child;
    child.setProcessEnvironment(environment);
    child.setProcessChannelMode(QProcess::MergedChannels);
    child.start(QCoreApplication::applicationFilePath(), QStringList(loadSwitch));
    const bool ended = child.waitForFinished(15000);
    if (!ended)
        child.kill();
    child.waitForFinished();
    QVERIFY2(ended, "reading did not come to an end");
    QVERIFY2(child.exitStatus() == QProcess::NormalExit && child.exitCode() == 0,
             child.readAll().constData());
}

// A file cut anywhere reads as what is left of it.
void TestSettings::everyTruncationIsRead()
{
    saveInputSetting(settingName, inputWithEveryFieldDifferent());
    saveOutputItems(settingName, {itemWithEveryFieldDifferent(1), itemWithEveryFieldDifferent(2)});
    const QByteArray bytes = m_folder->read(settingsFile);
    for (int size = 0; size < bytes.size(); ++size) {
        m_folder->write(settingsFile, bytes.left(size));
        QVERIFY(settingNames().size() <= 1);
        QVERIFY(loadInputSetting(settingName).files.size() <= 2);
        QVERIFY(loadOutputItems(settingName).size() <= 2);
    }
}

void TestSettings::settingsFileThatIsAFolderIsEmpty()
{
    QVERIFY(QDir::current().mkdir(settingsFile));
    QCOMPARE(settingNames(), QStringList());
    QVERIFY(loadInputSetting(settingName) == InputSetting());
    saveCompanyInfo(companyWithEveryFieldDifferent()); // a write that fails is not reported
    QVERIFY(loadCompanyInfo() == CompanyInfo());
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (application.arguments().contains(loadSwitch))
        return loadEverything();
    TestSettings test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_settings.moc"
