// The fixed table of what a statement can show: the numbers are stored nowhere, but everything is
// counted by them; the keys stand in the users' settings files; the names are what the user reads.
#include "statement/statementfields.h"
#include "tests/statement/statementtest.h"

#include <QCoreApplication>
#include <QSet>
#include <QtTest>
#include <limits>

class TestStatementFields : public QObject
{
    Q_OBJECT

private slots:
    void tableOfFields_data();
    void tableOfFields();
    void thereAreNineteenFieldsWithKeysOfTheirOwn();
    void numberThatIsNoFieldHasNoName_data();
    void numberThatIsNoFieldHasNoName();
    void namesAreTranslatedAndKeysAreNot();
};

void TestStatementFields::tableOfFields_data()
{
    using namespace StatementFields;
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("field");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("displayName");

    QTest::newRow("0") << 0 << int(Name) << "Name"
                       << "Name";
    QTest::newRow("1") << 1 << int(Address) << "Address"
                       << "Address";
    QTest::newRow("2") << 2 << int(PostCode) << "PostCode"
                       << "Post code";
    QTest::newRow("3") << 3 << int(OrderNumber) << "OrderNumber"
                       << "Order number";
    QTest::newRow("4") << 4 << int(OrderDate) << "OrderDate"
                       << "Order date";
    QTest::newRow("5") << 5 << int(ProductName) << "ProductName"
                       << "Product name";
    QTest::newRow("6") << 6 << int(ProductNumber) << "ProductNumber"
                       << "Product number";
    QTest::newRow("7") << 7 << int(Option) << "Option"
                       << "Option";
    QTest::newRow("8") << 8 << int(Quantity) << "Quantity"
                       << "Quantity";
    QTest::newRow("9") << 9 << int(UnitPrice) << "UnitPrice"
                       << "Unit price";
    QTest::newRow("10") << 10 << int(Subtotal) << "Subtotal"
                        << "Subtotal";
    QTest::newRow("11") << 11 << int(Sum) << "Sum"
                        << "Sum";
    QTest::newRow("12") << 12 << int(Tax) << "Tax"
                        << "Tax";
    QTest::newRow("13") << 13 << int(ShippingCharge) << "ShippingCharge"
                        << "Shipping charge";
    QTest::newRow("14, spelt in two ways") << 14 << int(CodCharge) << "C.O.D.Charge"
                                           << "C.O.D charge";
    QTest::newRow("15") << 15 << int(TotalSum) << "TotalSum"
                        << "Total sum";
    QTest::newRow("16") << 16 << int(Coupon) << "Coupon"
                        << "Coupon";
    QTest::newRow("17") << 17 << int(Point) << "Point"
                        << "Point";
    QTest::newRow("18") << 18 << int(Payment) << "Payment"
                        << "Payment";
}

void TestStatementFields::tableOfFields()
{
    QFETCH(int, number);
    QTEST(number, "field");
    QTEST(StatementFields::key(number), "key");
    QTEST(StatementFields::displayName(number), "displayName");
}

void TestStatementFields::thereAreNineteenFieldsWithKeysOfTheirOwn()
{
    QCOMPARE(int(StatementFields::Count), 19);
    QSet<QString> keys;
    QSet<QString> names;
    for (int i = 0; i < StatementFields::Count; ++i) {
        keys.insert(StatementFields::key(i));
        names.insert(StatementFields::displayName(i));
    }
    QCOMPARE(keys.size(), 19);
    QCOMPARE(names.size(), 19);
}

void TestStatementFields::numberThatIsNoFieldHasNoName_data()
{
    QTest::addColumn<int>("number");

    QTest::newRow("behind the last") << 19;
    QTest::newRow("two behind the last") << 20;
    QTest::newRow("before the first") << -1;
    QTest::newRow("the greatest number") << std::numeric_limits<int>::max();
    QTest::newRow("the least number") << std::numeric_limits<int>::min();
}

void TestStatementFields::numberThatIsNoFieldHasNoName()
{
    QFETCH(int, number);
    BracketTranslator translator; // must not be asked
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(StatementFields::key(number), QString());
    QCOMPARE(StatementFields::displayName(number), QString());
}

void TestStatementFields::namesAreTranslatedAndKeysAreNot()
{
    QStringList keys;
    QStringList translatedNames;
    for (int i = 0; i < StatementFields::Count; ++i) {
        keys.append(StatementFields::key(i));
        translatedNames.append("[" + StatementFields::displayName(i) + "]");
    }
    BracketTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    for (int i = 0; i < StatementFields::Count; ++i) {
        QCOMPARE(StatementFields::key(i), keys.at(i));
        QCOMPARE(StatementFields::displayName(i), translatedNames.at(i));
    }
}

QTEST_GUILESS_MAIN(TestStatementFields)
#include "tst_statementfields.moc"
