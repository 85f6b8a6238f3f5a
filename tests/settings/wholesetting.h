// Whole convert settings for the tests of names and of concurrent saves.
#pragma once

#include "statement/convertsetting.h"
#include "tests/settings/settingstest.h"

inline bool operator==(const ConvertSetting &a, const ConvertSetting &b)
{
    return a.input == b.input && a.output == b.output && a.statement == b.statement;
}

/// A setting that differs from one with another seed in every part and every item, and in the
/// number of items.
inline ConvertSetting settingOfSeed(int seed, int itemCount)
{
    ConvertSetting setting;
    setting.input = inputWithEveryFieldDifferent();
    setting.input.heads.append(QString::number(seed));
    setting.input.ex1.append(QString::number(seed));
    for (InputForm &form : setting.input.files)
        form.name += QString::number(seed);
    for (int i = 0; i < itemCount + seed % 3; ++i)
        setting.output.append(itemWithEveryFieldDifferent(seed * 1000 + i));
    setting.statement.generate = true;
    setting.statement.title = QString::number(seed);
    for (StatementField &field : setting.statement.fields) {
        field.toPrint = true;
        field.mappings = QStringList{QString::number(seed)};
        field.mapNums = {seed};
    }
    return setting;
}

inline ConvertSetting loadConvertSetting(const QString &name)
{
    return {loadInputSetting(name), loadOutputItems(name), loadStatementSetting(name)};
}
