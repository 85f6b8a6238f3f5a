// What the tests of the statements have in common: short ways to say what is printed, records as
// lines of text, so that a failing comparison shows the field that differs, and translations that
// cannot be overlooked.
#pragma once

#include "statement/statementdata.h"

#include <QTranslator>

inline StatementFlags noFlags()
{
    return StatementFlags{};
}

inline StatementFlags allFlags()
{
    StatementFlags flags;
    flags.fill(true);
    return flags;
}

inline StatementFlags flagsOf(const QList<StatementFields::Field> &fields)
{
    StatementFlags flags = noFlags();
    for (const StatementFields::Field field : fields)
        flags[field] = true;
    return flags;
}

/// Bit i is the flag of field i.
inline StatementFlags flagsOfBits(quint32 bits)
{
    StatementFlags flags = noFlags();
    for (size_t i = 0; i < flags.size(); ++i)
        flags[i] = (bits >> i & 1) != 0;
    return flags;
}

inline StatementSetting settingPrinting(const StatementFlags &flags)
{
    StatementSetting setting;
    for (size_t i = 0; i < flags.size(); ++i)
        setting.fields[i].toPrint = flags[i];
    return setting;
}

/// A line for each field, in field order: Name="Kim", ProductName=["a","b"], Quantity=[1,2], Sum=3.
inline QStringList recordLines(const StatementRecord &record)
{
    const auto texts = [](const QStringList &list) {
        return list.isEmpty() ? QString("[]") : QString("[\"%1\"]").arg(list.join("\",\""));
    };
    const auto numbers = [](const QVector<qint32> &list) {
        QStringList entries;
        for (const qint32 number : list)
            entries.append(QString::number(number));
        return QString("[%1]").arg(entries.join(','));
    };
    const QString quote("\"");
    return {"Name=" + quote + record.name + quote,
            "Address=" + quote + record.address + quote,
            "PostCode=" + quote + record.postCode + quote,
            "OrderNumber=" + quote + record.orderNumber + quote,
            "OrderDate=" + quote + record.orderDate + quote,
            "ProductName=" + texts(record.productName),
            "ProductNumber=" + texts(record.productNumber),
            "Option=" + texts(record.option),
            "Quantity=" + numbers(record.quantity),
            "UnitPrice=" + numbers(record.unitPrice),
            "Subtotal=" + numbers(record.subtotal),
            "Sum=" + QString::number(record.sum),
            "Tax=" + QString::number(record.tax),
            "ShippingCharge=" + QString::number(record.shippingCharge),
            "C.O.D.Charge=" + QString::number(record.codCharge),
            "TotalSum=" + QString::number(record.totalSum),
            "Coupon=" + QString::number(record.coupon),
            "Point=" + QString::number(record.point),
            "Payment=" + QString::number(record.payment)};
}

/// Translates "Sum" to "[Sum]", and everything else likewise.
class BracketTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return QString("[%1]").arg(source);
    }
};
