// Whole conversions: what the run says, in which order, and which files it touches. What the rows
// hold is shown by the folders of tests/cases.
#include "engine/conversionrun.h"
#include "engine/runtexts.h"
#include "settings/companyinfo.h"
#include "settings/inputsetting.h"
#include "settings/outputitem.h"
#include "tests/engine/recordingreporter.h"
#include "tests/settings/workingfolder.h"

#include <QtTest>
#include <clocale>

namespace {

const QString settingName = "cart";

OutputItem column(const QString &name, int number)
{
    OutputItem item;
    item.name = name;
    item.appendMapping(InputSource, number, "column");
    item.distinct = "NO";
    return item;
}

// One form, two columns in the opposite order.
void saveOneFormSetting(bool removesDuplicates = false)
{
    InputSetting input;
    input.heads = QStringList{"no", "name"};
    input.files = {{"orders", {"no", "name"}, -1, -1}};
    saveInputSetting(settingName, input);
    QList<OutputItem> items = {column("who", 1), column("number", 0)};
    if (removesDuplicates)
        items.first().distinct = "YES";
    saveOutputItems(settingName, items);
}

void saveTwoFormSetting()
{
    InputSetting input;
    input.heads = QStringList{"no", "name", "item"};
    input.files = {{"orders", {"no", "name"}, -1, -1}, {"items", {"no", "item"}, 0, 0}};
    saveInputSetting(settingName, input);
    saveOutputItems(settingName, {column("who", 1), column("what", 2)});
}

const QStringList beginning = {
    "status: Checking all fields...",
    "status: Loading settings...",
    "status: Processing input file(s)...",
};

} // namespace

class TestConversionRun : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void texts_data();
    void texts();

    void saysWhatItDoes();
    void saysWhatItDoesWithDuplicates();
    void saysWhatItDoesWithoutDataRows();
    void severalForms();
    void progressInThousandths_data();
    void progressInThousandths();

    void requiredFields_data();
    void requiredFields();
    void stopsBeforeTheOutput_data();
    void stopsBeforeTheOutput();
    void unwritableOutput_data();
    void unwritableOutput();
    void readOnlyOutput();
    void fullDisk();

    void headingThatCannotBeReadIsNotAnotherHeading();

    void overwritesTheOutput();
    void outputOverAnInputFile();
    void relativePaths();
    void settingWithoutOutputItems();
    void companyOfTheSettingsFile();
    void settingsAreReadForEachRun();
    void damagedNumbersCrashNothing();
    void settingsFileStaysAsItIs();

private:
    QString write(const QString &name, const QByteArray &bytes) const
    {
        return m_folder->write(name, bytes);
    }
    bool run(const QStringList &inputFiles, const QString &setting = settingName)
    {
        m_reporter = RecordingReporter();
        return runConversion({inputFiles, m_folder->path("out.csv"), setting}, m_reporter);
    }

    QScopedPointer<WorkingFolder> m_folder;
    RecordingReporter m_reporter;
};

void TestConversionRun::initTestCase()
{
    // The system's own reasons are part of some messages.
    setlocale(LC_ALL, "C");
}

void TestConversionRun::init()
{
    m_folder.reset(new WorkingFolder);
}

void TestConversionRun::cleanup()
{
    m_folder.reset();
}

// --- what the run says ------------------------------------------------------------------------

// Users know these texts, and their manuals print them: the misspelt one is meant.
void TestConversionRun::texts_data()
{
    QTest::addColumn<QString>("actual");
    QTest::addColumn<QString>("text");

    const auto row = [](const QString &actual, const char *text) {
        const QByteArray name = QByteArray(text).replace('\n', ' ').replace('%', "");
        QTest::newRow(name.constData()) << actual << text;
    };
    row(RunTexts::checkingFields(), "Checking all fields...");
    row(RunTexts::loadingSettings(), "Loading settings...");
    row(RunTexts::processingInput(), "Processing input file(s)...");
    row(RunTexts::generatingOutput(), "Generating output file...");
    row(RunTexts::startConverting(), "Start converting...");
    row(RunTexts::deletingDuplicates(), "Deleting duplication and merging items...");
    row(RunTexts::succeeded(), "Converting succeeded.");
    row(RunTexts::inputRequired(), "Input file is required.");
    row(RunTexts::outputRequired(), "Output file is required.");
    row(RunTexts::settingRequired(), "Choose a convert setting.");
    row(RunTexts::noInputForms(),
        "There is no input file information in setting. Please check convert settings.");
    row(RunTexts::cannotOpenInput(), "Cannot open input file:\n%1.");
    row(RunTexts::inputDoesNotMatch(),
        "Input file dose not match with setting.\nPlease check the input file(s).");
    row(RunTexts::wrongNumberOfInputs(), "Number of input files is not matched with setting.");
    row(RunTexts::noProperInput(), "Cannot find proper source file.");
    row(RunTexts::cannotOpenOutput(), "Cannot open output file:\n%1.");
}

void TestConversionRun::texts()
{
    QFETCH(QString, actual);
    QTEST(actual, "text");
}

void TestConversionRun::saysWhatItDoes()
{
    saveOneFormSetting();
    QVERIFY(run({write("a.csv", "no,name\n1,Kim\n2,Lee\n"), write("b.csv", "no,name\n1,Kim\n")}));
    QCOMPARE(m_reporter.log,
             beginning
                 + (QStringList{
                     "status: Generating output file...",
                     "progress: 0 of 3",
                     "status: Start converting...",
                     "progress: 1 of 3",
                     "progress: 2 of 3",
                     "progress: 3 of 3",
                     "status: Deleting duplication and merging items...",
                     "progress: 3 of 6",
                     "progress: 4 of 6",
                     "progress: 5 of 6",
                     "progress: 6 of 6",
                     "status: Converting succeeded.",
                     "finished",
                 }));
    QCOMPARE(m_folder->read("out.csv"), QByteArray("who,number\nKim,1\nLee,2\nKim,1\n"));
}

void TestConversionRun::saysWhatItDoesWithDuplicates()
{
    saveOneFormSetting(true);
    QVERIFY(run({write("a.csv", "no,name\n1,Kim\n2,Lee\n3,Kim\n4,Kim\n")}));
    QCOMPARE(m_reporter.progresses.last(), qMakePair(6, 6)); // four rows in, two rows out
    QCOMPARE(m_reporter.log.mid(
                 m_reporter.log.indexOf("status: Deleting duplication and merging items...")),
             (QStringList{
                 "status: Deleting duplication and merging items...",
                 "progress: 4 of 6",
                 "progress: 5 of 6",
                 "progress: 6 of 6",
                 "status: Converting succeeded.",
                 "finished",
             }));
    QCOMPARE(m_folder->read("out.csv"), QByteArray("who,number\nKim,1\nLee,2\n"));
}

void TestConversionRun::saysWhatItDoesWithoutDataRows()
{
    saveOneFormSetting(true);
    QVERIFY(run({write("a.csv", "no,name\n")}));
    QCOMPARE(m_reporter.log,
             beginning
                 + (QStringList{
                     "status: Generating output file...",
                     "progress: 0 of 0",
                     "status: Start converting...",
                     "status: Deleting duplication and merging items...",
                     "progress: 0 of 0",
                     "status: Converting succeeded.",
                     "finished",
                 }));
    QCOMPARE(m_folder->read("out.csv"), QByteArray("who,number\n"));
}

void TestConversionRun::severalForms()
{
    saveTwoFormSetting();
    QVERIFY(run({write("items.csv", "no,item\n1,pen\n1,cup\n"),
                 write("orders.csv", "no,name\n1,Kim\n2,Lee\n")}));
    QCOMPARE(m_reporter.errors, QStringList());
    QCOMPARE(m_reporter.progresses.first(), qMakePair(0, 3)); // the joined rows count
    QCOMPARE(m_folder->read("out.csv"), QByteArray("who,what\nKim,pen\nKim,cup\nLee,\n"));
}

void TestConversionRun::progressInThousandths_data()
{
    QTest::addColumn<int>("rows");

    QTest::newRow("a thousand rows") << 1000;
    QTest::newRow("one more") << 1001;
    QTest::newRow("nearly two steps") << 1999;
    QTest::newRow("several rows in each step") << 12345;
}

void TestConversionRun::progressInThousandths()
{
    QFETCH(int, rows);
    saveOneFormSetting();
    QVERIFY(run({write("a.csv", "no,name\n" + QByteArray("1,Kim\n").repeated(rows))}));
    const auto &progresses = m_reporter.progresses;
    QVERIFY2(progresses.size() <= 4010, qPrintable(QString::number(progresses.size())));
    QVERIFY(progresses.contains(qMakePair(rows, rows)));
    QVERIFY(progresses.contains(qMakePair(rows, 2 * rows)));
    QCOMPARE(progresses.first(), qMakePair(0, rows));
    QCOMPARE(progresses.last(), qMakePair(2 * rows, 2 * rows));
    for (int i = 1; i < progresses.size(); ++i) {
        QVERIFY(progresses.at(i).first >= progresses.at(i - 1).first);
        const int step = progresses.at(i).first - progresses.at(i - 1).first;
        QVERIFY2(step <= qMax(1, progresses.at(i).second / 500), "a jump that can be seen");
    }
}

// --- failures ---------------------------------------------------------------------------------

void TestConversionRun::requiredFields_data()
{
    QTest::addColumn<bool>("input");
    QTest::addColumn<bool>("output");
    QTest::addColumn<bool>("setting");
    QTest::addColumn<QString>("error");

    QTest::newRow("nothing: only the first is told")
        << false << false << false << "Input file is required.";
    QTest::newRow("no input file") << false << true << true << "Input file is required.";
    QTest::newRow("no output file") << true << false << true << "Output file is required.";
    QTest::newRow("no output file and no setting")
        << true << false << false << "Output file is required.";
    QTest::newRow("no setting") << true << true << false << "Choose a convert setting.";
}

void TestConversionRun::requiredFields()
{
    QFETCH(bool, input);
    QFETCH(bool, output);
    QFETCH(bool, setting);
    QFETCH(QString, error);
    saveOneFormSetting();
    const QStringList before = m_folder->fileNames();
    ConversionRequest request;
    if (input)
        request.inputFiles.append(m_folder->path("missing.csv")); // not even opened
    if (output)
        request.outputFile = m_folder->path("out.csv");
    if (setting)
        request.settingName = settingName;
    QVERIFY(!runConversion(request, m_reporter = RecordingReporter()));
    QCOMPARE(m_reporter.log, (QStringList{"status: Checking all fields...", "error: " + error}));
    QCOMPARE(m_folder->fileNames(), before);
}

void TestConversionRun::stopsBeforeTheOutput_data()
{
    QTest::addColumn<int>("forms");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("error");

    const QString noForms =
        "There is no input file information in setting. Please check convert settings.";
    const QString doesNotMatch =
        "Input file dose not match with setting.\nPlease check the input file(s).";
    const QString missing = "Cannot open input file:\nNo such file or directory.";
    QTest::newRow("setting that is not there") << 0 << QStringList{"orders.csv"} << noForms;
    QTest::newRow("one form, other headings") << 1 << QStringList{"items.csv"} << doesNotMatch;
    QTest::newRow("one form, the second file has other headings")
        << 1 << QStringList{"orders.csv", "items.csv"} << doesNotMatch;
    QTest::newRow("one form, missing file") << 1 << QStringList{"none.csv"} << missing;
    QTest::newRow("two forms, one file")
        << 2 << QStringList{"orders.csv"} << "Number of input files is not matched with setting.";
    QTest::newRow("two forms, three files")
        << 2 << QStringList{"orders.csv", "items.csv", "none.csv"}
        << "Number of input files is not matched with setting.";
    QTest::newRow("two forms, no file for one")
        << 2 << QStringList{"orders.csv", "orders.csv"} << "Cannot find proper source file.";
    QTest::newRow("two forms, missing file")
        << 2 << QStringList{"orders.csv", "none.csv"} << missing;
}

void TestConversionRun::stopsBeforeTheOutput()
{
    QFETCH(int, forms);
    QFETCH(QStringList, files);
    QFETCH(QString, error);
    if (forms == 1)
        saveOneFormSetting();
    else if (forms == 2)
        saveTwoFormSetting();
    write("orders.csv", "no,name\n1,Kim\n");
    write("items.csv", "no,item\n1,pen\n");
    QStringList paths;
    for (const QString &file : files)
        paths.append(m_folder->path(file));

    const QStringList before = m_folder->fileNames();
    QVERIFY(!run(paths));
    QCOMPARE(m_reporter.log, beginning + QStringList("error: " + error));
    QCOMPARE(m_folder->fileNames(), before);

    write("out.csv", "the result of yesterday");
    QVERIFY(!run(paths));
    QCOMPARE(m_folder->read("out.csv"), QByteArray("the result of yesterday"));
}

void TestConversionRun::unwritableOutput_data()
{
    QTest::addColumn<QString>("output");

    QTest::newRow("folder") << ".";
    QTest::newRow("below a folder that is not there") << "none/out.csv";
    QTest::newRow("below a file") << "orders.csv/out.csv";
    QTest::newRow("name too long") << QString(300, 'x');
}

void TestConversionRun::unwritableOutput()
{
    QFETCH(QString, output);
    saveOneFormSetting();
    const QString orders = write("orders.csv", "no,name\n1,Kim\n");
    const QStringList before = m_folder->fileNames();
    QFile sameFile(m_folder->path(output));
    QVERIFY(!sameFile.open(QIODevice::WriteOnly | QIODevice::Text));
    QVERIFY(!runConversion({{orders}, m_folder->path(output), settingName}, m_reporter = {}));
    QCOMPARE(
        m_reporter.log,
        beginning
            + (QStringList{"status: Generating output file...",
                           "error: Cannot open output file:\n" + sameFile.errorString() + "."}));
    QCOMPARE(m_folder->fileNames(), before);
}

void TestConversionRun::readOnlyOutput()
{
    saveOneFormSetting();
    QFile file(write("out.csv", "keep"));
    file.setPermissions(QFileDevice::ReadOwner);
    if (file.open(QIODevice::WriteOnly | QIODevice::Append))
        QSKIP("this user may write every file");
    QVERIFY(!run({write("a.csv", "no,name\n1,Kim\n")}));
    QCOMPARE(m_reporter.errors, QStringList("Cannot open output file:\nPermission denied."));
    QCOMPARE(m_folder->read("out.csv"), QByteArray("keep"));
}

// A file that has not reached the disk whole must not pass as a success.
void TestConversionRun::fullDisk()
{
    if (!QFile::exists("/dev/full"))
        QSKIP("no full device here");
    saveOneFormSetting();
    for (const int rows : {0, 1, 100000}) {
        const QString orders = write("a.csv", "no,name\n" + QByteArray("1,Kim\n").repeated(rows));
        QVERIFY(!runConversion({{orders}, "/dev/full", settingName}, m_reporter = {}));
        QCOMPARE(m_reporter.errors,
                 QStringList("Cannot write output file:\nNo space left on device."));
        QCOMPARE(m_reporter.log.last(), "error: " + m_reporter.errors.first());
    }
}

// --- files ------------------------------------------------------------------------------------

// A share that goes away must not send the user looking for a wrong heading.
void TestConversionRun::headingThatCannotBeReadIsNotAnotherHeading()
{
    const QString unreadable = "/proc/self/mem"; // opens, and cannot be read from its beginning
    if (!QFileInfo::exists(unreadable))
        QSKIP("no file here that opens and cannot be read");
    saveOneFormSetting();
    QVERIFY(!run({unreadable}));
    QVERIFY2(m_reporter.log.last().startsWith("error: Cannot open input file:\n"),
             qPrintable(m_reporter.log.last()));
}

void TestConversionRun::overwritesTheOutput()
{
    saveOneFormSetting();
    write("out.csv", QByteArray(1000, 'x'));
    QVERIFY(run({write("a.csv", "no,name\n1,Kim\n")}));
    QCOMPARE(m_folder->read("out.csv"), QByteArray("who,number\nKim,1\n"));
    QCOMPARE(m_folder->fileNames(), (QStringList{"a.csv", "out.csv", "quorinConverter.dat"}));
}

void TestConversionRun::outputOverAnInputFile()
{
    saveOneFormSetting();
    QVERIFY(run({write("out.csv", "no,name\n1,Kim\n"), m_folder->path("out.csv")}));
    QCOMPARE(m_folder->read("out.csv"), QByteArray("who,number\nKim,1\nKim,1\n"));
}

void TestConversionRun::relativePaths()
{
    saveOneFormSetting();
    write("a.csv", "no,name\n1,Kim\n");
    QVERIFY(runConversion({{"a.csv"}, "result", settingName}, m_reporter));
    QCOMPARE(m_folder->read("result"), QByteArray("who,number\nKim,1\n"));
}

void TestConversionRun::settingWithoutOutputItems()
{
    saveOneFormSetting();
    saveOutputItems(settingName, {});
    QVERIFY(run({write("a.csv", "no,name\n1,Kim\n2,Lee\n")}));
    QCOMPARE(m_folder->read("out.csv"), QByteArray("\n\n\n"));
}

void TestConversionRun::companyOfTheSettingsFile()
{
    saveOneFormSetting();
    OutputItem item = column("shop and name", 1);
    item.mapSources.prepend(CompanySource);
    item.mapNums.prepend(CompanyInfo::StoreName);
    item.separator = "/";
    saveOutputItems(settingName, {item});
    CompanyInfo company;
    company.fields[CompanyInfo::StoreName] = "가게";
    saveCompanyInfo(company);
    QVERIFY(run({write("a.csv", "no,name\n1,Kim\n")}));
    QCOMPARE(m_folder->read("out.csv"), QByteArray("shop and name\n가게/Kim\n"));
}

void TestConversionRun::settingsAreReadForEachRun()
{
    saveOneFormSetting();
    const QString orders = write("a.csv", "no,name\n1,Kim\n");
    QVERIFY(run({orders}));
    saveOutputItems(settingName, {column("renamed", 0)});
    QVERIFY(run({orders}));
    QCOMPARE(m_folder->read("out.csv"), QByteArray("renamed\n1\n"));
    QVERIFY(QFile::remove(m_folder->path("quorinConverter.dat")));
    QVERIFY(!run({orders}));
    QCOMPARE(m_reporter.errors.size(), 1);
}

void TestConversionRun::damagedNumbersCrashNothing()
{
    write("quorinConverter.dat",
          "[SettingInfo]\n"
          "cart\\input\\files\\size=2\n"
          "cart\\input\\files\\1\\heads=no, name\n"
          "cart\\input\\files\\1\\key=2147483647\n"
          "cart\\input\\files\\2\\heads=no, item\n"
          "cart\\input\\files\\2\\key=-2147483648\n"
          "cart\\input\\files\\2\\targetKey=-7\n"
          "cart\\output\\size=3\n"
          "cart\\output\\1\\name=a\n"
          "cart\\output\\1\\mapNums=2147483647, -2147483648, 1\n"
          "cart\\output\\1\\mapSources=1, 1, 1, 1, 1\n"
          "cart\\output\\1\\separator=-\n"
          "cart\\output\\2\\name=b\n"
          "cart\\output\\2\\mapNums=0\n"
          "cart\\output\\2\\mapSources=1\n"
          "cart\\output\\2\\conditions=x, y, z\n"
          "cart\\output\\2\\condNums=-1, 99\n"
          "cart\\output\\2\\condSources=1\n"
          "cart\\output\\2\\condRules=equalTo()\n"
          "cart\\output\\2\\condCombination=OR\n"
          "cart\\output\\3\\distinct=YES\n");
    QVERIFY(run({write("a.csv", "no,name\n1,Kim\n"), write("b.csv", "no,item\n2,pen\n")}));
    // Columns that are not there read as empty, so the two rows are partners; the third item has
    // neither name nor source.
    QCOMPARE(m_folder->read("out.csv"), QByteArray("a,b,\n--Kim,1,\n"));

    write("quorinConverter.dat", "[SettingInfo]\ncart\\input\\files\\size=2000000000\n");
    QVERIFY(!run({m_folder->path("a.csv")}));
    QCOMPARE(m_reporter.errors, QStringList("Number of input files is not matched with setting."));
}

void TestConversionRun::settingsFileStaysAsItIs()
{
    saveOneFormSetting();
    const QByteArray before = m_folder->read("quorinConverter.dat");
    QVERIFY(run({write("a.csv", "no,name\n1,Kim\n")}));
    QCOMPARE(m_folder->read("quorinConverter.dat"), before);
}

QTEST_GUILESS_MAIN(TestConversionRun)

#include "tst_conversionrun.moc"
