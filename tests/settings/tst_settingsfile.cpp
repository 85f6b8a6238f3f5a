// The settings file as a whole: where it is looked for, when it is read, and that saving, renaming
// or removing one setting leaves alone everything else that stands in the file, including what this
// program does not know. A file or a part of it that is absent is an empty one, not an error.
#include "settings/convertsettings.h"
#include "settings/settings.h"
#include "tests/settings/settingstest.h"

#include <QtTest>

namespace {

QStringList itemNames(const QList<OutputItem> &items)
{
    QStringList names;
    for (const OutputItem &item : items)
        names.append(item.name);
    return names;
}

} // namespace

class TestSettingsFile : public SettingsTest
{
    Q_OBJECT

private slots:
    void missingFileIsEmpty();
    void fileWithoutSettingInfoHasNoSettings();
    void emptySecondExampleIsNoRow();

    void shrunkSettingKeepsTheOldEntry();
    void savingKeepsForeignKeys();
    void savingOnePartKeepsTheOther();

    void fileIsLookedForInTheCurrentFolder();
    void changeIsSeenWithoutRestart();

    void namesAreAscending();
    void removedSettingIsGone();
    void removingWhatIsNotThereDoesNothing_data();
    void removingWhatIsNotThereDoesNothing();
    void renamedSettingIsOneGroup();
};

// --- what is absent ---------------------------------------------------------------------------

void TestSettingsFile::missingFileIsEmpty()
{
    QCOMPARE(settingNames(), QStringList());
    QVERIFY(loadInputSetting(settingName) == InputSetting());
    QVERIFY(loadOutputItems(settingName).isEmpty());
    QVERIFY(loadCompanyInfo() == CompanyInfo());
    QCOMPARE(m_folder->fileNames(), QStringList()); // reading makes no file
}

void TestSettingsFile::fileWithoutSettingInfoHasNoSettings()
{
    saveCompanyInfo(companyWithEveryFieldDifferent());
    QCOMPARE(settingNames(), QStringList());
    QVERIFY(loadInputSetting(settingName) == InputSetting());
}

void TestSettingsFile::emptySecondExampleIsNoRow()
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

// --- what saving leaves alone -----------------------------------------------------------------

void TestSettingsFile::shrunkSettingKeepsTheOldEntry()
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

void TestSettingsFile::savingKeepsForeignKeys()
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

void TestSettingsFile::savingOnePartKeepsTheOther()
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

void TestSettingsFile::fileIsLookedForInTheCurrentFolder()
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

void TestSettingsFile::changeIsSeenWithoutRestart()
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

// --- names ------------------------------------------------------------------------------------

void TestSettingsFile::namesAreAscending()
{
    for (const char *name : {"b", "a", "10", "9", "B"})
        saveOutputItems(QString::fromLatin1(name), {});
    saveOutputItems(QStringLiteral("가"), {});
    QCOMPARE(settingNames(), (QStringList{"10", "9", "B", "a", "b", QStringLiteral("가")}));
}

void TestSettingsFile::removedSettingIsGone()
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

void TestSettingsFile::removingWhatIsNotThereDoesNothing_data()
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

void TestSettingsFile::removingWhatIsNotThereDoesNothing()
{
    QFETCH(QString, name);
    saveOutputItems(settingName, {itemWithEveryFieldDifferent(1)});
    saveCompanyInfo(companyWithEveryFieldDifferent());
    removeSetting(name);
    QCOMPARE(settingNames(), QStringList(settingName));
    QVERIFY(loadCompanyInfo() == companyWithEveryFieldDifferent());
}

void TestSettingsFile::renamedSettingIsOneGroup()
{
    const QString newName = QStringLiteral("새 이름");
    saveOutputItems(settingName, {itemWithEveryFieldDifferent(1)});
    saveOutputItems(newName, loadOutputItems(settingName));
    removeSetting(settingName);
    QCOMPARE(settingNames(), QStringList(newName));
    QVERIFY(loadOutputItems(newName).value(0) == itemWithEveryFieldDifferent(1));
}

QTEST_GUILESS_MAIN(TestSettingsFile)
#include "tst_settingsfile.moc"
