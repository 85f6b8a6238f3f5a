#include "statement/statementrecord.h"

#include "rules/functiontext.h"

#include <algorithm>

using namespace StatementFields;

namespace {

const std::array<QString StatementRecord::*, 5> texts = {
    &StatementRecord::name, &StatementRecord::address, &StatementRecord::postCode,
    &StatementRecord::orderNumber, &StatementRecord::orderDate};
const std::array<QStringList StatementRecord::*, 3> textLists = {
    &StatementRecord::productName, &StatementRecord::productNumber, &StatementRecord::option};
const std::array<QVector<qint32> StatementRecord::*, 3> numberLists = {
    &StatementRecord::quantity, &StatementRecord::unitPrice, &StatementRecord::subtotal};
const std::array<qint32 StatementRecord::*, 8> amounts = {
    &StatementRecord::sum,       &StatementRecord::tax,      &StatementRecord::shippingCharge,
    &StatementRecord::codCharge, &StatementRecord::totalSum, &StatementRecord::coupon,
    &StatementRecord::point,     &StatementRecord::payment};

// A field finds its member by its number.
static_assert(ProductName == texts.size());
static_assert(Quantity - ProductName == textLists.size());
static_assert(Sum - Quantity == numberLists.size());
static_assert(Count - Sum == amounts.size());

// Sums and products of damaged data must wrap, not overflow.
qint32 wrapped(quint32 value)
{
    return qint32(value);
}

} // namespace

bool StatementRecord::operator==(const StatementRecord &other) const
{
    const auto isEqual = [&](auto member) { return this->*member == other.*member; };
    return std::all_of(texts.begin(), texts.end(), isEqual)
        && std::all_of(textLists.begin(), textLists.end(), isEqual)
        && std::all_of(numberLists.begin(), numberLists.end(), isEqual)
        && std::all_of(amounts.begin(), amounts.end(), isEqual);
}

void StatementRecord::setField(StatementFields::Field field, const QString &text)
{
    if (field < 0)
        return;
    if (field < ProductName)
        this->*texts[size_t(field)] = text;
    else if (field < Quantity)
        this->*textLists[size_t(field - ProductName)] = QStringList{text};
    else if (field < Sum)
        this->*numberLists[size_t(field - Quantity)] = {toInteger(text)};
    else if (field < Count)
        this->*amounts[size_t(field - Sum)] = toInteger(text);
}

void StatementRecord::appendFirstLineOf(const StatementRecord &other)
{
    for (const auto list : textLists)
        (this->*list).append((other.*list).value(0));
    for (const auto list : numberLists)
        (this->*list).append((other.*list).value(0));
}

void StatementRecord::computeAmounts()
{
    for (int i = 0; i < subtotal.size(); ++i) {
        if (subtotal.at(i) == 0)
            subtotal[i] = wrapped(quint32(quantity.value(i)) * quint32(unitPrice.value(i)));
    }
    if (sum == 0) {
        quint32 total = 0;
        for (const qint32 value : qAsConst(subtotal))
            total += quint32(value);
        sum = wrapped(total);
    }
    if (totalSum == 0) {
        totalSum =
            wrapped(quint32(shippingCharge) + quint32(codCharge) + quint32(tax) + quint32(sum));
    }
    if (payment == 0)
        payment = wrapped(quint32(totalSum) - quint32(point) - quint32(coupon));
}
