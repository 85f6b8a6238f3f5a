// The fixed table of what a purchase statement can show. The index of a field is its identity
// everywhere: in the settings file, in the editor and in a statement record.
#pragma once

#include <QString>

namespace StatementFields {

/// Texts, then lists of texts, lists of numbers, numbers: StatementRecord relies on the order.
enum Field {
    Name,
    Address,
    PostCode,
    OrderNumber,
    OrderDate,
    ProductName,
    ProductNumber,
    Option,
    Quantity,
    UnitPrice,
    Subtotal,
    Sum,
    Tax,
    ShippingCharge,
    CodCharge, ///< cash on delivery
    TotalSum,
    Coupon,
    Point,
    Payment,
    Count
};

/// The name of the field's group in the settings file; empty for a number that is no field.
QString key(int field);

/// The field's name for the user, translated; empty for a number that is no field. The labels on
/// the pages are other texts: "Order number" here is "Order Number" there.
QString displayName(int field);

} // namespace StatementFields
