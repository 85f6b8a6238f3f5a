// The rich text of a page, letter by letter: which parts there are for which fields, how numbers
// and texts stand in it, and that no value of an order can be taken for a part of the page.
#include "statement/statementhtml.h"
#include "tests/statement/statementtest.h"

#include <QRandomGenerator>
#include <QtTest>
#include <limits>

using namespace StatementFields;

namespace {

QString htmlOf(const StatementFlags &flags, const StatementRecord &record)
{
    return StatementHtml(flags).html(record);
}

// Two product lines; every value differs from every other.
StatementRecord usualRecord()
{
    StatementRecord record;
    record.name = "Kim";
    record.address = "Seoul";
    record.postCode = "123-456";
    record.orderNumber = "A-17";
    record.orderDate = "2011/10/04 12:30";
    record.productName = QStringList{"Pen", "Ink"};
    record.productNumber = QStringList{"P1", "I2"};
    record.option = QStringList{"blue", "50 ml"};
    record.quantity = {2, 1000};
    record.unitPrice = {1500, 20};
    record.subtotal = {3000, 20001};
    record.sum = 23001;
    record.tax = 8;
    record.shippingCharge = 500;
    record.codCharge = 300;
    record.totalSum = 23809;
    record.coupon = 100;
    record.point = 9;
    record.payment = 1023700;
    return record;
}

// The same text, put together in the plainest way: no part knows of another.
class PlainHtml
{
public:
    PlainHtml(const StatementFlags &printed, const StatementRecord &record)
        : m_printed(printed), m_record(record)
    {
    }

    QString html() const { return order() + products() + amounts(11, 14) + amounts(15, 18); }

private:
    static QString escaped(QString text)
    {
        return text.replace('&', "&amp;")
            .replace('<', "&lt;")
            .replace('>', "&gt;")
            .replace('"', "&quot;");
    }

    static QString grouped(qint64 number)
    {
        QString digits = QString::number(qAbs(number));
        for (int i = digits.size() - 3; i > 0; i -= 3)
            digits.insert(i, ',');
        return number < 0 ? '-' + digits : digits;
    }

    QString order() const
    {
        if (!m_printed[3] && !m_printed[4])
            return QString();
        QString html = "<table border='0' cellspacing='1' width='100%'>"
                       "<tr><th>Order Detail</th></tr></table> <ul>";
        if (m_printed[3])
            html += "<li> Order Number : " + escaped(m_record.orderNumber) + "</li>";
        if (m_printed[4])
            html += "<li> Order Date : " + escaped(m_record.orderDate.mid(0, 10)) + "</li>";
        return html + "</ul>";
    }

    QString products() const
    {
        const bool column = m_printed[5] || m_printed[6] || m_printed[7];
        if (!column && !m_printed[8] && !m_printed[9] && !m_printed[10])
            return QString();
        QString html = "<table border='0' cellspacing='1' width='100%'><tr>";
        if (column)
            html += "<th>Product</th>";
        if (m_printed[8])
            html += "<th width='10%'>Quantity</th>";
        if (m_printed[9])
            html += "<th width='15%'>Unit Price</th>";
        if (m_printed[10])
            html += "<th width='15%'>Subtotal</th>";
        html += "</tr>";
        for (int i = 0; i < m_record.productName.size(); ++i)
            html += productRow(i, column);
        return html + "</table>";
    }

    QString productRow(int i, bool column) const
    {
        QString html = "<tr>";
        if (column) {
            QString cell;
            for (const int field : {6, 5, 7}) {
                if (!m_printed[size_t(field)])
                    continue;
                if (field != 6 && (m_printed[6] || (field == 7 && m_printed[5])))
                    cell += " / ";
                const QStringList &list = field == 5 ? m_record.productName
                    : field == 6                     ? m_record.productNumber
                                                     : m_record.option;
                cell += i < list.size() ? list.at(i) : "";
            }
            html += "<td>" + escaped(cell) + "</td>";
        }
        for (const int field : {8, 9, 10}) {
            const QVector<qint32> &list = field == 8 ? m_record.quantity
                : field == 9                         ? m_record.unitPrice
                                                     : m_record.subtotal;
            if (m_printed[size_t(field)]) {
                html += "<td align='right'>" + grouped(i < list.size() ? list.at(i) : 0)
                    + (field == 8 ? "" : " 円") + "</td>";
            }
        }
        return html + "</tr>";
    }

    QString amounts(size_t first, size_t last) const
    {
        const QStringList labels = {"Sum",       "Tax",    "Shipping Charge", "C.O.D Charge",
                                    "Total Sum", "Coupon", "Point",           "Payment"};
        const QVector<qint32> values = {
            m_record.sum,      m_record.tax,    m_record.shippingCharge, m_record.codCharge,
            m_record.totalSum, m_record.coupon, m_record.point,          m_record.payment};
        QString rows;
        for (size_t i = first; i <= last; ++i) {
            if (m_printed[i]) {
                rows += "<tr><th width='50%'>" + labels.at(int(i) - 11)
                    + "</th><td width='50%' align='right'>" + grouped(values.at(int(i) - 11))
                    + " 円</td></tr>";
            }
        }
        if (rows.isEmpty())
            return rows;
        return "<table class='right' border='0' cellspacing='1' width='40%' align='right'>" + rows
            + "</table>";
    }

    const StatementFlags m_printed;
    const StatementRecord m_record;
};

class DefaultLocaleScope
{
public:
    explicit DefaultLocaleScope(const QLocale &locale) { QLocale::setDefault(locale); }
    ~DefaultLocaleScope() { QLocale::setDefault(m_before); }
    Q_DISABLE_COPY(DefaultLocaleScope)

private:
    const QLocale m_before;
};

} // namespace

Q_DECLARE_METATYPE(StatementFlags)

class TestStatementHtml : public QObject
{
    Q_OBJECT

private slots:
    void wholePage();
    void nothingPrintedIsNothing();
    void oneFieldAlone_data();
    void oneFieldAlone();
    void productCell_data();
    void productCell();
    void agreesWithThePlainVersionOnAllFlags();
    void servesOneRecordAfterTheOther();

    void dateIsItsFirstTenCharacters_data();
    void dateIsItsFirstTenCharacters();
    void valuesAreEscaped_data();
    void valuesAreEscaped();
    void valuesStandAsTheyAre_data();
    void valuesStandAsTheyAre();

    void thousandsAreGroupedTheSameEverywhere_data();
    void thousandsAreGroupedTheSameEverywhere();

    void namesDecideHowManyRows_data();
    void namesDecideHowManyRows();
    void missingEntriesAreEmptyOrZero();
    void mergedRowsWithoutNames_data();
    void mergedRowsWithoutNames();
    void computedAmountsArePrinted();

    void labelsAreTranslated();
    void styleSheet_data();
    void styleSheet();
};

// --- the parts --------------------------------------------------------------------------------

void TestStatementHtml::wholePage()
{
    QCOMPARE(htmlOf(allFlags(), usualRecord()),
             QString("<table border='0' cellspacing='1' width='100%'><tr><th>Order Detail</th></tr>"
                     "</table> <ul><li> Order Number : A-17</li><li> Order Date : 2011/10/04</li>"
                     "</ul>"
                     "<table border='0' cellspacing='1' width='100%'><tr><th>Product</th>"
                     "<th width='10%'>Quantity</th><th width='15%'>Unit Price</th>"
                     "<th width='15%'>Subtotal</th></tr>"
                     "<tr><td>P1 / Pen / blue</td><td align='right'>2</td>"
                     "<td align='right'>1,500 円</td><td align='right'>3,000 円</td></tr>"
                     "<tr><td>I2 / Ink / 50 ml</td><td align='right'>1,000</td>"
                     "<td align='right'>20 円</td><td align='right'>20,001 円</td></tr></table>"
                     "<table class='right' border='0' cellspacing='1' width='40%' align='right'>"
                     "<tr><th width='50%'>Sum</th><td width='50%' align='right'>23,001 円</td></tr>"
                     "<tr><th width='50%'>Tax</th><td width='50%' align='right'>8 円</td></tr>"
                     "<tr><th width='50%'>Shipping Charge</th>"
                     "<td width='50%' align='right'>500 円</td></tr>"
                     "<tr><th width='50%'>C.O.D Charge</th>"
                     "<td width='50%' align='right'>300 円</td></tr></table>"
                     "<table class='right' border='0' cellspacing='1' width='40%' align='right'>"
                     "<tr><th width='50%'>Total Sum</th>"
                     "<td width='50%' align='right'>23,809 円</td></tr>"
                     "<tr><th width='50%'>Coupon</th><td width='50%' align='right'>100 円</td></tr>"
                     "<tr><th width='50%'>Point</th><td width='50%' align='right'>9 円</td></tr>"
                     "<tr><th width='50%'>Payment</th>"
                     "<td width='50%' align='right'>1,023,700 円</td></tr></table>"));
}

void TestStatementHtml::nothingPrintedIsNothing()
{
    QCOMPARE(htmlOf(noFlags(), usualRecord()), QString(""));
    // These stand in the upper part of the page.
    QCOMPARE(htmlOf(flagsOf({Name, Address, PostCode}), usualRecord()), QString(""));
}

void TestStatementHtml::oneFieldAlone_data()
{
    QTest::addColumn<int>("field");
    QTest::addColumn<QString>("html");

    QTest::newRow("Name") << int(Name) << "";
    QTest::newRow("Address") << int(Address) << "";
    QTest::newRow("PostCode") << int(PostCode) << "";
    QTest::newRow("OrderNumber")
        << int(OrderNumber)
        << "<table border='0' cellspacing='1' width='100%'><tr><th>Order Detail</th></tr></table> "
           "<ul><li> Order Number : A-17</li></ul>";
    QTest::newRow("OrderDate")
        << int(OrderDate)
        << "<table border='0' cellspacing='1' width='100%'><tr><th>Order Detail</th></tr></table> "
           "<ul><li> Order Date : 2011/10/04</li></ul>";
    QTest::newRow("ProductName")
        << int(ProductName)
        << "<table border='0' cellspacing='1' width='100%'><tr><th>Product</th></tr>"
           "<tr><td>Pen</td></tr><tr><td>Ink</td></tr></table>";
    QTest::newRow("ProductNumber")
        << int(ProductNumber)
        << "<table border='0' cellspacing='1' width='100%'><tr><th>Product</th></tr>"
           "<tr><td>P1</td></tr><tr><td>I2</td></tr></table>";
    QTest::newRow("Option")
        << int(Option)
        << "<table border='0' cellspacing='1' width='100%'><tr><th>Product</th></tr>"
           "<tr><td>blue</td></tr><tr><td>50 ml</td></tr></table>";
    QTest::newRow("Quantity")
        << int(Quantity)
        << "<table border='0' cellspacing='1' width='100%'><tr><th width='10%'>Quantity</th></tr>"
           "<tr><td align='right'>2</td></tr><tr><td align='right'>1,000</td></tr></table>";
    QTest::newRow("UnitPrice")
        << int(UnitPrice)
        << "<table border='0' cellspacing='1' width='100%'><tr><th width='15%'>Unit Price</th></tr>"
           "<tr><td align='right'>1,500 円</td></tr><tr><td align='right'>20 円</td></tr></table>";
    QTest::newRow("Subtotal")
        << int(Subtotal)
        << "<table border='0' cellspacing='1' width='100%'><tr><th width='15%'>Subtotal</th></tr>"
           "<tr><td align='right'>3,000 円</td></tr><tr><td align='right'>20,001 円</td></tr>"
           "</table>";
    QTest::newRow("Sum")
        << int(Sum)
        << "<table class='right' border='0' cellspacing='1' width='40%' align='right'>"
           "<tr><th width='50%'>Sum</th><td width='50%' align='right'>23,001 円</td></tr></table>";
    QTest::newRow("Tax")
        << int(Tax)
        << "<table class='right' border='0' cellspacing='1' width='40%' align='right'>"
           "<tr><th width='50%'>Tax</th><td width='50%' align='right'>8 円</td></tr></table>";
    QTest::newRow("ShippingCharge")
        << int(ShippingCharge)
        << "<table class='right' border='0' cellspacing='1' width='40%' align='right'>"
           "<tr><th width='50%'>Shipping Charge</th><td width='50%' align='right'>500 円</td></tr>"
           "</table>";
    QTest::newRow("C.O.D.Charge, a third spelling")
        << int(CodCharge)
        << "<table class='right' border='0' cellspacing='1' width='40%' align='right'>"
           "<tr><th width='50%'>C.O.D Charge</th><td width='50%' align='right'>300 円</td></tr>"
           "</table>";
    QTest::newRow("TotalSum")
        << int(TotalSum)
        << "<table class='right' border='0' cellspacing='1' width='40%' align='right'>"
           "<tr><th width='50%'>Total Sum</th><td width='50%' align='right'>23,809 円</td></tr>"
           "</table>";
    QTest::newRow("Coupon")
        << int(Coupon)
        << "<table class='right' border='0' cellspacing='1' width='40%' align='right'>"
           "<tr><th width='50%'>Coupon</th><td width='50%' align='right'>100 円</td></tr></table>";
    QTest::newRow("Point")
        << int(Point)
        << "<table class='right' border='0' cellspacing='1' width='40%' align='right'>"
           "<tr><th width='50%'>Point</th><td width='50%' align='right'>9 円</td></tr></table>";
    QTest::newRow("Payment")
        << int(Payment)
        << "<table class='right' border='0' cellspacing='1' width='40%' align='right'>"
           "<tr><th width='50%'>Payment</th><td width='50%' align='right'>1,023,700 円</td></tr>"
           "</table>";
}

void TestStatementHtml::oneFieldAlone()
{
    QFETCH(int, field);
    QTEST(htmlOf(flagsOf({StatementFields::Field(field)}), usualRecord()), "html");
}

void TestStatementHtml::productCell_data()
{
    QTest::addColumn<StatementFlags>("printed");
    QTest::addColumn<QString>("cell");

    QTest::newRow("number before name") << flagsOf({ProductName, ProductNumber}) << "P1 / Pen";
    QTest::newRow("number and option") << flagsOf({ProductNumber, Option}) << "P1 / blue";
    QTest::newRow("name and option") << flagsOf({ProductName, Option}) << "Pen / blue";
    QTest::newRow("all three") << flagsOf({ProductName, ProductNumber, Option})
                               << "P1 / Pen / blue";
}

void TestStatementHtml::productCell()
{
    QFETCH(StatementFlags, printed);
    QFETCH(QString, cell);
    StatementRecord record = usualRecord();
    record.productName.removeLast();
    QCOMPARE(htmlOf(printed, record),
             "<table border='0' cellspacing='1' width='100%'><tr><th>Product</th></tr><tr><td>"
                 + cell + "</td></tr></table>");
    // What is printed and empty keeps its place.
    record.productNumber[0].clear();
    record.option[0].clear();
    QVERIFY(htmlOf(printed, record).contains("<td>" + cell.remove("P1").remove("blue") + "</td>"));
}

void TestStatementHtml::agreesWithThePlainVersionOnAllFlags()
{
    StatementRecord record = usualRecord();
    record.productName.append("<특가>"); // entries are missing in the other lists
    record.orderNumber = "A&B \"1\"";
    record.payment = -5000;
    const auto compare = [&record](quint32 bits) {
        const StatementFlags flags = flagsOfBits(bits);
        QCOMPARE(htmlOf(flags, record), PlainHtml(flags, record).html());
    };

    // Every combination within a part, with each of the other parts there or not. The upper part of
    // the page, which is the last one here, changes nothing.
    const QList<quint32> parts = {3u << OrderNumber, 63u << ProductName, 15u << Sum,
                                  15u << TotalSum, 7u << Name};
    for (const quint32 part : parts) {
        for (quint32 others = 0; others < 1u << parts.size(); ++others) {
            quint32 otherBits = 0;
            for (int i = 0; i < parts.size(); ++i)
                otherBits |= (others >> i & 1) != 0 && parts.at(i) != part ? parts.at(i) : 0;
            for (quint32 bits = part;; bits = (bits - 1) & part) {
                compare(otherBits | bits);
                if (bits == 0 || QTest::currentTestFailed())
                    break;
            }
        }
    }
    QRandomGenerator random(3);
    for (int round = 0; round < 3000 && !QTest::currentTestFailed(); ++round)
        compare(random.generate());
}

void TestStatementHtml::servesOneRecordAfterTheOther()
{
    const StatementHtml html(allFlags());
    const QString first = html.html(usualRecord());
    QCOMPARE(html.html(StatementRecord()), PlainHtml(allFlags(), StatementRecord()).html());
    QCOMPARE(html.html(usualRecord()), first);
}

// --- texts ------------------------------------------------------------------------------------

void TestStatementHtml::dateIsItsFirstTenCharacters_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("shown");

    QTest::newRow("with a time of day") << "2011/10/04 12:30"
                                        << "2011/10/04";
    QTest::newRow("ten characters") << "2011/10/04"
                                    << "2011/10/04";
    QTest::newRow("nine characters") << "2011/10/4"
                                     << "2011/10/4";
    QTest::newRow("eleven characters") << "2011/10/04T"
                                       << "2011/10/04";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("blanks count") << "  2011/10/04"
                                  << "  2011/10/";
    QTest::newRow("Korean characters count as one") << "2011년 10월 04일 12시"
                                                    << "2011년 10월 ";
    QTest::newRow("cut first and escaped then") << "<<<<<<<<<&&"
                                                << "&lt;&lt;&lt;&lt;&lt;&lt;&lt;&lt;&lt;&amp;";
}

void TestStatementHtml::dateIsItsFirstTenCharacters()
{
    QFETCH(QString, date);
    QFETCH(QString, shown);
    StatementRecord record;
    record.orderDate = date;
    QCOMPARE(
        htmlOf(flagsOf({OrderDate}), record),
        "<table border='0' cellspacing='1' width='100%'><tr><th>Order Detail</th></tr></table> "
        "<ul><li> Order Date : "
            + shown + "</li></ul>");
}

static void compareValue(const QString &value, const QString &shown)
{
    StatementRecord record;
    record.orderNumber = value;
    record.orderDate = value.left(10);
    record.productName = QStringList{value};
    record.productNumber = QStringList{value};
    record.option = QStringList{value};
    const QString tableStart = "<table border='0' cellspacing='1' width='100%'><tr>";
    QCOMPARE(htmlOf(flagsOf({OrderNumber}), record),
             tableStart + "<th>Order Detail</th></tr></table> <ul><li> Order Number : " + shown
                 + "</li></ul>");
    for (const StatementFields::Field field : {ProductName, ProductNumber, Option}) {
        QCOMPARE(htmlOf(flagsOf({field}), record),
                 tableStart + "<th>Product</th></tr><tr><td>" + shown + "</td></tr></table>");
    }
    QCOMPARE(htmlOf(flagsOf({ProductName, ProductNumber, Option}), record),
             tableStart + "<th>Product</th></tr><tr><td>" + shown + " / " + shown + " / " + shown
                 + "</td></tr></table>");
    const QString date = htmlOf(flagsOf({OrderDate}), record);
    QVERIFY(
        date.startsWith(tableStart + "<th>Order Detail</th></tr></table> <ul><li> Order Date : "));
    const QString shownDate = date.section(" : ", 1).section("</li></ul>", 0, 0);
    QVERIFY2(!shownDate.contains('<') && !shownDate.contains('>') && !shownDate.contains('"'),
             qPrintable(date));
}

void TestStatementHtml::valuesAreEscaped_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("shown");

    QTest::newRow("special offer") << "A&B <특가>"
                                   << "A&amp;B &lt;특가&gt;";
    QTest::newRow("double quotes") << "5\" \"x\""
                                   << "5&quot; &quot;x&quot;";
    QTest::newRow("picture of a file") << "<img src='file:///etc/passwd'>"
                                       << "&lt;img src='file:///etc/passwd'&gt;";
    QTest::newRow("picture of an address")
        << "<img src=\"http://a.example/b?c&d\"/>"
        << "&lt;img src=&quot;http://a.example/b?c&amp;d&quot;/&gt;";
    QTest::newRow("what is escaped already shows its escapes") << "&lt;b&gt; &amp;amp; &#60;"
                                                               << "&amp;lt;b&amp;gt; &amp;amp;amp; "
                                                                  "&amp;#60;";
    QTest::newRow("ends of the page's own parts") << "</td></tr></table></ul>"
                                                  << "&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;"
                                                     "&lt;/ul&gt;";
    QTest::newRow("comment") << "<!-- "
                             << "&lt;!-- ";
    QTest::newRow("style") << "<style>*{color:#fff}</style>"
                           << "&lt;style&gt;*{color:#fff}&lt;/style&gt;";
    QTest::newRow("line break in a tag") << "<\nb>"
                                         << "&lt;\nb&gt;";
}

void TestStatementHtml::valuesAreEscaped()
{
    QFETCH(QString, value);
    QFETCH(QString, shown);
    compareValue(value, shown);
}

void TestStatementHtml::valuesStandAsTheyAre_data()
{
    QTest::addColumn<QString>("value");

    QTest::newRow("empty") << "";
    QTest::newRow("single quotes") << "it's 'x'";
    QTest::newRow("blanks around") << "  a  b  ";
    QTest::newRow("the separator of the parts") << " / ";
    QTest::newRow("placeholders") << "%1 %2 %L1 %n";
    QTest::newRow("Korean and Japanese") << "똠방각하 ソ能表 〒";
    QTest::newRow("emoji") << "😀";
    QTest::newRow("half a surrogate pair") << QString(QChar(0xD83D)) + "a";
    QTest::newRow("NUL and control characters") << QString("a") + QChar(0) + QChar(7) + QChar(0x7f);
    QTest::newRow("line breaks") << "a\nb\r\nc";
    QTest::newRow("right-to-left mark") << QString(QChar(0x202E)) + "a";
    QTest::newRow("a hundred thousand letters") << QString(100000, 'x');
}

void TestStatementHtml::valuesStandAsTheyAre()
{
    QFETCH(QString, value);
    compareValue(value, value);
}

// --- numbers ----------------------------------------------------------------------------------

void TestStatementHtml::thousandsAreGroupedTheSameEverywhere_data()
{
    QTest::addColumn<QLocale>("locale");

    QTest::newRow("C") << QLocale::c();
    QTest::newRow("the system's language") << QLocale::system();
    QTest::newRow("Japanese") << QLocale(QLocale::Japanese);
    QTest::newRow("Korean") << QLocale(QLocale::Korean);
    QTest::newRow("German: dots") << QLocale(QLocale::German);
    QTest::newRow("French: blanks") << QLocale(QLocale::French);
    QTest::newRow("Swiss: apostrophes") << QLocale(QLocale::German, QLocale::Switzerland);
    QTest::newRow("Swedish: another minus sign") << QLocale(QLocale::Swedish);
    QTest::newRow("Arabic: other digits") << QLocale(QLocale::Arabic, QLocale::Egypt);
    QTest::newRow("Persian: other digits") << QLocale(QLocale::Persian);
    QTest::newRow("Hindi") << QLocale(QLocale::Hindi);
    QTest::newRow("Spanish: four digits are not grouped") << QLocale(QLocale::Spanish);
    QLocale ungrouped(QLocale::Japanese);
    ungrouped.setNumberOptions(QLocale::OmitGroupSeparator);
    QTest::newRow("Japanese without grouping") << ungrouped;
}

void TestStatementHtml::thousandsAreGroupedTheSameEverywhere()
{
    QFETCH(QLocale, locale);
    const DefaultLocaleScope scope(locale);
    const QVector<QPair<qint32, QString>> numbers = {
        {0, "0"},
        {7, "7"},
        {999, "999"},
        {1000, "1,000"},
        {12345, "12,345"},
        {123456, "123,456"},
        {1000000, "1,000,000"},
        {std::numeric_limits<qint32>::max(), "2,147,483,647"},
        {-1, "-1"},
        {-999, "-999"},
        {-1000, "-1,000"},
        {-123456, "-123,456"},
        {std::numeric_limits<qint32>::min(), "-2,147,483,648"}};
    const StatementFlags flags = flagsOf({Quantity, UnitPrice, Subtotal, Sum, Tax, ShippingCharge,
                                          CodCharge, TotalSum, Coupon, Point, Payment});
    for (const auto &[number, text] : numbers) {
        StatementRecord record;
        record.productName = QStringList{""};
        record.quantity = {number};
        record.unitPrice = {number};
        record.subtotal = {number};
        for (qint32 *amount : {&record.sum, &record.tax, &record.shippingCharge, &record.codCharge,
                               &record.totalSum, &record.coupon, &record.point, &record.payment})
            *amount = number;
        const QString html = htmlOf(flags, record);
        const QString money = text + " " + QChar(0x5186);
        QCOMPARE(html.count("<td align='right'>" + text + "</td>"), 1);
        QCOMPARE(html.count("<td align='right'>" + money + "</td>"), 2);
        QCOMPARE(html.count("<td width='50%' align='right'>" + money + "</td>"), 8);
        QCOMPARE(html.count("<td"), 11);
    }
}

// --- product lines ----------------------------------------------------------------------------

void TestStatementHtml::namesDecideHowManyRows_data()
{
    QTest::addColumn<int>("names");
    QTest::addColumn<int>("others");

    QTest::newRow("none") << 0 << 0;
    QTest::newRow("required: no names, no rows, though there is something to show") << 0 << 3;
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("fewer names than numbers") << 2 << 4;
    QTest::newRow("more names than numbers") << 4 << 2;
    QTest::newRow("a thousand") << 1000 << 1000;
}

void TestStatementHtml::namesDecideHowManyRows()
{
    QFETCH(int, names);
    QFETCH(int, others);
    StatementRecord record;
    for (int i = 0; i < names; ++i)
        record.productName.append("name");
    for (int i = 0; i < others; ++i) {
        record.productNumber.append("number");
        record.quantity.append(5);
    }
    for (const StatementFlags &flags :
         {allFlags(), flagsOf({ProductNumber, Quantity}), flagsOf({Quantity})}) {
        const QString html = htmlOf(flags, record);
        QCOMPARE(html, PlainHtml(flags, record).html());
        QCOMPARE(html.count("<td align='right'>5</td>"), qMin(names, others));
        QCOMPARE(html.count("<td align='right'>0</td>"), qMax(0, names - others));
    }
}

void TestStatementHtml::missingEntriesAreEmptyOrZero()
{
    StatementRecord record;
    record.productName = QStringList{"Pen", "Ink"};
    record.option = QStringList{"blue"};
    record.quantity = {4};
    record.subtotal = {1, 2, 3};
    QCOMPARE(htmlOf(flagsOf({ProductName, ProductNumber, Option, Quantity, UnitPrice, Subtotal}),
                    record),
             QString("<table border='0' cellspacing='1' width='100%'><tr><th>Product</th>"
                     "<th width='10%'>Quantity</th><th width='15%'>Unit Price</th>"
                     "<th width='15%'>Subtotal</th></tr>"
                     "<tr><td> / Pen / blue</td><td align='right'>4</td>"
                     "<td align='right'>0 円</td><td align='right'>1 円</td></tr>"
                     "<tr><td> / Ink / </td><td align='right'>0</td>"
                     "<td align='right'>0 円</td><td align='right'>2 円</td></tr></table>"));
}

// Required: names that are not printed are not collected from the first row but are added for each
// row that is merged into it; so there is one product line less than there were rows.
void TestStatementHtml::mergedRowsWithoutNames_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<QString>("lines");

    QTest::newRow("one row, no line") << 1 << "";
    QTest::newRow("two rows, one line") << 2 << "<tr><td>P1</td><td align='right'>1</td></tr>";
    QTest::newRow("three rows, two lines") << 3
                                           << "<tr><td>P1</td><td align='right'>1</td></tr>"
                                              "<tr><td>P2</td><td align='right'>2</td></tr>";
}

void TestStatementHtml::mergedRowsWithoutNames()
{
    QFETCH(int, rows);
    QFETCH(QString, lines);
    StatementData data(settingPrinting(flagsOf({ProductNumber, Quantity})));
    for (int row = 1; row <= rows; ++row) {
        StatementTexts texts;
        texts[ProductName] = "never shown";
        texts[ProductNumber] = QString("P%1").arg(row);
        texts[Quantity] = QString::number(row);
        data.addRecord(texts);
        if (row > 1)
            data.mergeRecords(0, 1);
    }
    QCOMPARE(htmlOf(data.printed(), data.record(0)),
             "<table border='0' cellspacing='1' width='100%'><tr><th>Product</th>"
             "<th width='10%'>Quantity</th></tr>"
                 + lines + "</table>");
}

void TestStatementHtml::computedAmountsArePrinted()
{
    StatementData data(settingPrinting(
        flagsOf({ProductName, Quantity, UnitPrice, Subtotal, Sum, TotalSum, Payment})));
    StatementTexts texts;
    texts[ProductName] = "Pen";
    texts[Quantity] = "2";
    texts[UnitPrice] = "1500";
    data.addRecord(texts);
    data.computeAmounts();
    QCOMPARE(htmlOf(data.printed(), data.record(0)),
             QString("<table border='0' cellspacing='1' width='100%'><tr><th>Product</th>"
                     "<th width='10%'>Quantity</th><th width='15%'>Unit Price</th>"
                     "<th width='15%'>Subtotal</th></tr>"
                     "<tr><td>Pen</td><td align='right'>2</td><td align='right'>1,500 円</td>"
                     "<td align='right'>3,000 円</td></tr></table>"
                     "<table class='right' border='0' cellspacing='1' width='40%' align='right'>"
                     "<tr><th width='50%'>Sum</th><td width='50%' align='right'>3,000 円</td></tr>"
                     "</table>"
                     "<table class='right' border='0' cellspacing='1' width='40%' align='right'>"
                     "<tr><th width='50%'>Total Sum</th>"
                     "<td width='50%' align='right'>3,000 円</td></tr>"
                     "<tr><th width='50%'>Payment</th>"
                     "<td width='50%' align='right'>3,000 円</td></tr></table>"));
}

// --- language and style -----------------------------------------------------------------------

void TestStatementHtml::labelsAreTranslated()
{
    BracketTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const QString html = htmlOf(allFlags(), usualRecord());
    QCoreApplication::removeTranslator(&translator);

    QString expected = PlainHtml(allFlags(), usualRecord()).html();
    for (const char *heading :
         {"Order Detail", "Product", "Quantity", "Unit Price", "Subtotal", "Sum", "Tax",
          "Shipping Charge", "C.O.D Charge", "Total Sum", "Coupon", "Point", "Payment"})
        expected.replace(QString(">%1</th>").arg(heading), QString(">[%1]</th>").arg(heading));
    for (const char *entry : {"Order Number", "Order Date"})
        expected.replace(QString("<li> %1 :").arg(entry), QString("<li> [%1] :").arg(entry));
    QCOMPARE(html, expected);
    QCOMPARE(html.count('['), 15);
}

void TestStatementHtml::styleSheet_data()
{
    QTest::addColumn<QString>("fontFamily");
    QTest::addColumn<QString>("begin");

    QTest::newRow("name with blanks") << "Noto Sans CJK KR"
                                      << "*{font-size:10px;font-family:'Noto Sans CJK KR';}";
    QTest::newRow("Korean name") << "맑은 고딕"
                                 << "*{font-size:10px;font-family:'맑은 고딕';}";
    QTest::newRow("no name") << ""
                             << "*{font-size:10px;font-family:'';}";
    QTest::newRow("name that would end the quotes")
        << "A';}td{color:red;}\\"
        << "*{font-size:10px;font-family:'A;}td{color:red;}';}";
}

void TestStatementHtml::styleSheet()
{
    QFETCH(QString, fontFamily);
    QFETCH(QString, begin);
    QCOMPARE(StatementHtml::styleSheet(fontFamily),
             begin
                 + "ul{padding:0px;margin:5px;}"
                   "li{padding:0px;margin:0 0 5px 0;list-style:square;}"
                   "table{background-color:#000;margin-top:15px;}"
                   "table.right{margin-right:4px;}"
                   "th{background-color:#CCC; padding:2px;}"
                   "td{background-color:#FFF; padding:2px;}");
}

QTEST_GUILESS_MAIN(TestStatementHtml)
#include "tst_statementhtml.moc"
