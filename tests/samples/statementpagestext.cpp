#include "tests/samples/statementpagestext.h"

#include "statement/statementdocument.h"
#include "statement/statementtexts.h"

QString pagesAsText(const StatementDocument &document)
{
    const auto numbers = [](const QVector<qint32> &list, int line) {
        return QString::number(list.value(line));
    };
    QStringList text{document.title, document.companyText, document.message, document.comment};
    for (int i = 0; i < document.data.count(); ++i) {
        const StatementRecord &record = document.data.record(i);
        text << QStringLiteral("--- page %1").arg(i + 1)
             << customerText(record, document.data.printed())
             << record.orderNumber + QLatin1String(", ") + record.orderDate;
        for (int line = 0; line < record.productName.size(); ++line) {
            text << QStringList{record.productNumber.value(line), record.productName.value(line),
                                record.option.value(line),        numbers(record.quantity, line),
                                numbers(record.unitPrice, line),  numbers(record.subtotal, line)}
                        .join(QLatin1String(" | "));
        }
        text << QStringLiteral("sum %1, tax %2, shipping %3, cash on delivery %4")
                    .arg(record.sum)
                    .arg(record.tax)
                    .arg(record.shippingCharge)
                    .arg(record.codCharge)
             << QStringLiteral("total %1, coupon %2, point %3, payment %4")
                    .arg(record.totalSum)
                    .arg(record.coupon)
                    .arg(record.point)
                    .arg(record.payment);
    }
    return text.join(QLatin1Char('\n')) + QLatin1Char('\n');
}
