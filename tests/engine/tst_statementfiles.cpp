// Conversions with purchase statements: which files they make, keep and remove, and failures.
#include "tests/engine/statementruntest.h"

class TestStatementFiles : public StatementRunTest
{
    Q_OBJECT

private slots:
    void outputIsCompleteAndClosed_data();
    void outputIsCompleteAndClosed();
    void statementMayTakeTheOutputsPlace();
    void outputOverAnInputFile();
    void oldStatementGoes_data();
    void oldStatementGoes();
    void oldStatementThatStaysIsNotOpened();
    void outputThatIsAlsoTheStatementStays();
    void oldStatementIsNotTouchedWithoutStatements();

    void stopsBeforeTheStatement_data();
    void stopsBeforeTheStatement();
    void fullDisk();
    void outOfMemory();
};

// --- files ------------------------------------------------------------------------------------

void TestStatementFiles::outputIsCompleteAndClosed_data()
{
    QTest::addColumn<QString>("output");
    QTest::addColumn<int>("rows");

    for (const char *output : {"out.csv", "result.CSV"}) {
        for (const int rows : {0, 1, 50000})
            QTest::addRow("%s, %d rows", output, rows) << output << rows;
    }
}

// The statement may stand in the output's own place, so nothing may be written there any more.
void TestStatementFiles::outputIsCompleteAndClosed()
{
    QFETCH(QString, output);
    QFETCH(int, rows);
    saveOrderSetting();
    const QByteArray expected = "number,who\n" + QByteArray("1,Kim\n").repeated(rows);
    for (const StatementGenerator generator : {&failAtOnce, &paint}) {
        QVERIFY(runOn(heading + QByteArray("1,Kim,pen,2,100\n").repeated(rows), generator, output));
        QVERIFY(notes.output == expected);
        QVERIFY(!notes.outputWasOpen);
    }

    // Else the look at the open files would find nothing, whatever is open.
    QFile file(output);
    QVERIFY(file.open(QIODevice::ReadOnly));
    if (QFile::exists("/proc/self/fd"))
        QVERIFY(isOpenInThisProcess(output));
}

void TestStatementFiles::statementMayTakeTheOutputsPlace()
{
    saveOrderSetting();
    QVERIFY(runOn(threeOrders, paint, "result.CSV"));
    QCOMPARE(m_folder->read("result.CSV"), pages); // whole, not a mixture
    for (const StatementGenerator generator : {&failAtOnce, &failHalfway, &failToSave}) {
        QVERIFY(runOn(threeOrders, generator, "result.CSV"));
        QCOMPARE(m_folder->read("result.CSV"), QByteArray("number,who\n1,Kim\n2,Lee\n3,Min\n"));
        QCOMPARE(
            m_reporter.log.mid(m_reporter.log.size() - 3),
            (QStringList{"statement: result.CSV", "status: Converting succeeded.", "finished"}));
    }
    QCOMPARE(m_folder->fileNames(),
             (QStringList{"orders.txt", "quorinConverter.dat", "result.CSV"}));
}

// The records are built of the input after the output has been written.
void TestStatementFiles::outputOverAnInputFile()
{
    saveOrderSetting();
    write("out.csv", twoOrders);
    QVERIFY(run({{"out.csv"}, "out.csv", settingName}, paint));
    QCOMPARE(m_folder->read("out.csv"), QByteArray("number,who\n1,Kim\n2,Lee\n1,Kim\n"));
    QCOMPARE(notes.document.data.count(), 3);
    QCOMPARE(notes.document.data.record(2).productName, QStringList("cap"));
}

void TestStatementFiles::oldStatementGoes_data()
{
    QTest::addColumn<StatementGenerator>("generator");

    QTest::newRow("before the first page") << &failAtOnce;
    QTest::newRow("halfway") << &failHalfway;
    QTest::newRow("when they are saved") << &failToSave;
    QTest::newRow("without memory") << &runOutOfMemory;
}

// It would be taken for the one of this run and printed.
void TestStatementFiles::oldStatementGoes()
{
    QFETCH(StatementGenerator, generator);
    saveOrderSetting();
    QVERIFY(runOn(threeOrders));
    QVERIFY(QFile::exists("out.pdf"));
    write("other.pdf", "keep");
    QCOMPARE(runOn(threeOrders, generator), generator != &runOutOfMemory);
    QCOMPARE(m_folder->fileNames(),
             (QStringList{"orders.txt", "other.pdf", "out.csv", "quorinConverter.dat"}));
    QCOMPARE(m_folder->read("out.csv"), QByteArray("number,who\n1,Kim\n2,Lee\n3,Min\n"));
}

// A viewer can hold an old statement so that nobody can replace or remove it.
void TestStatementFiles::oldStatementThatStaysIsNotOpened()
{
    saveOrderSetting();
    QVERIFY(QDir().mkpath("out.pdf/page")); // neither file nor empty
    QVERIFY(runOn(threeOrders, failToSave));
    QCOMPARE(m_reporter.log.mid(m_reporter.log.size() - 3),
             (QStringList{"statement: ", "status: Converting succeeded.", "finished"}));
    QCOMPARE(m_folder->read("out.csv"), QByteArray("number,who\n1,Kim\n2,Lee\n3,Min\n"));
}

// Removing the old statement would remove the output, where both are one file.
void TestStatementFiles::outputThatIsAlsoTheStatementStays()
{
    saveOrderSetting();
    const QByteArray rows = "number,who\n1,Kim\n2,Lee\n3,Min\n";
    for (const char *folder : {"x.csv", "x.pdf"})
        QVERIFY(QDir().mkpath(folder));
    QVERIFY(runOn(threeOrders, failAtOnce, "x.csv/../orders"));
    QCOMPARE(notes.fileName, QString("x.pdf/../orders"));
    QCOMPARE(m_folder->read("orders"), rows);

    write("linked.pdf", "old");
    QVERIFY(QFile::link("linked.pdf", "linked.csv"));
    QVERIFY(runOn(threeOrders, failAtOnce, "linked.csv"));
    QCOMPARE(m_folder->read("linked.pdf"), rows);
}

void TestStatementFiles::oldStatementIsNotTouchedWithoutStatements()
{
    StatementSetting statement = orderStatement();
    statement.generate = false;
    saveOrderSetting(statement);
    write("out.pdf", "keep");
    QVERIFY(runOn(threeOrders));
    QCOMPARE(m_folder->read("out.pdf"), QByteArray("keep"));
}

// --- failures ---------------------------------------------------------------------------------

void TestStatementFiles::stopsBeforeTheStatement_data()
{
    QTest::addColumn<QStringList>("inputs");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("setting");

    const QStringList orders("orders.txt");
    QTest::newRow("no input file") << QStringList() << "out.csv"
                                   << "cart";
    QTest::newRow("no output file") << orders << ""
                                    << "cart";
    QTest::newRow("no setting") << orders << "out.csv"
                                << "";
    QTest::newRow("setting that is not there") << orders << "out.csv"
                                               << "none";
    QTest::newRow("missing input file") << QStringList("none.txt") << "out.csv"
                                        << "cart";
    QTest::newRow("other headings") << QStringList("other.txt") << "out.csv"
                                    << "cart";
    QTest::newRow("second file has other headings")
        << QStringList{"orders.txt", "other.txt"} << "out.csv"
        << "cart";
    QTest::newRow("output is a folder") << orders << "."
                                        << "cart";
    QTest::newRow("output below a folder that is not there") << orders << "none/out.csv"
                                                             << "cart";
}

void TestStatementFiles::stopsBeforeTheStatement()
{
    QFETCH(QStringList, inputs);
    QFETCH(QString, output);
    QFETCH(QString, setting);
    saveOrderSetting();
    write("orders.txt", threeOrders);
    write("other.txt", "no,name\n1,Kim\n");
    write("out.pdf", "keep");
    const QStringList before = m_folder->fileNames();
    QVERIFY(!run({inputs, output, setting}, paint));
    QCOMPARE(notes.calls, 0);
    QCOMPARE(m_reporter.errors.size(), 1);
    QCOMPARE(m_reporter.log.last(), "error: " + m_reporter.errors.first());
    QCOMPARE(m_reporter.log.filter("statement: "), QStringList());
    QCOMPARE(m_reporter.log.filter("PDF"), QStringList());
    QCOMPARE(m_folder->fileNames(), before);
    QCOMPARE(m_folder->read("out.pdf"), QByteArray("keep"));
}

void TestStatementFiles::fullDisk()
{
    if (!QFile::exists("/dev/full"))
        QSKIP("no full device here");
    saveOrderSetting();
    for (const int rows : {0, 1, 50000}) {
        QVERIFY(
            !runOn(heading + QByteArray("1,Kim,pen,2,100\n").repeated(rows), paint, "/dev/full"));
        QCOMPARE(notes.calls, 0);
        QCOMPARE(m_reporter.errors,
                 QStringList("Cannot write output file:\nNo space left on device."));
        QCOMPARE(m_reporter.log.last(), "error: " + m_reporter.errors.first());
        QCOMPARE(m_reporter.log.filter("PDF"), QStringList());
    }
}

void TestStatementFiles::outOfMemory()
{
    saveOrderSetting();
    QVERIFY(!runOn(threeOrders, runOutOfMemory));
    QCOMPARE(m_reporter.errors,
             QStringList("Not enough memory for this conversion.\nPlease check the input file(s) "
                         "and the matching keys of the setting."));
    QCOMPARE(m_reporter.log.mid(m_reporter.log.indexOf("status: Creating PDF file...")),
             (QStringList{"status: Creating PDF file...", "generator: out.pdf",
                          "error: " + m_reporter.errors.first()}));
    QCOMPARE(m_folder->read("out.csv"), QByteArray("number,who\n1,Kim\n2,Lee\n3,Min\n"));

    QVERIFY(runOn(twoOrders));
    QCOMPARE(m_reporter.log.last(), QString("finished"));
    QCOMPARE(notes.document.data.count(), 3);
}

QTEST_GUILESS_MAIN(TestStatementFiles)

#include "tst_statementfiles.moc"
