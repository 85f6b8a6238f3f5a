// Files that an accident or another program has left: what can be read of them is read, the rest
// counts as absent, and nothing in them makes the program crash, hang or fill the memory. The worst
// are read by a child process: this program, started with a switch of its own.
#include "settings/convertsettings.h"
#include "tests/settings/settingstest.h"

#include <QProcess>
#include <QtTest>

#if defined(Q_OS_UNIX) && !defined(__SANITIZE_ADDRESS__)
#include <sys/resource.h>
#endif

namespace {

const QString loadSwitch = QStringLiteral("--load");

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

class TestSettingsDamage : public SettingsTest
{
    Q_OBJECT

private slots:
    void numbersThatAreNoneReadAsZero();
    void damagedFileIsRead_data();
    void damagedFileIsRead();
    void damagedFileNeitherCrashesNorHangs_data();
    void damagedFileNeitherCrashesNorHangs();
    void everyTruncationIsRead();
    void settingsFileThatIsAFolderIsEmpty();
};

void TestSettingsDamage::numbersThatAreNoneReadAsZero()
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

void TestSettingsDamage::damagedFileIsRead_data()
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

void TestSettingsDamage::damagedFileIsRead()
{
    QFETCH(QByteArray, bytes);
    m_folder->write(settingsFile, bytes);
    QTEST(settingNames(), "names");
    QTEST(loadInputSetting(settingName).files.size(), "formCount");
    QTEST(loadOutputItems(settingName).size(), "itemCount");
    QVERIFY(loadCompanyInfo() == CompanyInfo());
    QCOMPARE(m_folder->read(settingsFile), bytes); // reading repairs nothing
}

void TestSettingsDamage::damagedFileNeitherCrashesNorHangs_data()
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

void TestSettingsDamage::damagedFileNeitherCrashesNorHangs()
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
void TestSettingsDamage::everyTruncationIsRead()
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

void TestSettingsDamage::settingsFileThatIsAFolderIsEmpty()
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
    TestSettingsDamage test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_settingsdamage.moc"
