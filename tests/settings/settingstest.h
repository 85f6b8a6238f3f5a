// What the tests of the settings have in common: each test function and each row of it begins in an
// empty folder of its own, and the records that it saves have a different text in every field.
#pragma once

#include "settings/companyinfo.h"
#include "settings/inputsetting.h"
#include "settings/outputitem.h"
#include "tests/settings/workingfolder.h"

#include <QObject>
#include <QScopedPointer>

inline const QString settingsFile = QStringLiteral("quorinConverter.dat");
inline const QString settingName = QStringLiteral("A");

// Every field differs from every other, so that no two keys can be taken for one another.
inline OutputItem itemWithEveryFieldDifferent(int seed)
{
    const auto text = [seed](const char *field) {
        return QStringLiteral("%1 %2").arg(QLatin1String(field)).arg(seed);
    };
    OutputItem item;
    item.name = text("name");
    item.mapSources = {1, 0, seed};
    item.mapNums = {seed + 10, seed + 11, seed + 12};
    item.mappings = QStringList{text("first"), text("second"), text("third")};
    item.separator = text("separator");
    item.condSources = {0, seed + 1};
    item.condNums = {seed + 20, seed + 21};
    item.conditions = QStringList{text("tested"), text("tested too")};
    item.condRules = QStringList{text("equalTo"), QString()};
    item.condCombination = text("combination");
    item.rules = QStringList{text("left"), text("right")};
    item.afterRules = QStringList{text("after"), text("then")};
    item.distinct = text("distinct");
    item.merge = text("merge");
    item.mergeSeparator = text("merge separator");
    return item;
}

inline InputSetting inputWithEveryFieldDifferent()
{
    InputSetting input;
    input.heads = QStringList{QStringLiteral("item 1"), QStringLiteral("item 2")};
    input.ex1 = QStringList{QStringLiteral("example 1"), QStringLiteral("example 2")};
    input.ex2 = QStringList{QStringLiteral("example 3"), QStringLiteral("example 4")};
    input.files = {{QStringLiteral("form 1"), {QStringLiteral("a"), QStringLiteral("b")}, -1, -2},
                   {QStringLiteral("form 2"), {QStringLiteral("c"), QStringLiteral("d")}, 3, 4}};
    return input;
}

inline CompanyInfo companyWithEveryFieldDifferent()
{
    CompanyInfo company;
    company.fields = {QStringLiteral("company name"), QStringLiteral("store name"),
                      QStringLiteral("store site"),   QStringLiteral("post code"),
                      QStringLiteral("address"),      QStringLiteral("tel"),
                      QStringLiteral("fax"),          QStringLiteral("email")};
    return company;
}

// Test programs derive from this class; QtTest calls its slots around every row.
class SettingsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder.reset(new WorkingFolder); }
    void cleanup() { m_folder.reset(); }

protected:
    QScopedPointer<WorkingFolder> m_folder;
};
