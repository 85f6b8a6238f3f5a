#include "statement/statementsetting.h"

#include "settings/settings.h"
#include "settings/settingsgroups.h"

namespace {

struct CompanyFlagKey {
    CompanyInfo::Field field;
    const char *key;
};

const CompanyFlagKey companyFlagKeys[] = {
    {CompanyInfo::Name, "printCompanyName"},       {CompanyInfo::StoreName, "printStoreName"},
    {CompanyInfo::PostCode, "printStorePostCode"}, {CompanyInfo::Address, "printStoreAddress"},
    {CompanyInfo::Tel, "printStoreTel"},           {CompanyInfo::Fax, "printStoreFax"},
    {CompanyInfo::Email, "printStoreEmail"},       {CompanyInfo::StoreSite, "printStoreSite"},
};

QString pdfSettingGroup()
{
    return QStringLiteral("PdfSetting");
}

void readTexts(const QSettings &settings, StatementSetting &statement)
{
    statement.generate = readBool(settings, QStringLiteral("generate"), statement.generate);
    statement.title = settings.value(QStringLiteral("title")).toString();
    statement.ment = settings.value(QStringLiteral("ment")).toString();
    statement.comment = settings.value(QStringLiteral("comment")).toString();
    statement.font = settings.value(QStringLiteral("font")).toString();
    for (const CompanyFlagKey &flag : companyFlagKeys) {
        bool &print = statement.printCompany[flag.field];
        print = readBool(settings, QLatin1String(flag.key), print);
    }
}

StatementField readField(const QSettings &settings)
{
    StatementField field;
    field.toPrint = readBool(settings, QStringLiteral("toPrint"), false);
    field.mappings = settings.value(QStringLiteral("mappings")).toStringList();
    field.mapNums = textsToNumbers(settings.value(QStringLiteral("mapNums")).toStringList());
    field.separator = settings.value(QStringLiteral("separator")).toString();
    field.rules = settings.value(QStringLiteral("rules")).toStringList();
    return field;
}

void writeTexts(QSettings &settings, const StatementSetting &statement)
{
    settings.setValue(QStringLiteral("generate"), statement.generate);
    settings.setValue(QStringLiteral("title"), statement.title);
    settings.setValue(QStringLiteral("ment"), statement.ment);
    settings.setValue(QStringLiteral("comment"), statement.comment);
    settings.setValue(QStringLiteral("font"), statement.font);
    for (const CompanyFlagKey &flag : companyFlagKeys)
        settings.setValue(QLatin1String(flag.key), statement.printCompany[flag.field]);
}

void writeField(QSettings &settings, const StatementField &field)
{
    settings.setValue(QStringLiteral("toPrint"), field.toPrint);
    settings.setValue(QStringLiteral("mappings"), field.mappings);
    settings.setValue(QStringLiteral("mapNums"), numbersToTexts(field.mapNums));
    settings.setValue(QStringLiteral("separator"), field.separator);
    settings.setValue(QStringLiteral("rules"), field.rules);
}

StatementSetting readStatementSetting(const QString &settingName)
{
    Settings settings(nullptr);
    const GroupScope setting(settings, settingGroup(settingName));

    StatementSetting statement;
    {
        const GroupScope pdfSetting(settings, pdfSettingGroup());
        readTexts(settings, statement);
    }
    for (int i = 0; i < StatementFields::Count; ++i) {
        const GroupScope field(settings, StatementFields::key(i));
        statement.fields[size_t(i)] = readField(settings);
    }
    return statement;
}

} // namespace

bool StatementField::operator==(const StatementField &other) const
{
    return toPrint == other.toPrint && mappings == other.mappings && mapNums == other.mapNums
        && separator == other.separator && rules == other.rules;
}

bool StatementSetting::operator==(const StatementSetting &other) const
{
    return generate == other.generate && title == other.title && ment == other.ment
        && comment == other.comment && font == other.font && printCompany == other.printCompany
        && fields == other.fields;
}

StatementSetting loadStatementSetting(const QString &settingName)
{
    return tolerantly([&] { return readStatementSetting(settingName); });
}

void saveStatementSetting(const QString &settingName, const StatementSetting &statement)
{
    Settings settings(nullptr);
    saveStatementSetting(settings, settingName, statement);
}

void saveStatementSetting(QSettings &settings, const QString &settingName,
                          const StatementSetting &statement)
{
    const GroupScope setting(settings, settingGroup(settingName));
    {
        const GroupScope pdfSetting(settings, pdfSettingGroup());
        writeTexts(settings, statement);
    }
    for (int i = 0; i < StatementFields::Count; ++i) {
        const GroupScope field(settings, StatementFields::key(i));
        writeField(settings, statement.fields[size_t(i)]);
    }
}
