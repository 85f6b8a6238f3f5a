// The settings file when a program is killed while it saves, and when several programs save at
// once: every look at the file shows each setting as one save has written it, whole. The other
// programs are this one, started with a switch.
#include "settings/convertsettings.h"
#include "tests/settings/wholesetting.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QThread>
#include <QtTest>
#include <iostream>
#include <memory>

namespace {

const QString saveSwitch = QStringLiteral("--save");
const int savesOfAProgram = 200;
const int itemCount = 40; // as a carrier's layout has

ConvertSetting bigSetting(int seed)
{
    return settingOfSeed(seed, itemCount);
}

// The seed with which a setting has been saved; -1 when it is not one save's work.
int seedOf(const ConvertSetting &setting)
{
    const int seed = setting.statement.title.toInt();
    return setting == bigSetting(seed) ? seed : -1;
}

// Arguments: the names that the setting bears in turn, the first seed, the number of saves, and the
// longest pause between two of them. Prints each seed when it has been saved.
int saveAgainAndAgain(const QStringList &arguments)
{
    const QStringList names = arguments.at(0).split(QLatin1Char('|'));
    const int firstSeed = arguments.at(1).toInt();
    const int count = arguments.at(2).toInt();
    const int longestPause = arguments.at(3).toInt();
    for (int i = 0; i < count; ++i) {
        saveConvertSetting(names.at((i + 1) % names.size()), bigSetting(firstSeed + i),
                           names.at(i % names.size()));
        std::cout << firstSeed + i << std::endl;
        if (longestPause > 0)
            QThread::usleep(QRandomGenerator::global()->bounded(longestPause * 1000));
    }
    return 0;
}

/// Another program that saves.
class Saver
{
public:
    explicit Saver(const QString &names, int firstSeed, int count = savesOfAProgram, int pause = 0)
        : m_lastSeed(firstSeed - 1)
    {
        m_process.start(QCoreApplication::applicationFilePath(),
                        {saveSwitch, names, QString::number(firstSeed), QString::number(count),
                         QString::number(pause)});
    }
    ~Saver() { kill(); }
    Q_DISABLE_COPY(Saver)

    bool waitForFirstSave() { return m_process.waitForReadyRead(30000); }
    bool isRunning()
    {
        m_process.waitForFinished(0);
        return m_process.state() != QProcess::NotRunning;
    }
    bool finish()
    {
        return (m_process.state() == QProcess::NotRunning || m_process.waitForFinished(60000))
            && m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
    }
    void kill()
    {
        if (m_process.state() == QProcess::NotRunning)
            return;
        m_process.kill();
        m_process.waitForFinished();
    }
    /// The seed that it has said last to have saved. The next one may be in the file already.
    int lastSeed()
    {
        while (m_process.canReadLine())
            m_lastSeed = m_process.readLine().trimmed().toInt();
        return m_lastSeed;
    }

private:
    QProcess m_process;
    int m_lastSeed;
};

/// The settings file as it is at one moment, looked at in a folder of its own: to read it where it
/// stands takes several looks.
class Snapshot
{
public:
    explicit Snapshot(const WorkingFolder &place) : m_bytes(place.read(settingsFile))
    {
        m_folder.write(settingsFile, m_bytes);
    }

    QByteArray bytes() const { return m_bytes; }

private:
    const QByteArray m_bytes;
    const WorkingFolder m_folder; // leaves the place, and returns to it at the end
};

} // namespace

class TestSettingsConcurrency : public SettingsTest
{
    Q_OBJECT

private slots:
    void killedProgramLeavesAWholeSetting();
    void killedProgramLeavesOneNameOfARenamedSetting();
    void everyLookShowsAWholeSetting();
    void everyLookShowsOneNameOfARenamedSetting();
    void differentSettingsSavedAtOnce();
    void oneSettingSavedAtOnceIsTheWorkOfOneSave();
    void saveKeepsWhatAnotherProgramHasSavedMeanwhile();
    void removalKeepsWhatAnotherProgramHasSavedMeanwhile();
    void nextSaveIsNotHeldUpByAKilledOne();

private:
    // Neighbours of what the other programs save.
    void saveNeighbours()
    {
        saveCompanyInfo(companyWithEveryFieldDifferent());
        saveConvertSetting("C", bigSetting(7));
    }
    static bool areNeighboursWhole()
    {
        return loadCompanyInfo() == companyWithEveryFieldDifferent()
            && seedOf(loadConvertSetting("C")) == 7;
    }
    // Kills a program in the midst of its saves; returns the last seed that it has said.
    int saveAndBeKilled(const QString &names, int firstSeed)
    {
        Saver saver(names, firstSeed);
        if (!saver.waitForFirstSave())
            return -1;
        QThread::usleep(QRandomGenerator::global()->bounded(300000));
        saver.kill();
        ageEmptyLock();
        return saver.lastSeed();
    }
    // Killed just when it makes its lock, a program leaves an empty one, for which the library
    // waits half a minute before it takes it for forgotten. The test does not wait that long.
    void ageEmptyLock()
    {
        QFile lock(m_folder->path(settingsFile + ".lock"));
        if (lock.size() > 0 || !lock.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
            return;
        QVERIFY(lock.setFileTime(QDateTime::currentDateTime().addSecs(-60),
                                 QFileDevice::FileModificationTime));
    }
    // Takes snapshots as long as a program runs, and calls the function inside each new one.
    template <typename Look> int lookWhile(Saver &saver, Look look)
    {
        QByteArray before;
        int count = 0;
        while (saver.isRunning()) {
            const Snapshot snapshot(*m_folder);
            if (snapshot.bytes() == before)
                continue;
            before = snapshot.bytes();
            ++count;
            look();
            if (QTest::currentTestFailed())
                break;
        }
        return count;
    }
};

void TestSettingsConcurrency::killedProgramLeavesAWholeSetting()
{
    saveNeighbours();
    saveConvertSetting("A", bigSetting(0));
    int firstSeed = 1;
    for (int round = 0; round < 40; ++round) {
        const int saved = saveAndBeKilled("A", firstSeed);
        QVERIFY(saved >= firstSeed);
        QVERIFY2(saved < firstSeed + savesOfAProgram - 1, "killed too late");
        const int seed = seedOf(loadConvertSetting("A"));
        QVERIFY2(seed == saved || seed == saved + 1,
                 qPrintable(QStringLiteral("%1 instead of %2").arg(seed).arg(saved)));
        QCOMPARE(settingNames(), (QStringList{"A", "C"}));
        QVERIFY(areNeighboursWhole());
        firstSeed += savesOfAProgram;
    }
}

void TestSettingsConcurrency::killedProgramLeavesOneNameOfARenamedSetting()
{
    saveNeighbours();
    saveConvertSetting("A", bigSetting(0));
    QString name = "A";
    int firstSeed = 1;
    for (int round = 0; round < 20; ++round) {
        const QString otherName = name == "A" ? "B" : "A";
        const int saved = saveAndBeKilled(name + '|' + otherName, firstSeed);
        QVERIFY(saved >= firstSeed);
        QStringList names = settingNames();
        QVERIFY(names.removeOne("C"));
        QCOMPARE(names.size(), 1);
        name = names.first();
        const int seed = seedOf(loadConvertSetting(name));
        QVERIFY(seed == saved || seed == saved + 1);
        QVERIFY(areNeighboursWhole());
        firstSeed += savesOfAProgram;
    }
}

void TestSettingsConcurrency::everyLookShowsAWholeSetting()
{
    saveNeighbours();
    saveConvertSetting("A", bigSetting(0));
    Saver saver("A", 1);
    int lastSeed = 0;
    const int looks = lookWhile(saver, [&lastSeed] {
        QCOMPARE(settingNames(), (QStringList{"A", "C"}));
        const int seed = seedOf(loadConvertSetting("A"));
        QVERIFY(seed >= lastSeed);
        QVERIFY(areNeighboursWhole());
        lastSeed = seed;
    });
    QVERIFY(saver.finish());
    QVERIFY(looks > 20);
    QCOMPARE(seedOf(loadConvertSetting("A")), savesOfAProgram);
}

void TestSettingsConcurrency::everyLookShowsOneNameOfARenamedSetting()
{
    saveConvertSetting("A", bigSetting(0));
    Saver saver("A|B", 1);
    const int looks = lookWhile(saver, [] {
        const QStringList names = settingNames();
        QCOMPARE(names.size(), 1);
        QVERIFY(seedOf(loadConvertSetting(names.first())) >= 0);
    });
    QVERIFY(saver.finish());
    QVERIFY(looks > 20);
}

void TestSettingsConcurrency::differentSettingsSavedAtOnce()
{
    saveNeighbours();
    saveConvertSetting("A", bigSetting(0));
    saveConvertSetting("B", bigSetting(1000));
    const int count = 60;
    Saver first("A", 1, count, 10);
    Saver second("B", 1001, count, 10);
    const auto look = [] {
        QCOMPARE(settingNames(), (QStringList{"A", "B", "C"}));
        QVERIFY(seedOf(loadConvertSetting("A")) >= 0);
        QVERIFY(seedOf(loadConvertSetting("B")) >= 1000);
        QVERIFY(areNeighboursWhole());
    };
    lookWhile(first, look);
    lookWhile(second, look);
    QVERIFY(first.finish());
    QVERIFY(second.finish());
    QCOMPARE(seedOf(loadConvertSetting("A")), count);
    QCOMPARE(seedOf(loadConvertSetting("B")), 1000 + count);
}

void TestSettingsConcurrency::oneSettingSavedAtOnceIsTheWorkOfOneSave()
{
    saveConvertSetting("A", bigSetting(0));
    const int count = 60;
    Saver first("A", 1, count, 10);
    Saver second("A", 1001, count, 10);
    const auto look = [] { QVERIFY(seedOf(loadConvertSetting("A")) >= 0); };
    lookWhile(first, look);
    lookWhile(second, look);
    QVERIFY(first.finish());
    QVERIFY(second.finish());
    const int seed = seedOf(loadConvertSetting("A"));
    QVERIFY(seed == count || seed == 1000 + count);
}

void TestSettingsConcurrency::saveKeepsWhatAnotherProgramHasSavedMeanwhile()
{
    saveConvertSetting("A", bigSetting(1));
    QCOMPARE(settingNames(), QStringList("A"));
    {
        Saver other("B", 2, 1);
        QVERIFY(other.finish());
    }
    saveConvertSetting("A", bigSetting(3));
    QCOMPARE(seedOf(loadConvertSetting("A")), 3);
    QCOMPARE(seedOf(loadConvertSetting("B")), 2);
}

void TestSettingsConcurrency::removalKeepsWhatAnotherProgramHasSavedMeanwhile()
{
    saveConvertSetting("A", bigSetting(1));
    QCOMPARE(settingNames(), QStringList("A"));
    {
        Saver other("B", 2, 1);
        QVERIFY(other.finish());
    }
    removeSetting("A");
    QCOMPARE(settingNames(), QStringList("B"));
    QCOMPARE(seedOf(loadConvertSetting("B")), 2);
}

void TestSettingsConcurrency::nextSaveIsNotHeldUpByAKilledOne()
{
    saveConvertSetting("A", bigSetting(0));
    for (int round = 0; round < 20; ++round) {
        QVERIFY(saveAndBeKilled("A", 1) >= 1);
        QElapsedTimer timer;
        timer.start();
        saveConvertSetting("A", bigSetting(round));
        QVERIFY(timer.elapsed() < 5000);
        QCOMPARE(seedOf(loadConvertSetting("A")), round);
        QVERIFY(!m_folder->fileNames().contains(settingsFile + ".lock"));
    }
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.value(1) == saveSwitch)
        return saveAgainAndAgain(arguments.mid(2));
    TestSettingsConcurrency test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_settingsconcurrency.moc"
