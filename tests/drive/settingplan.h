// The convert settings that the walk is to build: those of a settings file.
#pragma once

#include "settings/companyinfo.h"
#include "statement/convertsetting.h"

#include <QList>
#include <QString>

struct SettingPlan {
    QString name;
    ConvertSetting setting;
};

struct RebuildPlan {
    CompanyInfo company;
    QList<SettingPlan> settings;
};

/// Everything that the settings file of the current folder holds.
RebuildPlan loadPlan();

/// In what the setting of the current folder's file is not the planned one; empty when it converts
/// the same.
QString difference(const SettingPlan &plan);
