// The records that the file holds: when two are equal, what a key that is absent stands for, that
// the parallel lists of an output item never get out of step, which texts switch something on, and
// which number means which field of the company.
#include "settings/convertsettings.h"
#include "tests/settings/settingstest.h"

#include <QtTest>
#include <limits>

class TestSettingsRecords : public SettingsTest
{
    Q_OBJECT

private slots:
    void equalityLooksAtEveryField();

    void absentKeysOfAnOutputItem();
    void absentKeysOfAnInputForm();
    void absentDistinctIsNo_data();
    void absentDistinctIsNo();

    void companyValueReadsTheFileEachTime();
    void companyValueByNumber_data();
    void companyValueByNumber();

    void appendingKeepsTheListsParallel();
    void removingKeepsTheListsParallel_data();
    void removingKeepsTheListsParallel();
    void firstConditionChoosesAnd();

    void flagsAreExactTexts_data();
    void flagsAreExactTexts();
};

// --- equality ---------------------------------------------------------------------------------

void TestSettingsRecords::equalityLooksAtEveryField()
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

// --- keys that are absent ---------------------------------------------------------------------

void TestSettingsRecords::absentKeysOfAnOutputItem()
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

void TestSettingsRecords::absentKeysOfAnInputForm()
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

void TestSettingsRecords::absentDistinctIsNo_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("distinct");

    QTest::newRow("absent") << QByteArray("") << "NO";
    QTest::newRow("empty stays empty") << QByteArray("A\\output\\1\\distinct=\n") << "";
    QTest::newRow("any text stays") << QByteArray("A\\output\\1\\distinct=yes\n") << "yes";
}

void TestSettingsRecords::absentDistinctIsNo()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, distinct);
    m_folder->write(settingsFile,
                    "[SettingInfo]\nA\\output\\size=1\nA\\output\\1\\name=a\n" + line);
    QCOMPARE(loadOutputItems(settingName).value(0).distinct, distinct);
}

// --- the company ------------------------------------------------------------------------------

void TestSettingsRecords::companyValueReadsTheFileEachTime()
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

void TestSettingsRecords::companyValueByNumber_data()
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

void TestSettingsRecords::companyValueByNumber()
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

// --- the parallel lists -----------------------------------------------------------------------

void TestSettingsRecords::appendingKeepsTheListsParallel()
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

void TestSettingsRecords::removingKeepsTheListsParallel_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("left");

    QTest::newRow("first") << 0 << "bc";
    QTest::newRow("middle") << 1 << "ac";
    QTest::newRow("last") << 2 << "ab";
    QTest::newRow("behind the last") << 3 << "abc";
    QTest::newRow("before the first") << -1 << "abc";
}

void TestSettingsRecords::removingKeepsTheListsParallel()
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

void TestSettingsRecords::firstConditionChoosesAnd()
{
    OutputItem item;
    QCOMPARE(item.condCombination, QString());
    item.appendCondition(InputSource, 0, QStringLiteral("a"));
    QCOMPARE(item.condCombination, QStringLiteral("AND"));
    item.condCombination = QStringLiteral("OR");
    item.appendCondition(InputSource, 1, QStringLiteral("b"));
    QCOMPARE(item.condCombination, QStringLiteral("OR"));
}

// --- flags ------------------------------------------------------------------------------------

void TestSettingsRecords::flagsAreExactTexts_data()
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

void TestSettingsRecords::flagsAreExactTexts()
{
    QFETCH(QString, text);
    OutputItem item;
    item.distinct = text;
    item.merge = text;
    QTEST(item.isDistinct(), "isDistinct");
    QTEST(item.mergesTexts(), "mergesTexts");
    QTEST(item.mergesNumbers(), "mergesNumbers");
}

QTEST_GUILESS_MAIN(TestSettingsRecords)
#include "tst_settingsrecords.moc"
