#include "tests/drive/rebuild.h"

#include "settings/convertsettings.h"
#include "tests/drive/formhands.h"
#include "tests/drive/itemwalk.h"
#include "tests/drive/statementwalk.h"
#include "tests/drive/userhands.h"
#include "tests/drive/walk.h"

#include <QComboBox>
#include <QDir>
#include <QListView>

namespace {

/// The field of a company text, in the order of CompanyInfo::Field.
QString companyEdit(int field)
{
    static const char *const names[CompanyInfo::FieldCount] = {
        "CompanyNameEdit", "StoreNameEdit", "StoreSiteEdit", "PostCodeEdit",
        "AddressEdit",     "TelEdit",       "FaxEdit",       "EmailEdit"};
    return QLatin1String(names[field]);
}

} // namespace

Rebuild::Rebuild(Walk &walk) : m_walk(walk) {}

bool Rebuild::run(const RebuildPlan &plan)
{
    if (!settingNames().isEmpty())
        return m_walk.fail(QStringLiteral("There are settings before the first one is built."));
    if (plan.settings.isEmpty())
        return m_walk.fail(QStringLiteral("There is no setting to build."));
    if (!enterCompany(plan.company))
        return false;
    if (!m_walk.useMenu(QStringLiteral("menu_3"), QStringLiteral("action_convert_config"))
        || !m_walk.waitForFront("ConfigDialog")
        || !fillForm(m_walk, {FormStep::choose(QStringLiteral("tabWidget"), 1)}))
        return false;
    for (const SettingPlan &setting : plan.settings) {
        if (!build(setting))
            return false;
    }
    return m_walk.takeScreenshot(QStringLiteral("all_settings"))
        && m_walk.click(QStringLiteral("okButton")) && m_walk.waitForFront("MainWindow");
}

bool Rebuild::enterCompany(const CompanyInfo &company)
{
    FormSteps steps;
    for (int field = 0; field < CompanyInfo::FieldCount; ++field)
        steps << FormStep::write(companyEdit(field), company.value(field));
    if (!m_walk.useMenu(QStringLiteral("menu_3"), QStringLiteral("action_company_config"))
        || !m_walk.waitForFront("ConfigDialog") || !fillForm(m_walk, steps)
        || !m_walk.takeScreenshot(QStringLiteral("company_information"))
        || !m_walk.click(QStringLiteral("okButton")) || !m_walk.waitForFront("MainWindow"))
        return false;
    return loadCompanyInfo() == company
        || m_walk.fail(QStringLiteral("The company information was stored otherwise."));
}

bool Rebuild::build(const SettingPlan &plan)
{
    if (!m_walk.click(QStringLiteral("addButton")) || !m_walk.waitForFront("ConvertSettingDialog")
        || !fillForm(m_walk, {FormStep::write(QStringLiteral("settingNameEdit"), plan.name)})
        || !addInputForms(plan.setting.input.files))
        return false;
    ItemWalk items(m_walk);
    for (const OutputItem &item : plan.setting.output) {
        if (!items.add(item))
            return false;
    }
    return m_walk.takeScreenshotOnce(QStringLiteral("convert_setting"))
        && StatementWalk(m_walk).build(plan.setting.statement) && save(plan);
}

bool Rebuild::addInputForms(const QList<InputForm> &forms)
{
    for (int i = 0; i < forms.size(); ++i) {
        const QString file =
            QDir::current().absoluteFilePath(forms.at(i).name + QLatin1String(".csv"));
        if (!m_walk.answerFileDialog(QStringLiteral("addInputFileButton"), file)
            || (i > 0 && !chooseKeys(forms.at(i))) || !m_walk.waitForFront("ConvertSettingDialog")
            || !m_walk.waitFor(QStringLiteral("%1 to be listed").arg(forms.at(i).name), [&] {
                   return m_walk.find<QComboBox>(QStringLiteral("inputFileComboBox"))->count()
                       == i + 1;
               }))
            return false;
    }
    return true;
}

bool Rebuild::chooseKeys(const InputForm &form)
{
    return m_walk.waitForFront("KeySelectDialog")
        && fillForm(m_walk,
                    {FormStep::choose(QStringLiteral("originalDataListWidget"), form.targetKey),
                     FormStep::choose(QStringLiteral("newDataListWidget"), form.key)})
        && m_walk.takeScreenshotOnce(QStringLiteral("key_selection"))
        && m_walk.click(QStringLiteral("okButton"));
}

bool Rebuild::save(const SettingPlan &plan)
{
    if (!m_walk.click(QStringLiteral("saveButton")) || !m_walk.waitForFront("ConfigDialog"))
        return false;
    const bool listed = onGui([&] {
        const QAbstractItemModel *names =
            m_walk.find<QListView>(QStringLiteral("settingListView"))->model();
        return names->index(names->rowCount() - 1, 0).data().toString() == plan.name;
    });
    if (!listed)
        return m_walk.fail(QStringLiteral("The setting \"%1\" is not listed.").arg(plan.name));
    const QString found = difference(plan);
    if (!found.isEmpty())
        return m_walk.fail(
            QStringLiteral("The setting \"%1\" was stored otherwise: %2").arg(plan.name, found));
    Walk::report(QStringLiteral("setting      %1").arg(plan.name));
    return true;
}
