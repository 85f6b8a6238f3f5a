// Golden cases. Every folder beside this file is one conversion: a settings file, input files, a
// request (the first line is the name of the setting, the others are the input files in their
// order) and what must come out of it, expected.csv byte by byte or the message in
// expected_error.txt.
//
// With QUORIN_REWRITE_CASES=1 the test writes all of that anew into the source folder: settings and
// inputs from the case book, expectations from what the program does. Read the difference before
// you keep it. A folder that the case book does not know keeps its settings and inputs.
#include "engine/conversionrun.h"
#include "tests/cases/casebook.h"
#include "tests/engine/recordingreporter.h"
#include "tests/settings/workingfolder.h"

#include <QtTest>
#include <clocale>

namespace {

const QString requestFile = "request.txt";
const QString settingsFile = "quorinConverter.dat";
const QString expectedOutput = "expected.csv";
const QString expectedError = "expected_error.txt";
const QString outputFile = "output.csv";

QDir casesFolder()
{
    return QDir(QUORIN_TEST_SOURCE_DIR);
}

bool isRewriting()
{
    return qEnvironmentVariableIntValue("QUORIN_REWRITE_CASES") == 1;
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

bool isExpectation(const QString &fileName)
{
    return fileName == expectedOutput || fileName == expectedError;
}

// Makes the current folder that of a case, without its expectation.
void makeCase(const Case &described, const WorkingFolder &folder)
{
    InputSetting input;
    for (const InputForm &form : described.forms)
        input.heads += form.heads;
    input.files = described.forms;
    saveInputSetting(caseSettingName, input);
    saveOutputItems(caseSettingName, described.items);
    saveCompanyInfo(described.company);
    for (const auto &file : described.files)
        folder.write(file.first, file.second);
    const QStringList lines = QStringList(caseSettingName) + described.requested;
    folder.write(requestFile, lines.join('\n').toUtf8() + '\n');
}

} // namespace

class TestCases : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void folderIsAsDescribed_data();
    void folderIsAsDescribed();
    void converts_data();
    void converts();
};

void TestCases::initTestCase()
{
    // Files without a mark are UTF-8 then, and the system speaks English.
    setlocale(LC_ALL, "C");
}

void TestCases::folderIsAsDescribed_data()
{
    QTest::addColumn<int>("index");

    const QList<Case> book = caseBook();
    for (int i = 0; i < book.size(); ++i)
        QTest::newRow(qPrintable(book.at(i).folder)) << i;
}

void TestCases::folderIsAsDescribed()
{
    QFETCH(int, index);
    const Case described = caseBook().at(index);
    const WorkingFolder made;
    makeCase(described, made);

    const QString path = casesFolder().filePath(described.folder);
    QStringList inFolder = QDir(path).entryList(QDir::Files);
    inFolder.erase(std::remove_if(inFolder.begin(), inFolder.end(), isExpectation), inFolder.end());
    if (isRewriting()) {
        QVERIFY(casesFolder().mkpath(path));
        for (const QString &stale : inFolder)
            QVERIFY(QFile::remove(path + '/' + stale));
        for (const QString &fileName : made.fileNames())
            writeFile(path + '/' + fileName, made.read(fileName));
        return;
    }
    QCOMPARE(inFolder, made.fileNames());
    for (const QString &fileName : inFolder)
        QCOMPARE(readFile(path + '/' + fileName), made.read(fileName));
}

void TestCases::converts_data()
{
    QTest::addColumn<QString>("path");

    for (const QFileInfo &folder : casesFolder().entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (QFile::exists(folder.filePath() + '/' + requestFile))
            QTest::newRow(qPrintable(folder.fileName())) << folder.filePath();
    }
}

void TestCases::converts()
{
    QFETCH(QString, path);
    const WorkingFolder folder;
    QStringList filesBefore;
    for (const QString &fileName : QDir(path).entryList(QDir::Files)) {
        if (isExpectation(fileName))
            continue;
        folder.write(fileName, readFile(path + '/' + fileName));
        filesBefore.append(fileName);
    }
    ConversionRequest request;
    request.inputFiles =
        QString::fromUtf8(folder.read(requestFile)).split('\n', Qt::SkipEmptyParts);
    QVERIFY2(request.inputFiles.size() >= 2, "the request names no setting or no file");
    request.settingName = request.inputFiles.takeFirst();
    request.outputFile = outputFile;

    RecordingReporter reporter;
    const bool converted = runConversion(request, reporter);
    QCOMPARE(reporter.errors.size(), converted ? 0 : 1);
    const QByteArray error = reporter.errors.join('\n').toUtf8() + '\n';

    if (isRewriting()) {
        QFile::remove(path + '/' + expectedOutput);
        QFile::remove(path + '/' + expectedError);
        if (converted)
            writeFile(path + '/' + expectedOutput, folder.read(outputFile));
        else
            writeFile(path + '/' + expectedError, error);
        return;
    }
    if (QFile::exists(path + '/' + expectedError)) {
        QCOMPARE(error, readFile(path + '/' + expectedError));
        QVERIFY(!converted);
        QCOMPARE(folder.fileNames(), filesBefore);
        return;
    }
    QCOMPARE(reporter.errors, QStringList());
    QCOMPARE(QString::fromUtf8(folder.read(outputFile)).split('\n'),
             QString::fromUtf8(readFile(path + '/' + expectedOutput)).split('\n'));
    QCOMPARE(folder.read(outputFile), readFile(path + '/' + expectedOutput));
    for (const QString &fileName : filesBefore)
        QCOMPARE(folder.read(fileName), readFile(path + '/' + fileName)); // nothing else is touched
}

QTEST_GUILESS_MAIN(TestCases)

#include "tst_cases.moc"
