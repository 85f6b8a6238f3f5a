// Whatever a user calls a setting, it is listed, read, renamed and removed under that name, and
// does not touch a setting with another name. The library takes "/" for a step into a nested group,
// so the names here are those whose groups come to lie in, above and beside each other.
#include "settings/convertsettings.h"
#include "tests/settings/wholesetting.h"

#include <QtTest>

namespace {

// Those that lie below "a" are called like the groups and keys of a setting themselves.
const QStringList awkwardNames = {
    "a",
    "b",
    "a/b",
    "a/b/c",
    "a//b",
    "/a",
    "a/",
    "/a/",
    "//a",
    "/",
    "//",
    "///",
    "a/b/",
    "a\\b",
    "\\a",
    "a\\",
    "\\",
    "\\\\server\\주문",
    " / ",
    "주문/택배",
    "input",
    "output",
    "PdfSetting",
    "Name",
    "C.O.D.Charge",
    "a/input",
    "a/output",
    "a/PdfSetting",
    "a/C.O.D.Charge",
    "a/Name",
    "a/size",
    "a/1",
    "a/files",
    "a/input/heads",
    "a/input/ex1",
    "a/input/files",
    "a/input/files/size",
    "a/input/files/1",
    "a/input/files/1/name",
    "a/output/size",
    "a/output/1",
    "a/output/1/name",
    "a/output/1/mappings/x",
    "a/PdfSetting/title",
    "a/Name/toPrint",
    "a/input/input/input",
    "a/output/output",
    "input/files",
    "input/files/1",
    "output/1",
    "2019/03/04",
    "../CompanyInfo",
    "SettingInfo/a",
    "CompanyInfo/name",
};

// Those of which each is tried with each other one.
const QStringList closeNames = {
    "a",
    "a/b",
    "a//b",
    "/a",
    "a/",
    "/",
    "//",
    "a\\b",
    "input",
    "a/input",
    "a/output",
    "a/PdfSetting",
    "a/C.O.D.Charge",
    "a/input/heads",
    "a/input/files/1",
    "a/output/size",
    "a/output/1",
};

QStringList sorted(QStringList names)
{
    names.sort();
    return names;
}

ConvertSetting settingOf(const QString &name)
{
    return settingOfSeed(1 + awkwardNames.indexOf(name), 2);
}

} // namespace

class TestSettingNames : public SettingsTest
{
    Q_OBJECT

private slots:
    void nameLives_data();
    void nameLives();
    void everyPairIsKeptApart_data();
    void everyPairIsKeptApart();
    void allOfThemTogether();
    void renamedFromAnyToAnyName_data();
    void renamedFromAnyToAnyName();
    void renamedOntoAnotherOverwritesOnlyThatOne();
    void sameNameAgainOverwrites();
    void emptyOldNameRenamesNothing();

    void innerSlashIsTheLibrarysNesting();
    void groupAboveANestedSettingIsNoSetting();
    void removingThatGroupDoesNothing();
    void unknownKeysStayWithTheirSetting();
    void unknownNestedGroupIsNoSetting();
    void removedBesideWhatOlderSavesLeft();
    void pathsThatTheLibraryCannotReadAreNoSettings_data();
    void pathsThatTheLibraryCannotReadAreNoSettings();
    void namesOfTheStepThatStandsForNothing();
    void listIsAscending();

private:
    static void addRows(const QStringList &names)
    {
        QTest::addColumn<QString>("name");
        for (const QString &name : names)
            QTest::newRow(qPrintable(name)) << name;
    }
};

void TestSettingNames::nameLives_data()
{
    addRows(awkwardNames);
}

void TestSettingNames::nameLives()
{
    QFETCH(QString, name);
    saveCompanyInfo(companyWithEveryFieldDifferent());
    saveConvertSetting(name, settingOf(name));
    QCOMPARE(settingNames(), QStringList(name));
    QVERIFY(loadConvertSetting(name) == settingOf(name));

    const QString newName = QStringLiteral("새 이름");
    saveConvertSetting(newName, settingOf(name), name);
    QCOMPARE(settingNames(), QStringList(newName));
    QVERIFY(loadConvertSetting(newName) == settingOf(name));
    QVERIFY(loadConvertSetting(name) == ConvertSetting());

    saveConvertSetting(name, settingOf(name), newName);
    QCOMPARE(settingNames(), QStringList(name));
    removeSetting(name);
    QCOMPARE(settingNames(), QStringList());
    QVERIFY(!m_folder->read(settingsFile).contains("SettingInfo"));
    QVERIFY(loadCompanyInfo() == companyWithEveryFieldDifferent());
}

void TestSettingNames::everyPairIsKeptApart_data()
{
    addRows(closeNames);
}

void TestSettingNames::everyPairIsKeptApart()
{
    QFETCH(QString, name);
    for (const QString &other : closeNames) {
        if (other == name)
            continue;
        const auto note = [&other] { return qPrintable("beside " + other); };
        m_folder->write(settingsFile, "");
        saveConvertSetting(name, settingOf(name));
        saveConvertSetting(other, settingOf(other));
        QVERIFY2(settingNames() == sorted({name, other}), note());
        QVERIFY2(loadConvertSetting(name) == settingOf(name), note());
        QVERIFY2(loadConvertSetting(other) == settingOf(other), note());
        removeSetting(other);
        QVERIFY2(settingNames() == QStringList(name), note());
        QVERIFY2(loadConvertSetting(name) == settingOf(name), note());
    }
}

void TestSettingNames::allOfThemTogether()
{
    QStringList left = awkwardNames;
    for (const QString &name : awkwardNames)
        saveConvertSetting(name, settingOf(name));
    while (!left.isEmpty()) {
        QCOMPARE(settingNames(), sorted(left));
        // All of them at the beginning, and now and then: that takes long.
        for (int i = 0; left.size() % 10 == awkwardNames.size() % 10 && i < left.size(); ++i) {
            const QString &name = left.at(i);
            QVERIFY2(loadConvertSetting(name) == settingOf(name), qPrintable(name));
        }
        removeSetting(left.takeAt(left.size() / 2));
    }
    QCOMPARE(settingNames(), QStringList());
    QVERIFY(!m_folder->read(settingsFile).contains("SettingInfo"));
}

void TestSettingNames::renamedFromAnyToAnyName_data()
{
    addRows(closeNames);
}

void TestSettingNames::renamedFromAnyToAnyName()
{
    QFETCH(QString, name);
    for (const QString &newName : closeNames) {
        if (newName == name)
            continue;
        m_folder->write(settingsFile, "");
        saveConvertSetting(name, settingOf(name));
        saveConvertSetting(newName, settingOf(newName), name);
        QVERIFY2(settingNames() == QStringList(newName), qPrintable(newName));
        QVERIFY2(loadConvertSetting(newName) == settingOf(newName), qPrintable(newName));
    }
}

void TestSettingNames::renamedOntoAnotherOverwritesOnlyThatOne()
{
    for (const char *name : {"a", "a/b", "a/b/c"})
        saveConvertSetting(name, settingOf(name));
    saveConvertSetting("a", settingOf("b"), "a/b");
    QCOMPARE(settingNames(), (QStringList{"a", "a/b/c"}));
    QVERIFY(loadConvertSetting("a") == settingOf("b"));
    QVERIFY(loadConvertSetting("a/b/c") == settingOf("a/b/c"));
}

void TestSettingNames::sameNameAgainOverwrites()
{
    saveConvertSetting("a/b", settingOfSeed(2, 3));
    saveConvertSetting("a/b", settingOfSeed(1, 1), "a/b");
    QCOMPARE(settingNames(), QStringList("a/b"));
    QVERIFY(loadConvertSetting("a/b") == settingOfSeed(1, 1));
    // A save that renames nothing leaves the entries of the longer list in the file.
    QVERIFY(m_folder->read(settingsFile).contains("\na\\b\\output\\5\\name=name 2004"));
}

void TestSettingNames::emptyOldNameRenamesNothing()
{
    for (const char *name : {"/", "a"})
        saveConvertSetting(name, settingOf(name));
    saveConvertSetting("b", settingOf("b"), "");
    QCOMPARE(settingNames(), (QStringList{"/", "a", "b"}));
}

// Older versions write and read the same.
void TestSettingNames::innerSlashIsTheLibrarysNesting()
{
    saveOutputItems("a/b", {OutputItem()});
    QVERIFY(m_folder->read(settingsFile).contains("[SettingInfo]\na\\b\\output\\1\\"));
    QVERIFY(m_folder->read(settingsFile).contains("\na\\b\\output\\size=1"));
}

void TestSettingNames::groupAboveANestedSettingIsNoSetting()
{
    saveConvertSetting("a/b/c", settingOf("a/b/c"));
    QCOMPARE(settingNames(), QStringList("a/b/c"));
    saveConvertSetting("a/b", settingOf("a/b"));
    QCOMPARE(settingNames(), (QStringList{"a/b", "a/b/c"}));
}

void TestSettingNames::removingThatGroupDoesNothing()
{
    saveConvertSetting("a/b/c", settingOf("a/b/c"));
    const QByteArray before = m_folder->read(settingsFile);
    for (const char *name : {"a", "a/b", "a/b/c/d", "a/b/c/input", "a/b/", "b", "c", ""}) {
        removeSetting(name);
        QCOMPARE(m_folder->read(settingsFile), before);
    }
}

void TestSettingNames::unknownKeysStayWithTheirSetting()
{
    const QByteArray ofA = "a\\Future\\1\\x=1\na\\Future\\x=2\na\\Future\\deep\\er\\x=3\na\\x=4\n";
    const QByteArray ofB = "a\\b\\Future\\1\\x=5\na\\b\\Future\\x=6\na\\b\\output\\size=0\n";
    const QByteArray ofC = "c\\x=7\n";
    const auto values = [this] {
        QByteArray found;
        for (const char digit : QByteArray("1234567")) {
            if (m_folder->read(settingsFile).contains(QByteArray("x=") + digit))
                found += digit;
        }
        return found;
    };
    m_folder->write(settingsFile, "[SettingInfo]\n" + ofA + ofB + ofC);
    QCOMPARE(settingNames(), (QStringList{"a", "a/b", "c"}));
    removeSetting("a/b");
    QCOMPARE(values(), QByteArray("12347"));
    QCOMPARE(settingNames(), (QStringList{"a", "c"}));

    m_folder->write(settingsFile, "[SettingInfo]\n" + ofA + ofB + ofC);
    removeSetting("a");
    QCOMPARE(values(), QByteArray("567"));
    QCOMPARE(settingNames(), (QStringList{"a/b", "c"}));
}

void TestSettingNames::unknownNestedGroupIsNoSetting()
{
    m_folder->write(settingsFile, "[SettingInfo]\na\\b\\c\\d=1\na\\Name\\toPrint=true\n");
    QCOMPARE(settingNames(), QStringList("a"));
    removeSetting("a/b");
    QCOMPARE(settingNames(), QStringList("a"));
    removeSetting("a");
    QCOMPARE(settingNames(), QStringList());
}

void TestSettingNames::removedBesideWhatOlderSavesLeft()
{
    saveConvertSetting("a", settingOfSeed(3, 9));
    saveConvertSetting("a/output/7", settingOf("b"));
    saveConvertSetting("a", settingOf("a")); // shorter: old entries stay in the file
    QCOMPARE(settingNames(), (QStringList{"a", "a/output/7"}));
    removeSetting("a");
    QCOMPARE(settingNames(), QStringList("a/output/7"));
    QVERIFY(loadConvertSetting("a/output/7") == settingOf("b"));
    QVERIFY(!m_folder->read(settingsFile).contains("\na\\output\\8\\"));
}

void TestSettingNames::pathsThatTheLibraryCannotReadAreNoSettings_data()
{
    QTest::addColumn<QByteArray>("key");

    QTest::newRow("doubled separator") << QByteArray("a\\\\b\\output\\size");
    QTest::newRow("separator before the group of a setting") << QByteArray("a\\\\output\\size");
}

void TestSettingNames::pathsThatTheLibraryCannotReadAreNoSettings()
{
    QFETCH(QByteArray, key);
    m_folder->write(settingsFile, "[SettingInfo]\n" + key + "=1\n");
    QCOMPARE(settingNames(), QStringList("a"));
    saveConvertSetting("a/b", settingOf("a/b"));
    QCOMPARE(settingNames(), (QStringList{"a", "a/b"}));
}

// The step that stands for an empty one in the file can be pasted into a name as well.
void TestSettingNames::namesOfTheStepThatStandsForNothing()
{
    const QString nul(QChar(0));
    const QStringList names = {"/a", nul + "/a", nul + nul + "/a", "a/" + nul, "a/", nul};
    for (int i = 0; i < names.size(); ++i)
        saveConvertSetting(names.at(i), settingOfSeed(i, 1));
    QCOMPARE(settingNames(), sorted(names));
    for (int i = 0; i < names.size(); ++i)
        QVERIFY(loadConvertSetting(names.at(i)) == settingOfSeed(i, 1));
}

void TestSettingNames::listIsAscending()
{
    for (const char *name : {"b", "a/c", "a b", "a", "a0", "a/b", "10/9", "9", "/"})
        saveOutputItems(name, {});
    QCOMPARE(settingNames(), (QStringList{"/", "10/9", "9", "a", "a b", "a/b", "a/c", "a0", "b"}));
}

QTEST_GUILESS_MAIN(TestSettingNames)
#include "tst_settingnames.moc"
