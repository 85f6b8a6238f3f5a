#include "settings/companyinfo.h"

#include "settings/settings.h"
#include "settings/settingsgroups.h"

namespace {

// In the order of CompanyInfo::Field.
const char *const fieldKeys[CompanyInfo::FieldCount] = {
    "name", "storeName", "storeSite", "postCode", "address", "tel", "fax", "email"};

QString companyInfoGroup()
{
    return QStringLiteral("CompanyInfo");
}

} // namespace

QString CompanyInfo::value(int number) const
{
    return number >= 0 && number < FieldCount ? fields[number] : QString();
}

static CompanyInfo readCompanyInfo()
{
    Settings settings(nullptr);
    const GroupScope group(settings, companyInfoGroup());
    CompanyInfo company;
    for (int i = 0; i < CompanyInfo::FieldCount; ++i)
        company.fields[i] = settings.value(QLatin1String(fieldKeys[i])).toString();
    return company;
}

CompanyInfo loadCompanyInfo()
{
    return tolerantly([] { return readCompanyInfo(); });
}

void saveCompanyInfo(const CompanyInfo &company)
{
    Settings settings(nullptr);
    const GroupScope group(settings, companyInfoGroup());
    for (int i = 0; i < CompanyInfo::FieldCount; ++i)
        settings.setValue(QLatin1String(fieldKeys[i]), company.fields[i]);
}

QString companyValue(int number)
{
    return loadCompanyInfo().value(number);
}
