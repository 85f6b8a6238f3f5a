// The statement of one order: what its page shows, apart from the texts that all pages share.
#pragma once

#include "statement/statementfields.h"

#include <QList>
#include <QStringList>
#include <QVector>
#include <array>

/// The text of each field, by StatementFields::Field.
using StatementTexts = std::array<QString, StatementFields::Count>;

/// Product line i of an order is entry i of each of the six lists; one of a field that is not
/// printed may be shorter. Amounts are whole currency units; 0 says that the input gave none.
/// Amounts have 32 bits and wrap around.
struct StatementRecord {
    QString name;
    QString address;
    QString postCode;
    QString orderNumber;
    QString orderDate;
    QStringList productName;
    QStringList productNumber;
    QStringList option;
    QVector<qint32> quantity;
    QVector<qint32> unitPrice;
    QVector<qint32> subtotal;
    qint32 sum = 0;
    qint32 tax = 0;
    qint32 shippingCharge = 0;
    qint32 codCharge = 0;
    qint32 totalSum = 0;
    qint32 coupon = 0;
    qint32 point = 0;
    qint32 payment = 0;

    bool operator==(const StatementRecord &other) const;

    /// Stores the text of one field as what the field is: a text, the one entry of a list, or an
    /// integer. A text that is not a plain decimal integer gives 0. A number that is no field is
    /// ignored.
    void setField(StatementFields::Field field, const QString &text);

    /// Adds the first product line of another record behind the own ones. Of a list that is empty
    /// there, an empty text or a 0 is added.
    void appendFirstLineOf(const StatementRecord &other);

    /// Fills in what the input did not give: subtotals, the sum of them, the total, the payment,
    /// each from the ones before. An amount that is not 0 stays. The sum counts the entries of the
    /// list of subtotals: where that field is not printed, the list lacks the first line's.
    void computeAmounts();
};
