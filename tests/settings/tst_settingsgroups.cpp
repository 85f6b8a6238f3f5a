// Flags in the settings file: two spellings of each, in any letter case; whatever else stands there
// is no flag and leaves the default.
#include "settings/settings.h"
#include "settings/settingsgroups.h"
#include "tests/settings/settingstest.h"

#include <QtTest>

class TestSettingsGroups : public SettingsTest
{
    Q_OBJECT

private slots:
    void storedFlagIsRead_data();
    void storedFlagIsRead();
    void anythingElseIsTheDefault_data();
    void anythingElseIsTheDefault();
    void absentFlagIsTheDefault();
    void flagIsReadInItsGroup();
    void writtenFlagReadsBack();

private:
    void write(const QByteArray &stored)
    {
        m_folder->write(settingsFile, "[Group]\nflag=" + stored + "\n");
    }
    static bool read(bool defaultValue)
    {
        return readBool(Settings(nullptr), "Group/flag", defaultValue);
    }
};

void TestSettingsGroups::storedFlagIsRead_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<bool>("flag");

    QTest::newRow("true") << QByteArray("true") << true;
    QTest::newRow("True") << QByteArray("True") << true;
    QTest::newRow("TRUE") << QByteArray("TRUE") << true;
    QTest::newRow("1") << QByteArray("1") << true;
    QTest::newRow("false") << QByteArray("false") << false;
    QTest::newRow("False") << QByteArray("False") << false;
    QTest::newRow("FALSE") << QByteArray("FALSE") << false;
    QTest::newRow("0") << QByteArray("0") << false;
    QTest::newRow("in quotes") << QByteArray("\"true\"") << true;
    QTest::newRow("blanks that do not count") << QByteArray("  false  ") << false;
    QTest::newRow("a remark behind") << QByteArray("true ; printed") << true;
    QTest::newRow("stored as bytes") << QByteArray("@ByteArray(true)") << true;
    QTest::newRow("Windows line end") << QByteArray("true\r") << true;
}

void TestSettingsGroups::storedFlagIsRead()
{
    QFETCH(QByteArray, stored);
    QFETCH(bool, flag);
    write(stored);
    for (const bool defaultValue : {false, true})
        QCOMPARE(read(defaultValue), flag);
}

void TestSettingsGroups::anythingElseIsTheDefault_data()
{
    QTest::addColumn<QByteArray>("stored");

    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("yes") << QByteArray("yes");
    QTest::newRow("no") << QByteArray("no");
    QTest::newRow("on") << QByteArray("on");
    QTest::newRow("2") << QByteArray("2");
    QTest::newRow("-1") << QByteArray("-1");
    QTest::newRow("00") << QByteArray("00");
    QTest::newRow("1.0") << QByteArray("1.0");
    QTest::newRow("first letter") << QByteArray("t");
    QTest::newRow("cut") << QByteArray("tru");
    QTest::newRow("too long") << QByteArray("truee");
    QTest::newRow("blank inside the quotes") << QByteArray("\" true\"");
    QTest::newRow("list of flags") << QByteArray("true, true");
    QTest::newRow("no value") << QByteArray("@Invalid()");
    QTest::newRow("rectangle") << QByteArray("@Rect(1 1 1 1)");
    QTest::newRow("Korean") << QByteArray("\\xc608");
    QTest::newRow("wide digit") << QByteArray("\\xff11");
    QTest::newRow("NUL") << QByteArray("\\0");
}

void TestSettingsGroups::anythingElseIsTheDefault()
{
    QFETCH(QByteArray, stored);
    write(stored);
    QCOMPARE(read(false), false);
    QCOMPARE(read(true), true);
}

void TestSettingsGroups::absentFlagIsTheDefault()
{
    for (const bool defaultValue : {false, true}) {
        QCOMPARE(read(defaultValue), defaultValue);
        m_folder->write(settingsFile, "[Group]\nflags=true\n[Other]\nflag=false\n");
        QCOMPARE(read(defaultValue), defaultValue);
        m_folder->write(settingsFile, "");
    }
}

void TestSettingsGroups::flagIsReadInItsGroup()
{
    m_folder->write(settingsFile, "[Group]\nflag=false\nInner\\flag=true\n");
    Settings settings(nullptr);
    const GroupScope group(settings, "Group");
    QCOMPARE(readBool(settings, "flag", true), false);
    const GroupScope inner(settings, "Inner");
    QCOMPARE(readBool(settings, "flag", false), true);
}

void TestSettingsGroups::writtenFlagReadsBack()
{
    for (const bool flag : {false, true}) {
        {
            Settings settings(nullptr);
            settings.setValue("Group/flag", flag);
            QCOMPARE(readBool(settings, "Group/flag", !flag), flag); // not in the file yet
        }
        QCOMPARE(read(!flag), flag);
    }
}

QTEST_GUILESS_MAIN(TestSettingsGroups)
#include "tst_settingsgroups.moc"
