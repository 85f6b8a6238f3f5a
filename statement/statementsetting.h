// The statement part of a convert setting: whether a purchase statement is made, what its pages say
// and where each of its fields comes from.
#pragma once

#include "settings/companyinfo.h"
#include "statement/statementfields.h"

#include <QList>
#include <QStringList>
#include <array>

class QSettings;

/// One field of the statement. `mappings` and `mapNums` are parallel.
struct StatementField {
    bool toPrint = false;
    QStringList mappings; ///< what the user sees of each mapped value
    QList<int> mapNums;   ///< the column of each mapped value in the joined input table
    QString separator;    ///< put between the mapped values
    QStringList rules;    ///< applied to the joined value

    bool operator==(const StatementField &other) const;
};

using StatementFieldList = std::array<StatementField, StatementFields::Count>;
using CompanyFlags = std::array<bool, CompanyInfo::FieldCount>;

struct StatementSetting {
    bool generate = false;
    QString title;
    QString ment;    ///< the message below the customer's address; may hold line breaks
    QString comment; ///< the text at the foot of the page; may hold line breaks
    QString font;    ///< a font family; empty for the program's default font
    CompanyFlags printCompany = {true, true, true, true, true, true, true, true};
    StatementFieldList fields; ///< by StatementFields::Field

    bool operator==(const StatementSetting &other) const;
};

/// Reads the statement part of the named setting; whatever is absent or malformed reads as its
/// default above.
StatementSetting loadStatementSetting(const QString &settingName);

/// Writes every key of the statement part of the named setting, of fields that are not printed,
/// too.
void saveStatementSetting(const QString &settingName, const StatementSetting &statement);
/// The same as a part of what is written to the file when the settings object is destroyed.
void saveStatementSetting(QSettings &settings, const QString &settingName,
                          const StatementSetting &statement);
