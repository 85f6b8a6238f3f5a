// Conversions with purchase statements: what the run says, and what it hands over to be painted.
#include "settings/companyinfo.h"
#include "tests/engine/recordtext.h"
#include "tests/engine/statementruntest.h"

namespace {

const QStringList beginning = {
    "status: Checking all fields...",
    "status: Loading settings...",
    "status: Processing input file(s)...",
    "status: Generating output file...",
};

} // namespace

class TestStatementRun : public StatementRunTest
{
    Q_OBJECT

private slots:
    void saysWhatItDoes();
    void saysWhatItDoesWithDuplicates();
    void saysWhatItDoesWithoutDataRows();
    void saysWhatItDoesWithoutDataRowsAndPages();
    void saysWhatItDoesWhenThePagesFail_data();
    void saysWhatItDoesWhenThePagesFail();
    void saysNothingOfStatements_data();
    void saysNothingOfStatements();
    void progressInThousandths_data();
    void progressInThousandths();

    void statementFile_data();
    void statementFile();

    void handsOverTheTexts();
    void handsOverEmptyTexts();
    void handsOverTheCompany_data();
    void handsOverTheCompany();
    void companyThatWasNeverEntered();
    void handsOverTheRecords();
    void handsOverTheRecordsOfJoinedRows();
    void handsOverRecordsThatPrintNothing();
    void handsOverNoRecordOfAnEarlierRun();
    void settingsAreReadForEachRun();
};

// --- what the run says ------------------------------------------------------------------------

void TestStatementRun::saysWhatItDoes()
{
    saveOrderSetting();
    QVERIFY(runOn(threeOrders));
    QCOMPARE(m_reporter.log,
             beginning
                 + (QStringList{
                     "progress: 0 of 3",
                     "status: Start converting...",
                     "progress: 1 of 3",
                     "progress: 2 of 3",
                     "progress: 3 of 3",
                     "status: Deleting duplication and merging items...",
                     "progress: 3 of 10", // each row is written, then painted; then they are saved
                     "progress: 4 of 10",
                     "progress: 5 of 10",
                     "progress: 6 of 10",
                     "status: Creating PDF file...",
                     "generator: out.pdf",
                     "progress: 7 of 10",
                     "progress: 8 of 10",
                     "progress: 9 of 10",
                     "status: Saving PDF file...",
                     "progress: 10 of 10",
                     "statement: out.pdf",
                     "status: Converting succeeded.",
                     "finished",
                 }));
    QCOMPARE(m_folder->read("out.csv"), QByteArray("number,who\n1,Kim\n2,Lee\n3,Min\n"));
    QCOMPARE(m_folder->read("out.pdf"), pages);
}

void TestStatementRun::saysWhatItDoesWithDuplicates()
{
    saveOrderSetting(orderStatement(), MergedDuplicates);
    QVERIFY(runOn(twoOrders));
    QCOMPARE(m_reporter.log.mid(
                 m_reporter.log.indexOf("status: Deleting duplication and merging items...")),
             (QStringList{
                 "status: Deleting duplication and merging items...",
                 "progress: 3 of 8", // three rows in, two of them left
                 "progress: 4 of 8",
                 "progress: 5 of 8",
                 "status: Creating PDF file...",
                 "generator: out.pdf",
                 "progress: 6 of 8",
                 "progress: 7 of 8",
                 "status: Saving PDF file...",
                 "progress: 8 of 8",
                 "statement: out.pdf",
                 "status: Converting succeeded.",
                 "finished",
             }));
    QCOMPARE(m_folder->read("out.csv"), QByteArray("number,who\n1,Kim\n2,Lee\n"));
}

void TestStatementRun::saysWhatItDoesWithoutDataRows()
{
    saveOrderSetting(orderStatement(), MergedDuplicates);
    QVERIFY(runOn(heading));
    QCOMPARE(m_reporter.log,
             beginning
                 + (QStringList{
                     "progress: 0 of 0",
                     "status: Start converting...",
                     "status: Deleting duplication and merging items...",
                     "progress: 0 of 1",
                     "status: Creating PDF file...",
                     "generator: out.pdf",
                     "status: Saving PDF file...",
                     "progress: 1 of 1",
                     "statement: out.pdf",
                     "status: Converting succeeded.",
                     "finished",
                 }));
    QCOMPARE(notes.document.data.count(), 0);
}

void TestStatementRun::saysWhatItDoesWithoutDataRowsAndPages()
{
    saveOrderSetting();
    QVERIFY(runOn(heading, failAtOnce));
    QCOMPARE(m_reporter.log.mid(m_reporter.log.indexOf("generator: out.pdf")),
             (QStringList{
                 "generator: out.pdf",
                 "progress: 1 of 1",
                 "statement: out.pdf",
                 "status: Converting succeeded.",
                 "finished",
             }));
}

void TestStatementRun::saysWhatItDoesWhenThePagesFail_data()
{
    QTest::addColumn<StatementGenerator>("generator");
    QTest::addColumn<QStringList>("painting");

    QTest::newRow("before the first page") << &failAtOnce << QStringList();
    QTest::newRow("halfway") << &failHalfway << QStringList{"progress: 7 of 10"};
    QTest::newRow("when they are saved")
        << &failToSave
        << QStringList{"progress: 7 of 10", "progress: 8 of 10", "progress: 9 of 10",
                       "status: Saving PDF file..."};
}

// The rows are converted all the same, and the printing is offered as ever.
void TestStatementRun::saysWhatItDoesWhenThePagesFail()
{
    QFETCH(StatementGenerator, generator);
    QFETCH(QStringList, painting);
    saveOrderSetting();
    QVERIFY(runOn(threeOrders, generator));
    QCOMPARE(m_reporter.errors, QStringList());
    QCOMPARE(m_reporter.log.mid(m_reporter.log.indexOf("progress: 6 of 10")),
             (QStringList{
                 "progress: 6 of 10",
                 "status: Creating PDF file...",
                 "generator: out.pdf",
             }) + painting
                 + (QStringList{
                     "progress: 10 of 10",
                     "statement: out.pdf",
                     "status: Converting succeeded.",
                     "finished",
                 }));
    QCOMPARE(m_folder->read("out.csv"), QByteArray("number,who\n1,Kim\n2,Lee\n3,Min\n"));
    QVERIFY(!QFile::exists("out.pdf"));
}

void TestStatementRun::saysNothingOfStatements_data()
{
    QTest::addColumn<bool>("generate");
    QTest::addColumn<StatementGenerator>("generator");

    QTest::newRow("not asked for") << false << &paint;
    QTest::newRow("nobody there to make them") << true << StatementGenerator(nullptr);
    QTest::newRow("neither") << false << StatementGenerator(nullptr);
}

void TestStatementRun::saysNothingOfStatements()
{
    QFETCH(bool, generate);
    QFETCH(StatementGenerator, generator);
    StatementSetting statement = orderStatement();
    statement.generate = generate;
    saveOrderSetting(statement);
    QVERIFY(runOn(threeOrders, generator));
    QCOMPARE(notes.calls, 0);
    QCOMPARE(m_reporter.log,
             beginning
                 + (QStringList{
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
    QCOMPARE(m_folder->fileNames(), (QStringList{"orders.txt", "out.csv", "quorinConverter.dat"}));
}

void TestStatementRun::progressInThousandths_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<StatementGenerator>("generator");

    for (const int rows : {333, 500, 1000, 1001, 1999, 12345}) {
        const QByteArray name = QByteArray::number(rows) + " rows, ";
        QTest::newRow(name + "painted") << rows << &paint;
        QTest::newRow(name + "not painted") << rows << &failAtOnce;
        QTest::newRow(name + "half painted") << rows << &failHalfway;
        QTest::newRow(name + "not saved") << rows << &failToSave;
    }
}

void TestStatementRun::progressInThousandths()
{
    QFETCH(int, rows);
    QFETCH(StatementGenerator, generator);
    saveOrderSetting();
    QVERIFY(runOn(heading + QByteArray("1,Kim,pen,2,100\n").repeated(rows), generator));
    QCOMPARE(notes.document.data.count(), rows);
    const auto &progresses = m_reporter.progresses;
    const int maximum = rows + 2 * rows + 1;
    QVERIFY2(progresses.size() <= 2010, qPrintable(QString::number(progresses.size())));
    QCOMPARE(progresses.first(), qMakePair(0, rows));
    QVERIFY(progresses.contains(qMakePair(rows, rows)));
    QVERIFY(progresses.contains(qMakePair(rows, maximum)));
    QCOMPARE(progresses.last(), qMakePair(maximum, maximum));
    QCOMPARE(progresses.count(qMakePair(maximum, maximum)), 1);
    for (int i = 1; i < progresses.size(); ++i) {
        QVERIFY(progresses.at(i).first >= progresses.at(i - 1).first);
        QVERIFY(progresses.at(i).first <= progresses.at(i).second);
        QVERIFY(progresses.at(i).second == rows || progresses.at(i).second == maximum);
        const int step = progresses.at(i).first - progresses.at(i - 1).first;
        if (generator == &paint)
            QVERIFY2(step <= qMax(1, maximum / 500), "a jump that can be seen");
    }
}

// --- where the statement stands ---------------------------------------------------------------

void TestStatementRun::statementFile_data()
{
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("statement");

    const auto row = [](const char *output, const char *statement) {
        QTest::newRow(output) << output << statement;
    };
    row("orders_output.csv", "orders_output.pdf");
    row("a.csv.csv", "a.pdf.pdf");
    row("a.csv.txt", "a.pdf.txt");
    row("a.csvx", "a.pdfx");
    row("a.csv ", "a.pdf ");
    row(".csv", ".pdf");
    row("csv", "csv");
    row("acsv", "acsv");
    row("a..csv", "a..pdf");
    row("주문 서.csv", "주문 서.pdf");
    row("folder/out.csv", "folder/out.pdf");
    row("./out.csv", "./out.pdf");

    // Required: only small letters are replaced, wherever they stand.
    row("result.CSV", "result.CSV");
    row("result.Csv", "result.Csv");
    row("a.csv.CSV", "a.pdf.CSV");
    row("result", "result");
    row("result.txt", "result.txt");
    row("x.csv/out.csv", "x.pdf/out.pdf");
    row("x.csv/out", "x.pdf/out");
}

void TestStatementRun::statementFile()
{
    QFETCH(QString, output);
    QFETCH(QString, statement);
    QVERIFY(QDir().mkdir("folder"));
    QVERIFY(QDir().mkdir("x.csv"));
    saveOrderSetting();
    for (const StatementGenerator generator : {&paint, &failAtOnce}) {
        QVERIFY(runOn(threeOrders, generator, output));
        QCOMPARE(notes.calls, 1);
        QCOMPARE(notes.fileName, statement);
        QCOMPARE(m_reporter.log.filter("statement: "), QStringList("statement: " + statement));
        QVERIFY(QFile::exists(output));
    }
    const QString absolute = m_folder->path(output);
    QVERIFY(runOn(threeOrders, failAtOnce, absolute));
    QCOMPARE(notes.fileName, m_folder->path(statement));
}

// --- what is handed over ----------------------------------------------------------------------

void TestStatementRun::handsOverTheTexts()
{
    StatementSetting statement = orderStatement();
    statement.title = " 구매 <명세서> & 領収書 ";
    statement.ment = "감사합니다.\n\n또 오세요; \"안녕\", 100%\n";
    statement.comment = "ご注文\tありがとう\n%1 \\n";
    statement.font = "Noto Sans CJK KR";
    saveOrderSetting(statement);
    QVERIFY(runOn(threeOrders));
    QCOMPARE(notes.calls, 1);
    QCOMPARE(notes.document.title, statement.title);
    QCOMPARE(notes.document.message, statement.ment);
    QCOMPARE(notes.document.comment, statement.comment);
    QCOMPARE(notes.document.fontFamily, statement.font);
}

void TestStatementRun::handsOverEmptyTexts()
{
    StatementSetting statement;
    statement.generate = true;
    saveOrderSetting(statement);
    QVERIFY(runOn(threeOrders));
    QCOMPARE(notes.calls, 1);
    QCOMPARE(notes.document.title, QString());
    QCOMPARE(notes.document.message, QString());
    QCOMPARE(notes.document.comment, QString());
    QCOMPARE(notes.document.fontFamily, QString());
}

void TestStatementRun::handsOverTheCompany_data()
{
    QTest::addColumn<QList<int>>("leftOut");
    QTest::addColumn<QString>("text");

    using Fields = QList<int>;
    QTest::newRow("everything") << Fields{}
                                << "the store\nwww.example.com\n가게\n\n"
                                   "〒 123-4567\nSeoul\n\n"
                                   "TEL : 02-1\nFAX : 02-9\nE-Mail : a@b.c\n";
    QTest::newRow("no names") << Fields{CompanyInfo::Name, CompanyInfo::StoreName,
                                        CompanyInfo::StoreSite}
                              << "〒 123-4567\nSeoul\n\n"
                                 "TEL : 02-1\nFAX : 02-9\nE-Mail : a@b.c\n";
    QTest::newRow("no address, no fax")
        << Fields{CompanyInfo::PostCode, CompanyInfo::Address, CompanyInfo::Fax}
        << "the store\nwww.example.com\n가게\n\nTEL : 02-1\nE-Mail : a@b.c\n";
    QTest::newRow("only the e-mail address")
        << Fields{CompanyInfo::Name,     CompanyInfo::StoreName, CompanyInfo::StoreSite,
                  CompanyInfo::PostCode, CompanyInfo::Address,   CompanyInfo::Tel,
                  CompanyInfo::Fax}
        << "E-Mail : a@b.c\n";
    QTest::newRow("nothing") << Fields{CompanyInfo::Name,      CompanyInfo::StoreName,
                                       CompanyInfo::StoreSite, CompanyInfo::PostCode,
                                       CompanyInfo::Address,   CompanyInfo::Tel,
                                       CompanyInfo::Fax,       CompanyInfo::Email}
                             << "";
}

void TestStatementRun::handsOverTheCompany()
{
    QFETCH(QList<int>, leftOut);
    QFETCH(QString, text);
    CompanyInfo company;
    company.fields = {"가게", "the store", "www.example.com", "123-4567", "Seoul", "02-1",
                      "02-9", "a@b.c"};
    saveCompanyInfo(company);
    StatementSetting statement = orderStatement();
    for (const int field : leftOut)
        statement.printCompany[size_t(field)] = false;
    saveOrderSetting(statement);
    QVERIFY(runOn(threeOrders));
    QCOMPARE(notes.document.companyText, text);
    QCOMPARE(notes.document.data.printedCompany(), statement.printCompany);
}

void TestStatementRun::companyThatWasNeverEntered()
{
    saveOrderSetting();
    QVERIFY(runOn(threeOrders));
    QCOMPARE(notes.document.companyText, QString("\n\n\n\n〒 \n\n\nTEL : \nFAX : \nE-Mail : \n"));
}

void TestStatementRun::handsOverTheRecords()
{
    saveOrderSetting();
    QVERIFY(runOn(twoOrders));
    QCOMPARE(recordLines(notes.document.data),
             (QStringList{
                 "orderNumber|1| productName|pen| quantity|2| unitPrice|100| subtotal|200| "
                 "sum|200| totalSum|200| payment|200|",
                 "orderNumber|2| productName|cup| quantity|1| unitPrice|500| subtotal|500| "
                 "sum|500| totalSum|500| payment|500|",
                 "orderNumber|1| productName|cap| quantity|1| unitPrice|70| subtotal|70| "
                 "sum|70| totalSum|70| payment|70|",
             }));

    saveOrderSetting(orderStatement(), MergedDuplicates);
    QVERIFY(runOn(twoOrders));
    QCOMPARE(recordLines(notes.document.data),
             (QStringList{
                 "orderNumber|1| productName|pen|cap| productNumber|| option|| quantity|2|1| "
                 "unitPrice|100|70| subtotal|200|70| sum|270| totalSum|270| payment|270|",
                 "orderNumber|2| productName|cup| quantity|1| unitPrice|500| subtotal|500| "
                 "sum|500| totalSum|500| payment|500|",
             }));
    for (int i = 0; i < Count; ++i) {
        QCOMPARE(notes.document.data.prints(Field(i)),
                 i == OrderNumber
                     || (i >= ProductName && i <= Subtotal && i != ProductNumber && i != Option));
    }
}

void TestStatementRun::handsOverTheRecordsOfJoinedRows()
{
    InputSetting input;
    input.heads = QStringList{"no", "name", "item", "price"};
    input.files = {{"orders", {"no", "name"}, -1, -1}, {"items", {"no", "item", "price"}, 0, 0}};
    saveInputSetting(settingName, input);
    OutputItem key = column("number", 0);
    key.distinct = "YES";
    saveOutputItems(settingName, {key});
    StatementSetting statement;
    statement.generate = true;
    statement.fields[Name] = printedField({1, 0}, "/");
    statement.fields[ProductName] = printedField({2});
    statement.fields[UnitPrice] = printedField({3});
    saveStatementSetting(settingName, statement);

    write("items.txt", "no,item,price\n1,pen,100\n3,cup,500\n1,cap,70\n");
    write("orders.txt", "no,name\n1,Kim\n2,Lee\n3,Min\n");
    QVERIFY(run({{"items.txt", "orders.txt"}, "out.csv", settingName}, paint));
    QCOMPARE(recordLines(notes.document.data),
             (QStringList{
                 "name|Kim/1| productName|pen|cap| productNumber|| option|| quantity|0| "
                 "unitPrice|100|70| subtotal|0|",
                 "name|Lee/2| productName|| unitPrice|0|",
                 "name|Min/3| productName|cup| unitPrice|500|",
             }));
    QCOMPARE(m_reporter.progresses.last(), qMakePair(11, 11)); // of the four joined rows
}

void TestStatementRun::handsOverRecordsThatPrintNothing()
{
    StatementSetting statement;
    statement.generate = true;
    saveOrderSetting(statement);
    QVERIFY(runOn(threeOrders));
    QCOMPARE(recordLines(notes.document.data), (QStringList{"", "", ""})); // a page each
}

void TestStatementRun::handsOverNoRecordOfAnEarlierRun()
{
    saveOrderSetting();
    QVERIFY(runOn(threeOrders));
    QCOMPARE(notes.document.data.count(), 3);
    QVERIFY(runOn(heading + "9,Park,ink,1,5\n"));
    QCOMPARE(recordLines(notes.document.data),
             QStringList("orderNumber|9| productName|ink| quantity|1| unitPrice|5| subtotal|5| "
                         "sum|5| totalSum|5| payment|5|"));
    QVERIFY(runOn(heading));
    QCOMPARE(notes.document.data.count(), 0);
}

void TestStatementRun::settingsAreReadForEachRun()
{
    StatementSetting statement = orderStatement();
    saveOrderSetting(statement);
    QVERIFY(runOn(threeOrders));
    QCOMPARE(notes.calls, 1);

    statement.generate = false;
    saveStatementSetting(settingName, statement);
    QVERIFY(runOn(threeOrders));
    QCOMPARE(notes.calls, 0);

    statement.generate = true;
    statement.title = "another";
    statement.fields[ProductName].toPrint = false;
    saveStatementSetting(settingName, statement);
    saveStatementSetting("another setting", StatementSetting());
    QVERIFY(runOn(threeOrders));
    QCOMPARE(notes.calls, 1);
    QCOMPARE(notes.document.title, QString("another"));
    QVERIFY(!notes.document.data.prints(ProductName));
}

QTEST_GUILESS_MAIN(TestStatementRun)

#include "tst_statementrun.moc"
