// Which file goes to which input form, and the table that comes of it.
#include "engine/inputmatching.h"
#include "engine/table.h"
#include "tests/engine/recordingreporter.h"
#include "tests/engine/tabletext.h"
#include "tests/settings/workingfolder.h"

#include <QtTest>
#include <clocale>

namespace {

const QString doesNotMatch =
    "Input file dose not match with setting.\nPlease check the input file(s).";
const QString wrongNumber = "Number of input files is not matched with setting.";
const QString noProperFile = "Cannot find proper source file.";
const QString missingFile = "Cannot open input file:\nNo such file or directory.";

InputForm form(const QString &heads, int key = -1, int targetKey = -1)
{
    return {"form", heads.split(','), targetKey, key};
}

// The text of each file stands for itself: what exists is written, what does not is only named.
struct InputFile {
    QString name;
    QByteArray text;
};
using InputFiles = QList<InputFile>;

QStringList pathsOf(const InputFiles &files, const WorkingFolder &folder)
{
    QStringList paths;
    for (const InputFile &file : files) {
        if (!file.text.isNull())
            folder.write(file.name, file.text);
        paths.append(folder.path(file.name));
    }
    return paths;
}

} // namespace

Q_DECLARE_METATYPE(InputForm)
Q_DECLARE_METATYPE(InputFile)

class TestInputMatching : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { setlocale(LC_ALL, "C"); }

    void singleForm_data();
    void singleForm();
    void severalForms_data();
    void severalForms();
    void folderAsInput();
    void unreadableFile();
    void fileThatBreaksOff();
    void tableIsReplaced();
    void inputFilesStayAsTheyAre();
};

void TestInputMatching::singleForm_data()
{
    QTest::addColumn<QString>("heads");
    QTest::addColumn<InputFiles>("files");
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QString>("error");

    const auto row = [](const char *name, const QString &heads, const InputFiles &files,
                        const QStringList &lines, const QString &error = QString()) {
        QTest::newRow(name) << heads << files << lines << error;
    };
    row("one file", "no,name", {{"a.csv", "no,name\n1,Kim\n"}}, {"|no|name|", "|1|Kim|"});
    row("three files follow one another in list order", "no,name",
        {{"c.csv", "no,name\n1,Kim\n2,Lee\n"},
         {"a.csv", "no,name\n3,Han\n"},
         {"b.csv", "no,name\r\n1,Kim\r\n"}},
        {"|no|name|", "|1|Kim|", "|2|Lee|", "|3|Han|", "|1|Kim|"});
    row("file with a heading row only adds nothing", "no,name",
        {{"a.csv", "no,name"}, {"b.csv", "no,name\n1,Kim\n"}}, {"|no|name|", "|1|Kim|"});
    row("no data rows at all", "no,name", {{"a.csv", "no,name\n"}}, {"|no|name|"});
    row("marks and line ends of the headings do not count", "no,주문",
        {{"a.csv", "\xEF\xBB\xBF\"no\",\"주문\" \r\n1,2"}}, {"|no|주문|", "|1|2|"});
    row("headings twice and without a name", "a,a,", {{"a.csv", "a,a,\n1,2,3\n"}},
        {"|a|a||", "|1|2|3|"});
    row("the same file twice", "no", {{"a.csv", "no\n1\n"}, {"a.csv", "no\n1\n"}},
        {"|no|", "|1|", "|1|"});
    row("empty file for a form without a name", "", {{"a.csv", ""}}, {"||"});

    row("heading in another case", "no,name", {{"a.csv", "no,Name\n1,Kim\n"}}, {}, doesNotMatch);
    row("one column more", "no,name", {{"a.csv", "no,name,tel\n1,Kim,5\n"}}, {}, doesNotMatch);
    row("one column less", "no,name", {{"a.csv", "no\n1\n"}}, {}, doesNotMatch);
    row("comma behind the last heading", "no,name", {{"a.csv", "no,name,\n1,Kim,\n"}}, {},
        doesNotMatch);
    row("other order of the headings", "no,name", {{"a.csv", "name,no\nKim,1\n"}}, {},
        doesNotMatch);
    row("blank before a heading", "no,name", {{"a.csv", "no, name\n1,Kim\n"}}, {}, doesNotMatch);
    row("empty file", "no,name", {{"a.csv", ""}}, {}, doesNotMatch);
    row("blank line before the headings", "no,name", {{"a.csv", "\nno,name\n1,Kim\n"}}, {},
        doesNotMatch);
    row("second file with a column more: the table keeps the first", "no,name",
        {{"a.csv", "no,name\n1,Kim\n"}, {"b.csv", "no,name,tel\n2,Lee,5\n"}},
        {"|no|name|", "|1|Kim|"}, doesNotMatch);
    row("second file in another case", "no,name",
        {{"a.csv", "no,name\n1,Kim\n"}, {"b.csv", "NO,NAME\n2,Lee\n"}}, {"|no|name|", "|1|Kim|"},
        doesNotMatch);
    row("missing file", "no,name", {{"a.csv", QByteArray()}}, {}, missingFile);
    row("second file missing: the table keeps the first", "no,name",
        {{"a.csv", "no,name\n1,Kim\n"}, {"b.csv", QByteArray()}}, {"|no|name|", "|1|Kim|"},
        missingFile);
    row("the first failure ends it", "no,name",
        {{"a.csv", "x\n"}, {"b.csv", QByteArray()}, {"c.csv", "no,name\n"}}, {}, doesNotMatch);
}

void TestInputMatching::singleForm()
{
    QFETCH(QString, heads);
    QFETCH(InputFiles, files);
    QFETCH(QStringList, lines);
    QFETCH(QString, error);
    const WorkingFolder folder;
    Table table;
    RecordingReporter reporter;
    QCOMPARE(loadSingleForm(form(heads), pathsOf(files, folder), table, reporter), error.isEmpty());
    QCOMPARE(tableLines(table), lines);
    QCOMPARE(reporter.log, error.isEmpty() ? QStringList() : QStringList("error: " + error));
}

void TestInputMatching::severalForms_data()
{
    QTest::addColumn<QList<InputForm>>("forms");
    QTest::addColumn<InputFiles>("files");
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QString>("error");

    const auto row = [](const char *name, const QList<InputForm> &forms, const InputFiles &files,
                        const QStringList &lines, const QString &error = QString()) {
        QTest::newRow(name) << forms << files << lines << error;
    };
    const InputFile orders = {"orders.csv", "no,name\n1,Kim\n2,Lee\n"};
    const InputFile items = {"items.csv", "no,item\n2,pen\n1,cup\n1,ink\n"};
    const InputFile paid = {"paid.csv", "paid,no\n100,1\n"};
    const QList<InputForm> twoForms = {form("no,name"), form("no,item", 0, 0)};
    const QStringList joined = {"|no|name|item|", "|1|Kim|cup|", "|1|Kim|ink|", "|2|Lee|pen|"};

    row("two files in the order of the forms", twoForms, {orders, items}, joined);
    row("two files in the opposite order", twoForms, {items, orders}, joined);
    row("three files", {form("no,name"), form("no,item", 0, 0), form("paid,no", 0, 1)},
        {paid, items, orders},
        {"|no|name|item|paid|", "|1|Kim|cup|100|", "|1|Kim|ink|100|", "|2|Lee|pen|"});
    row("order without a partner keeps fewer values", twoForms,
        {orders, {"items.csv", "no,item\n2,pen\n"}}, {"|no|name|item|", "|1|Kim|", "|2|Lee|pen|"});
    row("required: the keys are crossed, stored key 2 is the table's column", //
        {form("a,b,no"), form("no,item", 2, 0)},
        {{"a.csv", "a,b,no\n7,8,1\n"}, {"b.csv", "no,item\n1,pen\n"}},
        {"|a|b|no|item|", "|7|8|1|pen|"});
    row("required: crossed keys that fit neither file compare other columns",
        {form("no,name"), form("item,no", 1, 0)}, // the editor's pair for no = no
        {{"a.csv", "no,name\n1,Kim\n"}, {"b.csv", "item,no\nKim,1\npen,2\n"}},
        {"|no|name|no|", "|1|Kim|1|"});
    row("keys of the first form do not matter", {form("no,name", 99, 99), form("no,item", 0, 0)},
        {orders, items}, joined);
    row("keys too far away: nothing is joined and the file counts as used",
        {form("no,name"), form("no,item", 3, 0)}, {orders, items},
        {"|no|name|", "|1|Kim|", "|2|Lee|"});
    row("negative keys: every row is a partner and no column goes",
        {form("no,name"), form("no,item", -1, -1)}, {orders, {"items.csv", "no,item\n2,pen\n"}},
        {"|no|name|no|item|", "|1|Kim|2|pen|", "|2|Lee|2|pen|"});
    row("equal headings go to equal forms in list order", {form("no,x"), form("no,x", 0, 0)},
        {{"a.csv", "no,x\n1,first\n"}, {"b.csv", "no,x\n1,second\n"}},
        {"|no|x|x|", "|1|first|second|"});
    row("the same path twice serves two forms", {form("no,x"), form("no,x", 0, 0)},
        {{"a.csv", "no,x\n1,a\n"}, {"a.csv", "no,x\n1,a\n"}}, {"|no|x|x|", "|1|a|a|"});
    row("first file without data rows: the second has nothing to join to", twoForms,
        {{"orders.csv", "no,name\n"}, items}, {"|no|name|item|"});

    row("too many files, none is opened", twoForms,
        {{"a.csv", QByteArray()}, {"b.csv", QByteArray()}, {"c.csv", QByteArray()}}, {},
        wrongNumber);
    row("too few files", twoForms, {orders}, {}, wrongNumber);
    row("no file for the first form", twoForms, {items, paid}, {}, noProperFile);
    row("no file for the second form: the table keeps the first", twoForms, {orders, paid},
        {"|no|name|", "|1|Kim|", "|2|Lee|"}, noProperFile);
    row("a file serves one form only", {form("no,name"), form("no,name", 0, 0)}, {orders, items},
        {"|no|name|", "|1|Kim|", "|2|Lee|"}, noProperFile);
    row("missing file before the fitting one", twoForms, {{"none.csv", QByteArray()}, orders}, {},
        missingFile);
    row("missing file behind the fitting one: found out for the second form", twoForms,
        {orders, {"none.csv", QByteArray()}}, {"|no|name|", "|1|Kim|", "|2|Lee|"}, missingFile);
}

void TestInputMatching::severalForms()
{
    QFETCH(QList<InputForm>, forms);
    QFETCH(InputFiles, files);
    QFETCH(QStringList, lines);
    QFETCH(QString, error);
    const WorkingFolder folder;
    Table table;
    RecordingReporter reporter;
    const QStringList paths = pathsOf(files, folder);
    QCOMPARE(loadMultipleForms(forms, paths, table, reporter), error.isEmpty());
    QCOMPARE(tableLines(table), lines);
    QCOMPARE(reporter.log, error.isEmpty() ? QStringList() : QStringList("error: " + error));
}

void TestInputMatching::folderAsInput()
{
    const WorkingFolder folder;
    QFile sameFolder(folder.path("."));
    QVERIFY(!sameFolder.open(QIODevice::ReadOnly | QIODevice::Text));
    Table table;
    RecordingReporter reporter;
    QVERIFY(!loadSingleForm(form("no"), {folder.path(".")}, table, reporter));
    QCOMPARE(reporter.errors,
             QStringList("Cannot open input file:\n" + sameFolder.errorString() + "."));
}

void TestInputMatching::unreadableFile()
{
    const WorkingFolder folder;
    QFile file(folder.write("a.csv", "no\n1\n"));
    file.setPermissions(QFileDevice::WriteOwner);
    if (file.open(QIODevice::ReadOnly))
        QSKIP("this user may read every file");
    Table table;
    RecordingReporter reporter;
    QVERIFY(!loadSingleForm(form("no"), {file.fileName()}, table, reporter));
    QCOMPARE(reporter.errors, QStringList("Cannot open input file:\nPermission denied."));
}

void TestInputMatching::fileThatBreaksOff()
{
    // Opens, and fails at the first byte.
    const QString path = "/proc/self/mem";
    if (!QFile::exists(path))
        QSKIP("no file here that can be opened and not be read");
    Table table;
    RecordingReporter reporter;
    QVERIFY(!loadSingleForm(form(""), {path}, table, reporter));
    QCOMPARE(reporter.errors, QStringList("Cannot open input file:\nInput/output error."));
    QVERIFY(table.isEmpty());
}

void TestInputMatching::tableIsReplaced()
{
    const WorkingFolder folder;
    const QString path = folder.write("a.csv", "no\n1\n");
    Table table;
    RecordingReporter reporter;
    table.setRows(TextRows(rowsOf("of,the last,run")));
    QVERIFY(loadSingleForm(form("no"), {path}, table, reporter));
    QCOMPARE(tableLines(table), (QStringList{"|no|", "|1|"}));
    QVERIFY(loadSingleForm(form("no"), {path}, table, reporter));
    QCOMPARE(tableLines(table), (QStringList{"|no|", "|1|"}));
    QVERIFY(!loadMultipleForms({form("x"), form("y")}, {path, path}, table, reporter));
    QVERIFY(table.isEmpty());
}

void TestInputMatching::inputFilesStayAsTheyAre()
{
    const WorkingFolder folder;
    const QByteArray orders = "\xEF\xBB\xBFno,name\r\n1,\"Kim\"\r\n\r\n";
    const QByteArray items = "no,item\n1,pen";
    const QStringList paths = {folder.write("a.csv", orders), folder.write("b.csv", items)};
    Table table;
    RecordingReporter reporter;
    QVERIFY(loadMultipleForms({form("no,name"), form("no,item", 0, 0)}, paths, table, reporter));
    QCOMPARE(folder.read("a.csv"), orders);
    QCOMPARE(folder.read("b.csv"), items);
    QCOMPARE(folder.fileNames(), (QStringList{"a.csv", "b.csv"}));
}

QTEST_GUILESS_MAIN(TestInputMatching)

#include "tst_inputmatching.moc"
