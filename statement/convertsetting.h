// A convert setting as a whole.
#pragma once

#include "settings/inputsetting.h"
#include "settings/outputitem.h"
#include "statement/statementsetting.h"

struct ConvertSetting {
    InputSetting input;
    QList<OutputItem> output;
    StatementSetting statement;
};

/// Writes the setting. The file changes once, so that it holds all of it or nothing, whenever the
/// program ends and whoever else writes. Renames the setting that was called `oldName` before,
/// unless that is empty.
void saveConvertSetting(const QString &name, const ConvertSetting &setting,
                        const QString &oldName = QString());
