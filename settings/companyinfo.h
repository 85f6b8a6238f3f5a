// The shop's own data, entered once and usable in every convert setting.
#pragma once

#include <QString>
#include <array>

/// The eight texts of the shop, by field number. The numbers are stored in convert settings.
struct CompanyInfo {
    enum Field { Name, StoreName, StoreSite, PostCode, Address, Tel, Fax, Email, FieldCount };

    std::array<QString, FieldCount> fields;

    bool operator==(const CompanyInfo &other) const { return fields == other.fields; }

    /// The text of the field with this number; empty for a number that is no field.
    QString value(int number) const;
};

/// Reads the company information; what was never entered reads as empty.
CompanyInfo loadCompanyInfo();

/// Writes all eight texts as they are.
void saveCompanyInfo(const CompanyInfo &company);

/// Reads one field from the settings file as it is now; empty for a number that is no field.
QString companyValue(int number);
