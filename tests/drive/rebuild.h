// One walk of a user who builds convert settings from nothing: from the shop's own data to the last
// field of each statement.
#pragma once

#include "tests/drive/settingplan.h"

class Walk;

class Rebuild
{
public:
    explicit Rebuild(Walk &walk);

    /// Builds and stores everything in the working folder, which holds the sample files and no
    /// settings, and checks that what is stored is what was planned.
    bool run(const RebuildPlan &plan);

private:
    bool enterCompany(const CompanyInfo &company);
    bool build(const SettingPlan &plan);
    bool addInputForms(const QList<InputForm> &forms);
    bool chooseKeys(const InputForm &form);
    bool save(const SettingPlan &plan);

    Walk &m_walk;
};
