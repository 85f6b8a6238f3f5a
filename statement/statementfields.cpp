#include "statement/statementfields.h"

#include <QCoreApplication>

namespace {

struct Entry {
    const char *key;
    const char *displayName;
};

// Cash on delivery is spelt in two ways; the keys stand in the users' settings files.
const Entry entries[StatementFields::Count] = {
    {"Name", QT_TRANSLATE_NOOP("StatementFields", "Name")},
    {"Address", QT_TRANSLATE_NOOP("StatementFields", "Address")},
    {"PostCode", QT_TRANSLATE_NOOP("StatementFields", "Post code")},
    {"OrderNumber", QT_TRANSLATE_NOOP("StatementFields", "Order number")},
    {"OrderDate", QT_TRANSLATE_NOOP("StatementFields", "Order date")},
    {"ProductName", QT_TRANSLATE_NOOP("StatementFields", "Product name")},
    {"ProductNumber", QT_TRANSLATE_NOOP("StatementFields", "Product number")},
    {"Option", QT_TRANSLATE_NOOP("StatementFields", "Option")},
    {"Quantity", QT_TRANSLATE_NOOP("StatementFields", "Quantity")},
    {"UnitPrice", QT_TRANSLATE_NOOP("StatementFields", "Unit price")},
    {"Subtotal", QT_TRANSLATE_NOOP("StatementFields", "Subtotal")},
    {"Sum", QT_TRANSLATE_NOOP("StatementFields", "Sum")},
    {"Tax", QT_TRANSLATE_NOOP("StatementFields", "Tax")},
    {"ShippingCharge", QT_TRANSLATE_NOOP("StatementFields", "Shipping charge")},
    {"C.O.D.Charge", QT_TRANSLATE_NOOP("StatementFields", "C.O.D charge")},
    {"TotalSum", QT_TRANSLATE_NOOP("StatementFields", "Total sum")},
    {"Coupon", QT_TRANSLATE_NOOP("StatementFields", "Coupon")},
    {"Point", QT_TRANSLATE_NOOP("StatementFields", "Point")},
    {"Payment", QT_TRANSLATE_NOOP("StatementFields", "Payment")},
};

bool isField(int field)
{
    return field >= 0 && field < StatementFields::Count;
}

} // namespace

QString StatementFields::key(int field)
{
    return isField(field) ? QLatin1String(entries[field].key) : QString();
}

QString StatementFields::displayName(int field)
{
    if (!isField(field))
        return QString();
    return QCoreApplication::translate("StatementFields", entries[field].displayName);
}
