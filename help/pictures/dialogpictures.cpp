#include "help/pictures/dialogpictures.h"

#include "editor/configdialog.h"
#include "editor/convertsettingdialog.h"
#include "editor/editconditionsdialog.h"
#include "editor/editoutputitemsdialog.h"
#include "editor/keyselectdialog.h"
#include "editor/mergedialog.h"
#include "editor/outputmodemodel.h"
#include "editor/ruledialog.h"
#include "help/pictures/camera.h"
#include "help/pictures/shop.h"
#include "settings/convertsettings.h"
#include "statement/pdfruledialog.h"
#include "statement/pdfsetmodel.h"
#include "update/infodialog.h"

#include <QStringListModel>
#include <QTabWidget>

namespace {

template <typename Dialog> Dialog &onTab(Dialog &dialog, int tab)
{
    dialog.template findChild<QTabWidget *>()->setCurrentIndex(tab);
    return dialog;
}

/// -1 when no item is like that.
template <typename Test> int firstColumn(const OutputModeModel &model, Test test)
{
    for (int column = 0; column < model.columnCount(); ++column) {
        if (test(model.item(column)))
            return column;
    }
    return -1;
}

int columnWithMostRules(const OutputModeModel &model)
{
    const auto count = [&model](int column) {
        return model.item(column).rules.size() + model.item(column).afterRules.size();
    };
    int best = 0;
    for (int column = 1; column < model.columnCount(); ++column) {
        if (count(column) > count(best))
            best = column;
    }
    return best;
}

void takeConfiguration(const Camera &camera)
{
    QStringListModel names(settingNames());
    ConfigDialog company(&names);
    camera.take(onTab(company, 0), "company");
    ConfigDialog manager(&names);
    camera.take(onTab(manager, 1), "manager");
}

void takeSetting(const QString &settingName, const Camera &camera)
{
    QStringListModel names(settingNames());
    ConvertSettingDialog empty(&names);
    camera.takeNarrow(empty, "setting-empty");
    const QModelIndex row = names.index(int(names.stringList().indexOf(settingName)));
    ConvertSettingDialog setting(&names);
    setting.loadSetting(row);
    camera.takeNarrow(onTab(setting, 0), "setting");
    ConvertSettingDialog statement(&names);
    statement.loadSetting(row);
    camera.takeNarrow(onTab(statement, 1), "setting-statement");
}

void takeItemEditors(const QString &settingName, const Camera &camera)
{
    OutputModeModel model;
    model.load(settingName);
    const auto cell = [&model](int row, auto test) {
        const QModelIndex index = model.index(row, firstColumn(model, test));
        if (!index.isValid())
            qFatal("The setting has nothing to show in row %d.", row);
        return index;
    };

    EditOutputItemsDialog items(&model,
                                cell(OutputModeModel::OutputRow, [](const OutputItem &item) {
                                    return item.mappings.size() > 1;
                                }));
    camera.take(items, "items");
    RuleDialog rules(&model, model.index(OutputModeModel::RulesRow, columnWithMostRules(model)));
    camera.take(rules, "rules");
    MergeDialog merge(&model, cell(OutputModeModel::MergeRow, [](const OutputItem &item) {
        return item.mergesTexts();
    }));
    camera.take(merge, "merge");
}

// Not of the samples: the dialog does not recognise the words of theirs (see docs/architecture.md).
void takeConditions(const OutputItem &item, const Camera &camera)
{
    OutputModeModel model;
    const QModelIndex cell = model.appendItem();
    model.setItem(cell.column(), item);
    EditConditionsDialog conditions(&model,
                                    model.index(OutputModeModel::ConditionsRow, cell.column()));
    camera.take(conditions, "conditions");
}

void takeStatementRules(const QString &settingName, const Camera &camera)
{
    PdfSetModel fields;
    fields.setFields(loadStatementSetting(settingName).fields);
    PdfRuleDialog rules(&fields, fields.index(PdfSetModel::RuleRow, StatementFields::Name));
    camera.take(rules, "statement-rules");
}

} // namespace

void takePicturesOfDialogs(const Shop &shop, const Camera &camera)
{
    takeConfiguration(camera);
    takeSetting(shop.settingName, camera);
    takeItemEditors(shop.settingName, camera);
    takeConditions(shop.itemWithConditions, camera);
    takeStatementRules(shop.settingName, camera);
    KeySelectDialog keys(shop.firstHeads, shop.secondHeads, {shop.firstKey, shop.secondKey});
    camera.take(keys, "keys");
    InfoDialog info;
    camera.take(info, "info");
}
