// The samples that the program comes with: their settings file is what the program writes, and each
// of their conversions gives what a shop would print.
#include "engine/conversionrun.h"
#include "engine/runreporter.h"
#include "settings/companyinfo.h"
#include "settings/convertsettings.h"
#include "settings/inputsetting.h"
#include "settings/outputitem.h"
#include "statement/statementsetting.h"
#include "tests/samples/statementpagestext.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString settingsFile = QStringLiteral("quorinConverter.dat");

QDir sampleFolder()
{
    return QDir(QStringLiteral(QUORIN_SOURCE_DIR "/sample"));
}

QDir expectedFolder()
{
    return QDir(QStringLiteral(QUORIN_TEST_SOURCE_DIR "/expected"));
}

QByteArray contents(const QString &path, QIODevice::OpenMode mode = QIODevice::ReadOnly)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly | mode) ? file.readAll() : QByteArray();
}

QString recordedPages; // of the last run

bool recordPages(const StatementDocument &document, const QString &, StatementProgress &)
{
    recordedPages = pagesAsText(document);
    return true;
}

struct Reporter : RunReporter {
    void status(const QString &) override {}
    void error(const QString &text) override { errors.append(text); }
    void progress(int, int) override {}
    void statementFinished(const QString &) override {}
    void finished() override {}

    QStringList errors;
};

} // namespace

class TestSamples : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void settingsAreWhatTheMakerWrites();
    void convert_data();
    void convert();
    void inputFilesBeginWithMark();
    void everySettingIsShown();
    void settingsFitTheirFiles();
    void nothingPutInHoldsComma();

private:
    QTemporaryDir m_folder;
};

// Each test works in a copy of the sample folder's settings.
void TestSamples::init()
{
    QVERIFY(QDir::setCurrent(m_folder.path()));
    QFile::remove(settingsFile);
    QVERIFY(QFile::copy(sampleFolder().filePath(settingsFile), settingsFile));
}

void TestSamples::settingsAreWhatTheMakerWrites()
{
    QFile::remove(settingsFile);
    QCOMPARE(
        QProcess::execute(QStringLiteral(QUORIN_SAMPLE_MAKER), {sampleFolder().absolutePath()}), 0);
    const QByteArray made = contents(settingsFile, QIODevice::Text);
    QVERIFY(!made.isEmpty());
    QVERIFY2(made == contents(sampleFolder().filePath(settingsFile), QIODevice::Text),
             "sample/quorinConverter.dat is out of date; run make_sample_settings in sample/");
}

void TestSamples::convert_data()
{
    QTest::addColumn<QString>("settingName");
    QTest::addColumn<QString>("outputName");
    QTest::addColumn<QStringList>("inputNames");

    const QByteArray table = contents(sampleFolder().filePath(QStringLiteral("conversions.txt")));
    const QStringList lines = QString::fromUtf8(table).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const QStringList parts = line.trimmed().split(QLatin1Char('\t'));
        if (parts.size() != 3)
            continue;
        QTest::newRow(qPrintable(parts.at(1)))
            << parts.at(0) << parts.at(1) << parts.at(2).split(QLatin1Char(';'));
    }
}

void TestSamples::convert()
{
    QFETCH(QString, settingName);
    QFETCH(QString, outputName);
    QFETCH(QStringList, inputNames);

    ConversionRequest request;
    request.settingName = settingName;
    request.outputFile = QDir(m_folder.path()).filePath(outputName);
    for (const QString &name : inputNames)
        request.inputFiles.append(sampleFolder().filePath(name));

    Reporter reporter;
    recordedPages.clear();
    const bool succeeded = runConversion(request, reporter, recordPages);
    QCOMPARE(reporter.errors, QStringList());
    QVERIFY(succeeded);
    // As texts: a difference is then shown in words.
    QCOMPARE(QString::fromUtf8(contents(request.outputFile, QIODevice::Text)),
             QString::fromUtf8(contents(expectedFolder().filePath(outputName), QIODevice::Text)));

    const QString pages =
        QString(outputName).replace(QLatin1String("_output.csv"), QLatin1String("_statement.txt"));
    QCOMPARE(recordedPages,
             QString::fromUtf8(contents(expectedFolder().filePath(pages), QIODevice::Text)));
}

// Without the mark they would be read in the code page of the machine.
void TestSamples::inputFilesBeginWithMark()
{
    const QStringList names = sampleFolder().entryList({QStringLiteral("*.csv")}, QDir::Files);
    int inputFiles = 0;
    for (const QString &name : names) {
        if (name.endsWith(QLatin1String("_output.csv")))
            continue;
        ++inputFiles;
        const QByteArray bytes = contents(sampleFolder().filePath(name));
        QVERIFY2(bytes.startsWith("\xEF\xBB\xBF"), qPrintable(name));
        QVERIFY2(bytes.count("\r\n") == bytes.count('\n'), qPrintable(name));
    }
    QVERIFY(inputFiles > 0);
}

void TestSamples::everySettingIsShown()
{
    const QString table =
        QString::fromUtf8(contents(sampleFolder().filePath(QStringLiteral("conversions.txt"))));
    const QStringList names = settingNames();
    QVERIFY(!names.isEmpty());
    for (const QString &name : names)
        QVERIFY2(table.contains(name + QLatin1Char('\t')), qPrintable(name));
}

void TestSamples::settingsFitTheirFiles()
{
    const QStringList names = settingNames();
    for (const QString &name : names) {
        const InputSetting input = loadInputSetting(name);
        QVERIFY2(!input.files.isEmpty(), qPrintable(name));
        QCOMPARE(input.ex1.size(), input.heads.size());
        QCOMPARE(input.ex2.size(), input.heads.size());
        const QList<OutputItem> items = loadOutputItems(name);
        for (const OutputItem &item : items) {
            for (int i = 0; i < item.mapNums.size(); ++i) {
                if (item.mapSources.at(i) == InputSource)
                    QCOMPARE(input.heads.value(item.mapNums.at(i)), item.mappings.at(i));
            }
            QCOMPARE(item.condRules.size(), item.condNums.size());
        }
        const StatementSetting statement = loadStatementSetting(name);
        for (const StatementField &field : statement.fields) {
            QCOMPARE(field.mapNums.size(), field.mappings.size());
            for (int i = 0; i < field.mapNums.size(); ++i)
                QCOMPARE(input.heads.value(field.mapNums.at(i)), field.mappings.at(i));
        }
    }
}

// The writer puts no quotes around a comma, so one would shift the columns behind it.
void TestSamples::nothingPutInHoldsComma()
{
    const CompanyInfo company = loadCompanyInfo();
    for (const QString &field : company.fields) {
        QVERIFY(!field.isEmpty());
        QVERIFY2(!field.contains(QLatin1Char(',')), qPrintable(field));
    }
    const QStringList names = settingNames();
    for (const QString &name : names) {
        const QList<OutputItem> items = loadOutputItems(name);
        for (const OutputItem &item : items) {
            QVERIFY2(!item.name.contains(QLatin1Char(',')), qPrintable(item.name));
            QVERIFY2(!item.separator.contains(QLatin1Char(',')), qPrintable(item.name));
            QVERIFY2(!item.mergeSeparator.contains(QLatin1Char(',')), qPrintable(item.name));
        }
    }
}

QTEST_GUILESS_MAIN(TestSamples)
#include "tst_samples.moc"
