// Statement records as text lines, so that a failing comparison shows the record that differs.
// What is empty or 0 is left out; a list with one empty text is not empty.
#pragma once

#include "statement/statementdata.h"
#include "tests/engine/tabletext.h"

/// Such as: "orderNumber|7| productName|pen|cup| quantity|2|1| sum|300|"
inline QString recordLine(const StatementRecord &record)
{
    QStringList members;
    const auto addTexts = [&](const char *name, const QStringList &texts) {
        if (!texts.isEmpty())
            members.append(name + rowLine(texts));
    };
    const auto addText = [&](const char *name, const QString &text) {
        addTexts(name, text.isEmpty() ? QStringList() : QStringList(text));
    };
    const auto addNumbers = [&](const char *name, const QVector<qint32> &numbers) {
        QStringList texts;
        for (const qint32 number : numbers)
            texts.append(QString::number(number));
        addTexts(name, texts);
    };
    const auto addAmount = [&](const char *name, qint32 amount) {
        addText(name, amount == 0 ? QString() : QString::number(amount));
    };
    addText("name", record.name);
    addText("address", record.address);
    addText("postCode", record.postCode);
    addText("orderNumber", record.orderNumber);
    addText("orderDate", record.orderDate);
    addTexts("productName", record.productName);
    addTexts("productNumber", record.productNumber);
    addTexts("option", record.option);
    addNumbers("quantity", record.quantity);
    addNumbers("unitPrice", record.unitPrice);
    addNumbers("subtotal", record.subtotal);
    addAmount("sum", record.sum);
    addAmount("tax", record.tax);
    addAmount("shippingCharge", record.shippingCharge);
    addAmount("codCharge", record.codCharge);
    addAmount("totalSum", record.totalSum);
    addAmount("coupon", record.coupon);
    addAmount("point", record.point);
    addAmount("payment", record.payment);
    return members.join(' ');
}

inline QStringList recordLines(const StatementData &data)
{
    QStringList lines;
    for (int i = 0; i < data.count(); ++i)
        lines.append(recordLine(data.record(i)));
    return lines;
}
