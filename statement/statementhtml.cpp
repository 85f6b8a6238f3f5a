#include "statement/statementhtml.h"

#include "statement/composedtext.h"

#include <QRegularExpression>
#include <algorithm>

using namespace StatementFields;

namespace {

const int dateCharacters = 10; // the day, without the time of day

QString tableStart()
{
    return QStringLiteral("<table border='0' cellspacing='1' width='100%'>");
}

QString tableEnd()
{
    return QStringLiteral("</table>");
}

/// A text of the shop's data, to show as its characters stand: nothing in it is markup.
QString shown(const QString &text)
{
    return composed(text).toHtmlEscaped();
}

QString numberCell(const QString &text)
{
    return QLatin1String("<td align='right'>") + text + QLatin1String("</td>");
}

} // namespace

StatementHtml::StatementHtml(const StatementFlags &printed)
    : m_printed(printed), m_showsOrder(printsAny({OrderNumber, OrderDate})),
      m_showsProductColumn(printsAny({ProductName, ProductNumber, Option})),
      m_showsProducts(m_showsProductColumn || printsAny({Quantity, UnitPrice, Subtotal})),
      m_showsSums(printsAny({Sum, Tax, ShippingCharge, CodCharge})),
      m_showsPayments(printsAny({TotalSum, Coupon, Point, Payment})),
      m_sums({{Sum, tr("Sum"), &StatementRecord::sum},
              {Tax, tr("Tax"), &StatementRecord::tax},
              {ShippingCharge, tr("Shipping Charge"), &StatementRecord::shippingCharge},
              {CodCharge, tr("C.O.D Charge"), &StatementRecord::codCharge}}),
      m_payments({{TotalSum, tr("Total Sum"), &StatementRecord::totalSum},
                  {Coupon, tr("Coupon"), &StatementRecord::coupon},
                  {Point, tr("Point"), &StatementRecord::point},
                  {Payment, tr("Payment"), &StatementRecord::payment}})
{
}

bool StatementHtml::printsAny(std::initializer_list<StatementFields::Field> fields) const
{
    return std::any_of(fields.begin(), fields.end(),
                       [this](StatementFields::Field field) { return prints(field); });
}

QString StatementHtml::html(const StatementRecord &record) const
{
    QString html;
    if (m_showsOrder)
        html += orderBlock(record);
    if (m_showsProducts)
        html += productTable(record);
    if (m_showsSums)
        html += amountTable(record, m_sums);
    if (m_showsPayments)
        html += amountTable(record, m_payments);
    return html;
}

QString StatementHtml::styleSheet(const QString &fontFamily)
{
    // No family name needs a character that would end the quoted name.
    static const QRegularExpression endings(QStringLiteral("['\\\\\r\n]"));
    return QLatin1String("*{font-size:10px;font-family:'") + QString(fontFamily).remove(endings)
        + QLatin1String("';}"
                        "ul{padding:0px;margin:5px;}"
                        "li{padding:0px;margin:0 0 5px 0;list-style:square;}"
                        "table{background-color:#000;margin-top:15px;}"
                        "table.right{margin-right:4px;}"
                        "th{background-color:#CCC; padding:2px;}"
                        "td{background-color:#FFF; padding:2px;}");
}

QString StatementHtml::money(qint32 value) const
{
    return number(value) + QLatin1Char(' ') + QChar(0x5186); // the yen character
}

QString StatementHtml::orderBlock(const StatementRecord &record) const
{
    const auto entry = [](const QString &label, const QString &value) {
        return QString(QLatin1String("<li> ") + label + QLatin1String(" : ") + shown(value)
                       + QLatin1String("</li>"));
    };
    QString html = tableStart() + QLatin1String("<tr><th>") + tr("Order Detail")
        + QLatin1String("</th></tr></table> <ul>");
    if (prints(OrderNumber))
        html += entry(tr("Order Number"), record.orderNumber);
    if (prints(OrderDate))
        html += entry(tr("Order Date"), record.orderDate.left(dateCharacters));
    return html + QLatin1String("</ul>");
}

QString StatementHtml::productHeading() const
{
    const auto heading = [](const char *width, const QString &label) {
        return QString(QLatin1String("<th") + QLatin1String(width) + QLatin1Char('>') + label
                       + QLatin1String("</th>"));
    };
    QString html = QStringLiteral("<tr>");
    if (m_showsProductColumn)
        html += heading("", tr("Product"));
    if (prints(Quantity))
        html += heading(" width='10%'", tr("Quantity"));
    if (prints(UnitPrice))
        html += heading(" width='15%'", tr("Unit Price"));
    if (prints(Subtotal))
        html += heading(" width='15%'", tr("Subtotal"));
    return html + QLatin1String("</tr>");
}

QString StatementHtml::productRow(const StatementRecord &record, int line) const
{
    QString html = QStringLiteral("<tr>");
    if (m_showsProductColumn) {
        QStringList parts;
        if (prints(ProductNumber))
            parts.append(record.productNumber.value(line));
        if (prints(ProductName))
            parts.append(record.productName.value(line));
        if (prints(Option))
            parts.append(record.option.value(line));
        html += QLatin1String("<td>") + shown(parts.join(QLatin1String(" / ")))
            + QLatin1String("</td>");
    }
    if (prints(Quantity))
        html += numberCell(number(record.quantity.value(line)));
    if (prints(UnitPrice))
        html += numberCell(money(record.unitPrice.value(line)));
    if (prints(Subtotal))
        html += numberCell(money(record.subtotal.value(line)));
    return html + QLatin1String("</tr>");
}

// Required: the product names decide how many rows there are, printed or not. Names that are not
// printed give one row less than the order has lines.
QString StatementHtml::productTable(const StatementRecord &record) const
{
    QString html = tableStart() + productHeading();
    for (int line = 0; line < record.productName.size(); ++line)
        html += productRow(record, line);
    return html + tableEnd();
}

QString StatementHtml::amountTable(const StatementRecord &record,
                                   const std::vector<Amount> &amounts) const
{
    QString html = QStringLiteral(
        "<table class='right' border='0' cellspacing='1' width='40%' align='right'>");
    for (const Amount &amount : amounts) {
        if (!prints(amount.field))
            continue;
        html += QLatin1String("<tr><th width='50%'>") + amount.label
            + QLatin1String("</th><td width='50%' align='right'>") + money(record.*amount.value)
            + QLatin1String("</td></tr>");
    }
    return html + tableEnd();
}
