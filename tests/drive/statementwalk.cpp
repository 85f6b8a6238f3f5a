#include "tests/drive/statementwalk.h"

#include "settings/outputitem.h"
#include "statement/pdfsetmodel.h"
#include "tests/drive/formhands.h"
#include "tests/drive/rulewalk.h"
#include "tests/drive/sourcehands.h"
#include "tests/drive/userhands.h"
#include "tests/drive/walk.h"

#include <QTableView>

namespace {

const char *const settingDialog = "ConvertSettingDialog";

QString viewName()
{
    return QStringLiteral("pdfModelView");
}

/// The check box of a company field, in the order of CompanyInfo::Field.
QString companyCheckBox(int field)
{
    static const char *const names[CompanyInfo::FieldCount] = {
        "companyNameCheckBox",  "storeNameCheckBox", "storeSiteCheckBox", "storePostCodeCheckBox",
        "storeAddressCheckBox", "storeTelCheckBox",  "storeFaxCheckBox",  "storeEmailCheckBox"};
    return QLatin1String(names[field]);
}

} // namespace

StatementWalk::StatementWalk(Walk &walk)
    : m_walk(walk), m_cells(walk, viewName()), m_model(onGui([&] {
          const QAbstractItemModel *model = walk.find<QTableView>(viewName())->model();
          return qobject_cast<const PdfSetModel *>(model);
      }))
{
}

StatementField StatementWalk::field(int number) const
{
    return m_model->fields().at(size_t(number));
}

bool StatementWalk::build(const StatementSetting &plan)
{
    if (!plan.generate)
        return true;
    if (!fillForm(m_walk,
                  {FormStep::check(QStringLiteral("pdfCheckBox")),
                   FormStep::choose(QStringLiteral("outputTabWidget"), 1)})
        || !fillTexts(plan))
        return false;
    for (int number = 0; number < StatementFields::Count; ++number) {
        if (!buildField(number, plan.fields.at(size_t(number))))
            return false;
    }
    return m_walk.takeScreenshotOnce(QStringLiteral("statement"));
}

bool StatementWalk::fillTexts(const StatementSetting &plan)
{
    FormSteps steps{FormStep::write(QStringLiteral("titleLineEdit"), plan.title),
                    FormStep::write(QStringLiteral("mentTextEdit"), plan.ment),
                    FormStep::write(QStringLiteral("commentTextEdit"), plan.comment)};
    for (int field = 0; field < CompanyInfo::FieldCount; ++field)
        steps << FormStep::check(companyCheckBox(field), plan.printCompany.at(size_t(field)));
    return fillForm(m_walk, steps);
}

bool StatementWalk::buildField(int number, const StatementField &plan)
{
    const QString key = StatementFields::key(number);
    if (plan.toPrint
        && !(m_cells.click(PdfSetModel::PrintRow, number)
             && m_walk.waitFor(QStringLiteral("%1 to be printed").arg(key),
                               [&] { return field(number).toPrint; })))
        return false;
    SourceHands sources(m_walk, viewName());
    for (int i = 0; i < plan.mappings.size(); ++i) {
        if (!sources.bring(InputSource, plan.mapNums.at(i), PdfSetModel::OutputRow, number)
            || !m_walk.waitFor(
                QStringLiteral("%1 to be mapped to %2").arg(plan.mappings.at(i), key),
                [&] { return field(number).mappings == plan.mappings.mid(0, i + 1); }))
            return false;
    }
    if (!plan.separator.isEmpty()
        && !(m_cells.doubleClick(PdfSetModel::OutputRow, number)
             && fillSeparator(m_walk, plan.separator) && m_walk.waitForFront(settingDialog)))
        return false;
    return addRules(number, plan.rules);
}

bool StatementWalk::addRules(int number, const QStringList &rules)
{
    if (rules.isEmpty())
        return true;
    return m_cells.doubleClick(PdfSetModel::RuleRow, number) && m_walk.waitForFront("PdfRuleDialog")
        && composeRules(m_walk, rules, QStringLiteral("addButton"), QStringLiteral("listWidget"))
        && m_walk.takeScreenshotOnce(QStringLiteral("statement_rules"))
        && m_walk.click(QStringLiteral("okButton")) && m_walk.waitForFront(settingDialog);
}
