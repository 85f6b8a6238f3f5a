// The records of a run: how the texts of an output row become a record, how merged rows become
// lines of one record, and which amounts are worked out. Amounts of damaged data wrap around at 32
// bits; the sanitizers see to it that they do so without undefined behaviour.
#include "statement/statementdata.h"
#include "tests/statement/statementtest.h"

#include <QRandomGenerator>
#include <QtTest>
#include <limits>

using namespace StatementFields;

namespace {

const qint32 greatest = std::numeric_limits<qint32>::max();
const qint32 least = std::numeric_limits<qint32>::min();

StatementData dataPrinting(const StatementFlags &flags)
{
    return StatementData(settingPrinting(flags));
}

StatementTexts sameText(const QString &text)
{
    StatementTexts texts;
    texts.fill(text);
    return texts;
}

/// The texts of one row, a different one in each field.
StatementTexts textsOfRow(int row)
{
    StatementTexts texts;
    for (int i = 0; i < StatementFields::Count; ++i)
        texts[size_t(i)] = QString::number(row * 100 + i);
    return texts;
}

// Records as lists of texts, without any of the program's types.
class PlainRecords
{
public:
    explicit PlainRecords(const StatementFlags &flags) : m_flags(flags) {}

    int count() const { return m_records.size(); }

    void add(const StatementTexts &texts)
    {
        QList<QStringList> record;
        for (int i = 0; i < StatementFields::Count; ++i) {
            const bool isList = i >= 5 && i <= 10;
            if (m_flags[size_t(i)])
                record.append({texts[size_t(i)]});
            else if (isList)
                record.append(QStringList());
            else
                record.append({i < 5 ? "" : "0"});
        }
        m_records.append(record);
    }

    void merge(int kept, int removed)
    {
        const QList<QStringList> source = m_records.at(removed);
        for (int i = 5; i <= 10; ++i) {
            const QString empty = i <= 7 ? "" : "0";
            m_records[kept][i].append(source.at(i).isEmpty() ? empty : source.at(i).first());
        }
        m_records.removeAt(removed);
    }

    QStringList lines(int index) const
    {
        QStringList lines;
        for (int i = 0; i < StatementFields::Count; ++i) {
            const QStringList &values = m_records.at(index).at(i);
            const QString quote = i <= 7 ? "\"" : "";
            QString text = quote + values.join(quote + "," + quote) + quote;
            if (i >= 5 && i <= 10)
                text = values.isEmpty() ? "[]" : "[" + text + "]";
            lines.append(key(i) + "=" + text);
        }
        return lines;
    }

private:
    StatementFlags m_flags;
    QList<QList<QStringList>> m_records;
};

qint32 wrapped(qint64 value)
{
    const qint64 range = Q_INT64_C(1) << 32;
    const qint64 rest = (value % range + range) % range;
    return qint32(rest > greatest ? rest - range : rest);
}

// The four steps with numbers that do not overflow.
void plainlyCompute(StatementRecord &record)
{
    const auto at = [](const QVector<qint32> &list, int i) -> qint64 {
        return i < list.size() ? list.at(i) : 0;
    };
    qint64 sum = 0;
    for (int i = 0; i < record.subtotal.size(); ++i) {
        if (record.subtotal.at(i) == 0)
            record.subtotal[i] = wrapped(at(record.quantity, i) * at(record.unitPrice, i));
        sum += record.subtotal.at(i);
    }
    if (record.sum == 0)
        record.sum = wrapped(sum);
    if (record.totalSum == 0) {
        record.totalSum =
            wrapped(qint64(record.shippingCharge) + record.codCharge + record.tax + record.sum);
    }
    if (record.payment == 0)
        record.payment = wrapped(qint64(record.totalSum) - record.point - record.coupon);
}

/// Often 0, often at the ends of the range.
qint32 randomAmount(QRandomGenerator &random)
{
    switch (random.bounded(5)) {
    case 0:
    case 1:
        return 0;
    case 2:
        return random.bounded(-5000, 5000);
    case 3:
        return QVector<qint32>{greatest, least, -1, 1, 65536, least + 1}.at(random.bounded(6));
    default:
        return qint32(random.generate());
    }
}

QVector<qint32> randomAmounts(QRandomGenerator &random)
{
    QVector<qint32> amounts(random.bounded(5));
    for (qint32 &amount : amounts)
        amount = randomAmount(random);
    return amounts;
}

struct Amounts {
    qint32 sum = 0;
    qint32 tax = 0;
    qint32 shippingCharge = 0;
    qint32 codCharge = 0;
    qint32 totalSum = 0;
    qint32 coupon = 0;
    qint32 point = 0;
    qint32 payment = 0;
};

StatementRecord recordOf(const QVector<qint32> &quantity, const QVector<qint32> &unitPrice,
                         const QVector<qint32> &subtotal, const Amounts &amounts = Amounts())
{
    StatementRecord record;
    record.quantity = quantity;
    record.unitPrice = unitPrice;
    record.subtotal = subtotal;
    record.sum = amounts.sum;
    record.tax = amounts.tax;
    record.shippingCharge = amounts.shippingCharge;
    record.codCharge = amounts.codCharge;
    record.totalSum = amounts.totalSum;
    record.coupon = amounts.coupon;
    record.point = amounts.point;
    record.payment = amounts.payment;
    return record;
}

// The lines of amounts that can be worked out.
QStringList computedLines(const StatementRecord &record)
{
    const QStringList lines = recordLines(record);
    return {lines.at(Subtotal), lines.at(Sum), lines.at(TotalSum), lines.at(Payment)};
}

} // namespace

Q_DECLARE_METATYPE(StatementRecord)

class TestStatementData : public QObject
{
    Q_OBJECT

private slots:
    void equalityLooksAtEveryField();
    void newRecordIsEmpty();
    void flagsAreThoseOfTheSetting();
    void textBecomesWhatItsFieldIs_data();
    void textBecomesWhatItsFieldIs();
    void textsKeepTheirBlanksAndLines();
    void unprintedTextsDoNotCount_data();
    void unprintedTextsDoNotCount();
    void numbersAreWholeAndPlain_data();
    void numbersAreWholeAndPlain();
    void numberThatIsNoFieldStoresNothing();
    void clearingRemovesTheRecordsOnly();

    void mergedRowBecomesALine();
    void mergingKeepsTheOrderOfTheMerges();
    void mergingTakesTheFirstLineOnly();
    void mergingEmptyListsAddsEmptyEntries();
    void mergingOnlyTouchesTwoRecords();
    void mergingAgreesWithThePlainVersion();

    void amountsAreComputed_data();
    void amountsAreComputed();
    void amountsWrapAround_data();
    void amountsWrapAround();
    void amountsAreComputedIfAnyOfThemIsPrinted();
    void amountsOfEveryRecordAreComputed();
    void amountsOfMergedRowsAreComputed();
    void subtotalsThatAreNotPrintedAreMissing();
    void computingAgreesWithThePlainVersion();
};

// --- records ----------------------------------------------------------------------------------

void TestStatementData::equalityLooksAtEveryField()
{
    const StatementRecord empty;
    QVERIFY(empty == StatementRecord());
    for (int i = 0; i < StatementFields::Count; ++i) {
        StatementRecord changed;
        changed.setField(StatementFields::Field(i), "1");
        QVERIFY2(!(changed == empty), qPrintable(key(i)));
        StatementRecord same;
        same.setField(StatementFields::Field(i), "1");
        QVERIFY2(changed == same, qPrintable(key(i)));
    }
}

void TestStatementData::newRecordIsEmpty()
{
    const QStringList expected = {
        R"(Name="")",      R"(Address="")",    R"(PostCode="")",   R"(OrderNumber="")",
        R"(OrderDate="")", "ProductName=[]",   "ProductNumber=[]", "Option=[]",
        "Quantity=[]",     "UnitPrice=[]",     "Subtotal=[]",      "Sum=0",
        "Tax=0",           "ShippingCharge=0", "C.O.D.Charge=0",   "TotalSum=0",
        "Coupon=0",        "Point=0",          "Payment=0"};
    QCOMPARE(recordLines(StatementRecord()), expected);

    StatementData data = dataPrinting(noFlags());
    QCOMPARE(data.count(), 0);
    data.addRecord(sameText("7"));
    QCOMPARE(data.count(), 1);
    QCOMPARE(recordLines(data.record(0)), expected);
}

void TestStatementData::flagsAreThoseOfTheSetting()
{
    for (int i = 0; i < StatementFields::Count; ++i) {
        const StatementFlags flags = flagsOf({StatementFields::Field(i)});
        const StatementData data = dataPrinting(flags);
        QVERIFY2(data.printed() == flags, qPrintable(key(i)));
        for (int j = 0; j < StatementFields::Count; ++j)
            QCOMPARE(data.prints(StatementFields::Field(j)), i == j);
    }
    for (size_t i = 0; i < CompanyInfo::FieldCount; ++i) {
        StatementSetting setting;
        setting.printCompany[i] = false;
        QVERIFY(StatementData(setting).printedCompany() == setting.printCompany);
    }
}

void TestStatementData::textBecomesWhatItsFieldIs_data()
{
    QTest::addColumn<int>("field");
    QTest::addColumn<QString>("line");

    const QStringList lines = {R"(Name="12")",
                               R"(Address="12")",
                               R"(PostCode="12")",
                               R"(OrderNumber="12")",
                               R"(OrderDate="12")",
                               R"(ProductName=["12"])",
                               R"(ProductNumber=["12"])",
                               R"(Option=["12"])",
                               "Quantity=[12]",
                               "UnitPrice=[12]",
                               "Subtotal=[12]",
                               "Sum=12",
                               "Tax=12",
                               "ShippingCharge=12",
                               "C.O.D.Charge=12",
                               "TotalSum=12",
                               "Coupon=12",
                               "Point=12",
                               "Payment=12"};
    for (int i = 0; i < lines.size(); ++i)
        QTest::newRow(qPrintable(lines.at(i))) << i << lines.at(i);
}

void TestStatementData::textBecomesWhatItsFieldIs()
{
    QFETCH(int, field);
    QFETCH(QString, line);
    StatementTexts texts;
    texts[size_t(field)] = "12";
    QStringList expected = recordLines(StatementRecord());
    expected[field] = line;

    StatementData data = dataPrinting(flagsOf({StatementFields::Field(field)}));
    data.addRecord(texts);
    QCOMPARE(recordLines(data.record(0)), expected);
}

void TestStatementData::textsKeepTheirBlanksAndLines()
{
    const QString text = "  <b>가\r\nb\t";
    StatementData data = dataPrinting(allFlags());
    data.addRecord(sameText(text));
    const StatementRecord &record = data.record(0);
    QCOMPARE(record.name, text);
    QCOMPARE(record.address, text);
    QCOMPARE(record.postCode, text);
    QCOMPARE(record.orderNumber, text);
    QCOMPARE(record.orderDate, text); // the page shows its first characters, the record has all
    QCOMPARE(record.productName, QStringList(text));
    QCOMPARE(record.productNumber, QStringList(text));
    QCOMPARE(record.option, QStringList(text));
}

void TestStatementData::unprintedTextsDoNotCount_data()
{
    QTest::addColumn<int>("field");

    for (int i = 0; i < StatementFields::Count; ++i)
        QTest::newRow(qPrintable(key(i))) << i;
}

void TestStatementData::unprintedTextsDoNotCount()
{
    QFETCH(int, field);
    StatementFlags flags = allFlags();
    flags[size_t(field)] = false;
    StatementTexts texts = sameText("5");
    StatementData data = dataPrinting(flags);
    data.addRecord(texts);
    texts[size_t(field)].clear();
    data.addRecord(texts);

    QStringList expected = recordLines(data.record(0));
    QCOMPARE(recordLines(data.record(1)), expected);
    QCOMPARE(expected.filter("5").size(), StatementFields::Count - 1);
    QCOMPARE(expected.at(field), recordLines(StatementRecord()).at(field));
}

void TestStatementData::numbersAreWholeAndPlain_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");

    QTest::newRow("digits") << "1500" << 1500;
    QTest::newRow("zero") << "0" << 0;
    QTest::newRow("nothing") << "" << 0;
    QTest::newRow("negative") << "-3" << -3;
    QTest::newRow("plus sign") << "+3" << 3;
    QTest::newRow("leading zeros are decimal") << "0010" << 10;
    QTest::newRow("blanks around") << " 7 " << 7;
    QTest::newRow("line end behind") << "7\r\n" << 7;
    QTest::newRow("greatest") << "2147483647" << greatest;
    QTest::newRow("least") << "-2147483648" << least;
    QTest::newRow("one more than the greatest") << "2147483648" << 0;
    QTest::newRow("one less than the least") << "-2147483649" << 0;
    QTest::newRow("beyond 64 bits") << "99999999999999999999999" << 0;
    QTest::newRow("thousands separator") << "1,000" << 0;
    QTest::newRow("fraction") << "3.5" << 0;
    QTest::newRow("fraction of nothing") << "3.0" << 0;
    QTest::newRow("exponent") << "1e3" << 0;
    QTest::newRow("currency sign before") << "¥5" << 0;
    QTest::newRow("currency sign behind") << "5円" << 0;
    QTest::newRow("currency in Korean") << "5원" << 0;
    QTest::newRow("hexadecimal") << "0x10" << 0;
    QTest::newRow("blank inside") << "1 000" << 0;
    QTest::newRow("blank behind the sign") << "- 3" << 0;
    QTest::newRow("two signs") << "--3" << 0;
    QTest::newRow("sign alone") << "-" << 0;
    QTest::newRow("wide digits") << "１２" << 0;
    QTest::newRow("Arabic digits") << "٣" << 0;
    QTest::newRow("two lines") << "1\n2" << 0;
}

void TestStatementData::numbersAreWholeAndPlain()
{
    QFETCH(QString, text);
    QFETCH(int, number);
    StatementData data = dataPrinting(allFlags());
    data.addRecord(sameText(text));
    const StatementRecord &record = data.record(0);
    QCOMPARE(record.quantity, QVector<qint32>{number});
    QCOMPARE(record.unitPrice, QVector<qint32>{number});
    QCOMPARE(record.subtotal, QVector<qint32>{number});
    for (const qint32 amount : {record.sum, record.tax, record.shippingCharge, record.codCharge,
                                record.totalSum, record.coupon, record.point, record.payment})
        QCOMPARE(amount, number);
}

void TestStatementData::numberThatIsNoFieldStoresNothing()
{
    StatementRecord record;
    record.setField(StatementFields::Count, "7");
    QVERIFY(record == StatementRecord());
}

void TestStatementData::clearingRemovesTheRecordsOnly()
{
    StatementData data = dataPrinting(flagsOf({Name, Sum}));
    data.addRecord(sameText("7"));
    data.addRecord(sameText("8"));
    data.clear();
    QCOMPARE(data.count(), 0);
    QVERIFY(data.printed() == flagsOf({Name, Sum}));
    data.computeAmounts();
    data.addRecord(sameText("9"));
    QCOMPARE(data.count(), 1);
    QCOMPARE(data.record(0).sum, 9);
}

// --- merging ----------------------------------------------------------------------------------

void TestStatementData::mergedRowBecomesALine()
{
    StatementData data = dataPrinting(allFlags());
    data.addRecord(textsOfRow(1));
    data.addRecord(textsOfRow(2));
    data.mergeRecords(0, 1);
    QCOMPARE(data.count(), 1);
    const QStringList expected = {R"(Name="100")",
                                  R"(Address="101")",
                                  R"(PostCode="102")",
                                  R"(OrderNumber="103")",
                                  R"(OrderDate="104")",
                                  R"(ProductName=["105","205"])",
                                  R"(ProductNumber=["106","206"])",
                                  R"(Option=["107","207"])",
                                  "Quantity=[108,208]",
                                  "UnitPrice=[109,209]",
                                  "Subtotal=[110,210]",
                                  "Sum=111",
                                  "Tax=112",
                                  "ShippingCharge=113",
                                  "C.O.D.Charge=114",
                                  "TotalSum=115",
                                  "Coupon=116",
                                  "Point=117",
                                  "Payment=118"};
    QCOMPARE(recordLines(data.record(0)), expected);
}

void TestStatementData::mergingKeepsTheOrderOfTheMerges()
{
    StatementData data = dataPrinting(flagsOf({ProductName, Quantity}));
    for (int row = 1; row <= 4; ++row)
        data.addRecord(textsOfRow(row));
    data.mergeRecords(0, 3); // records 1, 2, 3 are left
    data.mergeRecords(0, 1);
    data.mergeRecords(0, 1);
    QCOMPARE(data.count(), 1);
    QCOMPARE(data.record(0).productName, (QStringList{"105", "405", "205", "305"}));
    QCOMPARE(data.record(0).quantity, (QVector<qint32>{108, 408, 208, 308}));
}

void TestStatementData::mergingTakesTheFirstLineOnly()
{
    StatementData data = dataPrinting(flagsOf({ProductName, ProductNumber, Option, Subtotal}));
    for (int row = 1; row <= 3; ++row)
        data.addRecord(textsOfRow(row));
    data.mergeRecords(1, 2);
    QCOMPARE(data.record(1).productName, (QStringList{"205", "305"}));
    data.mergeRecords(0, 1);
    QCOMPARE(data.count(), 1);
    QCOMPARE(data.record(0).productName, (QStringList{"105", "205"}));
    QCOMPARE(data.record(0).productNumber, (QStringList{"106", "206"}));
    QCOMPARE(data.record(0).option, (QStringList{"107", "207"}));
    QCOMPARE(data.record(0).subtotal, (QVector<qint32>{110, 210}));
}

// Required: a list that is not printed grows, too, and is one entry behind from then on.
void TestStatementData::mergingEmptyListsAddsEmptyEntries()
{
    StatementData data = dataPrinting(flagsOf({ProductName}));
    for (int row = 1; row <= 3; ++row)
        data.addRecord(textsOfRow(row));
    data.mergeRecords(0, 1);
    data.mergeRecords(0, 1);
    QCOMPARE(data.record(0).productName, (QStringList{"105", "205", "305"}));
    QCOMPARE(data.record(0).productNumber, (QStringList{"", ""}));
    QCOMPARE(data.record(0).option, (QStringList{"", ""}));
    QCOMPARE(data.record(0).quantity, (QVector<qint32>{0, 0}));
    QCOMPARE(data.record(0).unitPrice, (QVector<qint32>{0, 0}));
    QCOMPARE(data.record(0).subtotal, (QVector<qint32>{0, 0}));
}

void TestStatementData::mergingOnlyTouchesTwoRecords()
{
    StatementData data = dataPrinting(allFlags());
    StatementData untouched = dataPrinting(allFlags());
    for (int row = 0; row < 5; ++row) {
        data.addRecord(textsOfRow(row));
        untouched.addRecord(textsOfRow(row));
    }
    data.mergeRecords(3, 1); // the removed one stands before the kept one
    QCOMPARE(data.count(), 4);
    QCOMPARE(recordLines(data.record(0)), recordLines(untouched.record(0)));
    QCOMPARE(recordLines(data.record(1)), recordLines(untouched.record(2)));
    QCOMPARE(recordLines(data.record(3)), recordLines(untouched.record(4)));
    QCOMPARE(data.record(2).name, untouched.record(3).name);
    QCOMPARE(data.record(2).productName, (QStringList{"305", "105"}));
}

void TestStatementData::mergingAgreesWithThePlainVersion()
{
    QRandomGenerator random(5);
    for (int round = 0; round < 300; ++round) {
        const StatementFlags flags = flagsOfBits(random.generate());
        StatementData data = dataPrinting(flags);
        PlainRecords plain(flags);
        const int rows = random.bounded(1, 12);
        for (int row = 0; row < rows; ++row) {
            data.addRecord(textsOfRow(row));
            plain.add(textsOfRow(row));
        }
        while (plain.count() > 0) {
            QCOMPARE(data.count(), plain.count());
            for (int i = 0; i < plain.count(); ++i)
                QCOMPARE(recordLines(data.record(i)), plain.lines(i));
            const int kept = random.bounded(plain.count()); // the same one twice, too
            const int removed = random.bounded(plain.count());
            data.mergeRecords(kept, removed);
            plain.merge(kept, removed);
        }
        QCOMPARE(data.count(), 0);
    }
}

// --- amounts ----------------------------------------------------------------------------------

static void addAmountColumns()
{
    QTest::addColumn<StatementRecord>("record");
    QTest::addColumn<QStringList>("computed");
}

static void amountRow(const char *name, const StatementRecord &record,
                      const QVector<qint32> &subtotal, qint32 sum, qint32 totalSum, qint32 payment)
{
    StatementRecord computed;
    computed.subtotal = subtotal;
    computed.sum = sum;
    computed.totalSum = totalSum;
    computed.payment = payment;
    QTest::newRow(name) << record << computedLines(computed);
}

static void computeAndCompare()
{
    QFETCH(StatementRecord, record);
    QFETCH(QStringList, computed);
    const QStringList given = recordLines(record);
    record.computeAmounts();
    QCOMPARE(computedLines(record), computed);
    const QStringList lines = recordLines(record);
    for (int i = 0; i < StatementFields::Count; ++i) {
        if (i != Subtotal && i != Sum && i != TotalSum && i != Payment)
            QCOMPARE(lines.at(i), given.at(i));
    }
    record.computeAmounts(); // there is nothing left to compute
    QCOMPARE(computedLines(record), computed);
}

void TestStatementData::amountsAreComputed_data()
{
    addAmountColumns();
    Amounts amounts;
    amountRow("quantity and unit price are all that is given", recordOf({2}, {1500}, {0}), {3000},
              3000, 3000, 3000);
    amountRow("nothing at all", StatementRecord(), {}, 0, 0, 0);
    amountRow("several lines", recordOf({2, 1, 3}, {100, 50, 10}, {0, 0, 0}), {200, 50, 30}, 280,
              280, 280);
    amountRow("a subtotal that is given wins", recordOf({2, 2}, {100, 100}, {150, 0}), {150, 200},
              350, 350, 350);
    amountRow("a negative subtotal is given, too", recordOf({2}, {100}, {-1}), {-1}, -1, -1, -1);
    amountRow("negative quantity", recordOf({-2}, {100}, {0}), {-200}, -200, -200, -200);
    amountRow("a missing quantity counts as 0", recordOf({2}, {100, 100}, {0, 0}), {200, 0}, 200,
              200, 200);
    amountRow("a missing unit price counts as 0", recordOf({2, 2}, {100}, {0, 0}), {200, 0}, 200,
              200, 200);
    amountRow("no quantities and no unit prices", recordOf({}, {}, {0, 0}), {0, 0}, 0, 0, 0);
    amountRow("required: a line without an entry for its subtotal is not counted",
              recordOf({2, 3}, {100, 100}, {0}), {200}, 200, 200, 200);
    amountRow("required: without subtotals there is no sum", recordOf({2}, {100}, {}), {}, 0, 0, 0);

    amounts = Amounts();
    amounts.sum = 999;
    amountRow("a sum that is given wins over the subtotals", recordOf({2}, {100}, {0}, amounts),
              {200}, 999, 999, 999);
    amounts = Amounts();
    amounts.totalSum = 5000;
    amountRow("a total that is given stays, and the payment comes from it",
              recordOf({2}, {1500}, {0}, amounts), {3000}, 3000, 5000, 5000);
    amounts.point = 100;
    amounts.coupon = 20;
    amountRow("points and coupon go off the total that is given",
              recordOf({2}, {1500}, {0}, amounts), {3000}, 3000, 5000, 4880);
    amounts = Amounts();
    amounts.payment = 1;
    amountRow("a payment that is given stays", recordOf({2}, {1500}, {0}, amounts), {3000}, 3000,
              3000, 1);
    amounts = Amounts();
    amounts.tax = 1;
    amounts.shippingCharge = 20;
    amounts.codCharge = 300;
    amounts.coupon = 4000;
    amounts.point = 50000;
    amountRow("charges and tax are added, points and coupon taken off",
              recordOf({1}, {600000}, {0}, amounts), {600000}, 600000, 600321, 546321);
    amountRow("the payment may be negative", recordOf({1}, {600}, {0}, amounts), {600}, 600, 921,
              -53079);
    amounts = Amounts();
    amounts.sum = -300;
    amounts.shippingCharge = 300;
    amountRow("amounts that add up to nothing", recordOf({}, {}, {}, amounts), {}, -300, 0, 0);
    amountRow("subtotals that add up to nothing", recordOf({}, {}, {5, -5}), {5, -5}, 0, 0, 0);
    amounts.sum = 1;
    amounts.totalSum = 2;
    amounts.payment = 3;
    amountRow("everything is given", recordOf({2}, {100}, {7}, amounts), {7}, 1, 2, 3);
}

void TestStatementData::amountsAreComputed()
{
    computeAndCompare();
}

void TestStatementData::amountsWrapAround_data()
{
    addAmountColumns();
    Amounts amounts;
    amountRow("product beyond the greatest number", recordOf({50000}, {50000}, {0}), {-1794967296},
              -1794967296, -1794967296, -1794967296);
    amountRow("product of the greatest numbers", recordOf({greatest}, {greatest}, {0}), {1}, 1, 1,
              1);
    amountRow("product of the least numbers is nothing", recordOf({least}, {least}, {0}), {0}, 0, 0,
              0);
    amountRow("product of the least number and -1", recordOf({least}, {-1}, {0}), {least}, least,
              least, least);
    amountRow("product that loses all its bits", recordOf({65536}, {65536}, {0}), {0}, 0, 0, 0);
    amountRow("sum of subtotals upwards", recordOf({}, {}, {greatest, 1}), {greatest, 1}, least,
              least, least);
    amountRow("sum of subtotals downwards", recordOf({}, {}, {least, -1}), {least, -1}, greatest,
              greatest, greatest);
    amountRow("sum of subtotals that loses all its bits", recordOf({}, {}, {least, least}),
              {least, least}, 0, 0, 0);

    amounts.sum = greatest;
    amounts.tax = 1;
    amountRow("total with tax", recordOf({}, {}, {}, amounts), {}, greatest, least, least);
    amounts.tax = 0;
    amounts.codCharge = 2;
    amountRow("total with cash on delivery", recordOf({}, {}, {}, amounts), {}, greatest, least + 1,
              least + 1);
    amounts.codCharge = 0;
    amounts.shippingCharge = greatest;
    amountRow("total with shipping", recordOf({}, {}, {}, amounts), {}, greatest, -2, -2);
    amounts = Amounts();
    amounts.totalSum = least;
    amounts.point = 1;
    amountRow("payment with points", recordOf({}, {}, {}, amounts), {}, 0, least, greatest);
    amounts.point = 0;
    amounts.coupon = least;
    amountRow("payment with a coupon of the least number", recordOf({}, {}, {}, amounts), {}, 0,
              least, 0);
    amounts.totalSum = 0;
    amountRow("payment of the negative of the least number", recordOf({}, {}, {}, amounts), {}, 0,
              0, least);
    amounts.point = least;
    amountRow("payment that loses all its bits", recordOf({}, {}, {}, amounts), {}, 0, 0, 0);
}

void TestStatementData::amountsWrapAround()
{
    computeAndCompare();
}

void TestStatementData::amountsAreComputedIfAnyOfThemIsPrinted()
{
    StatementTexts texts;
    texts[Quantity] = "2";
    texts[UnitPrice] = "1500";
    texts[Subtotal] = "0";
    texts[Tax] = "10";
    // What else is printed does not matter, but that quantity and price are.
    const StatementFlags always = flagsOf(
        {Quantity, UnitPrice, Tax, Coupon, Point, Name, ProductName, ShippingCharge, CodCharge});
    for (int bits = 0; bits < 16; ++bits) {
        StatementFlags flags = always;
        flags[Subtotal] = (bits & 1) != 0;
        flags[Sum] = (bits & 2) != 0;
        flags[TotalSum] = (bits & 4) != 0;
        flags[Payment] = (bits & 8) != 0;
        StatementData data = dataPrinting(flags);
        data.addRecord(texts);
        const QStringList before = computedLines(data.record(0));
        data.computeAmounts();
        QStringList expected = {"Subtotal=[]", "Sum=0", "TotalSum=10", "Payment=10"};
        if (bits == 0)
            expected = before;
        else if (flags[Subtotal])
            expected = QStringList{"Subtotal=[3000]", "Sum=3000", "TotalSum=3010", "Payment=3010"};
        QCOMPARE(computedLines(data.record(0)), expected);
    }
}

void TestStatementData::amountsOfEveryRecordAreComputed()
{
    StatementData data = dataPrinting(flagsOf({Quantity, UnitPrice, Subtotal}));
    StatementTexts texts;
    texts[UnitPrice] = "10";
    for (int row = 1; row <= 100; ++row) {
        texts[Quantity] = QString::number(row);
        data.addRecord(texts);
    }
    data.computeAmounts();
    for (int row = 1; row <= 100; ++row)
        QCOMPARE(data.record(row - 1).payment, row * 10);
}

void TestStatementData::amountsOfMergedRowsAreComputed()
{
    StatementData data = dataPrinting(flagsOf({ProductName, Quantity, UnitPrice, Subtotal, Sum}));
    StatementTexts texts;
    texts[Quantity] = "2";
    texts[UnitPrice] = "100";
    data.addRecord(texts);
    texts[Quantity] = "3";
    texts[Subtotal] = "250";
    data.addRecord(texts);
    data.mergeRecords(0, 1);
    data.computeAmounts();
    QCOMPARE(computedLines(data.record(0)),
             (QStringList{"Subtotal=[200,250]", "Sum=450", "TotalSum=450", "Payment=450"}));
}

// Required: the list of a field that is not printed has no entry of the first row, so the last line
// of an order is not in its sum.
void TestStatementData::subtotalsThatAreNotPrintedAreMissing()
{
    StatementData data = dataPrinting(flagsOf({Quantity, UnitPrice, Sum}));
    StatementTexts texts;
    texts[UnitPrice] = "100";
    for (const char *quantity : {"1", "2", "4"}) {
        texts[Quantity] = quantity;
        data.addRecord(texts);
    }
    data.mergeRecords(0, 1);
    data.mergeRecords(0, 1);
    data.computeAmounts();
    QCOMPARE(computedLines(data.record(0)),
             (QStringList{"Subtotal=[100,200]", "Sum=300", "TotalSum=300", "Payment=300"}));
}

void TestStatementData::computingAgreesWithThePlainVersion()
{
    QRandomGenerator random(7);
    for (int round = 0; round < 20000; ++round) {
        StatementRecord record;
        record.quantity = randomAmounts(random);
        record.unitPrice = randomAmounts(random);
        record.subtotal = randomAmounts(random);
        for (qint32 *amount : {&record.sum, &record.tax, &record.shippingCharge, &record.codCharge,
                               &record.totalSum, &record.coupon, &record.point, &record.payment})
            *amount = randomAmount(random);
        StatementRecord expected = record;
        plainlyCompute(expected);
        record.computeAmounts();
        QCOMPARE(recordLines(record), recordLines(expected));
    }
}

QTEST_GUILESS_MAIN(TestStatementData)
#include "tst_statementdata.moc"
