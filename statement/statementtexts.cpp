#include "statement/statementtexts.h"

namespace {

const QChar lineFeed = QLatin1Char('\n');

QString postalLine(const QString &postCode)
{
    return QChar(0x3012) + QLatin1Char(' ') + postCode + lineFeed; // the postal mark
}

} // namespace

QString companyText(const CompanyInfo &company, const CompanyFlags &printed)
{
    QString text;
    const auto addLine = [&](CompanyInfo::Field field, const char *label = "") {
        if (printed[field])
            text += QLatin1String(label) + company.value(field) + lineFeed;
    };

    addLine(CompanyInfo::StoreName);
    addLine(CompanyInfo::StoreSite);
    addLine(CompanyInfo::Name);
    if (!text.isEmpty())
        text += lineFeed;

    if (printed[CompanyInfo::PostCode])
        text += postalLine(company.value(CompanyInfo::PostCode));
    addLine(CompanyInfo::Address);
    if (printed[CompanyInfo::PostCode] || printed[CompanyInfo::Address])
        text += lineFeed;

    addLine(CompanyInfo::Tel, "TEL : ");
    addLine(CompanyInfo::Fax, "FAX : ");
    addLine(CompanyInfo::Email, "E-Mail : ");
    return text;
}

QString customerText(const StatementRecord &record, const StatementFlags &printed)
{
    QString text;
    if (printed[StatementFields::PostCode])
        text += postalLine(record.postCode);
    if (printed[StatementFields::Address])
        text += record.address + lineFeed;
    if (printed[StatementFields::Name])
        text += lineFeed + record.name; // after an empty line
    return text;
}
