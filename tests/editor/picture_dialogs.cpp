// picture_dialogs WORKFOLDER PICTUREFOLDER
// Shows every dialog of the setting editor, filled with the first setting of the work folder that
// makes a statement, and saves a picture of each. Needs a display.
#include "editor/configdialog.h"
#include "editor/convertsettingdialog.h"
#include "editor/editconditionsdialog.h"
#include "editor/editoutputitemsdialog.h"
#include "editor/keyselectdialog.h"
#include "editor/mergedialog.h"
#include "editor/outputmodemodel.h"
#include "editor/ruledialog.h"
#include "settings/convertsettings.h"
#include "statement/pdfruledialog.h"
#include "statement/pdfsetmodel.h"

#include <QApplication>
#include <QDir>
#include <QStringListModel>
#include <QTabWidget>
#include <QTextStream>
#include <QThread>
#include <memory>

namespace {

QDir pictures;

/// A dialog as it stands after everything has been laid out and drawn.
void keepPicture(QWidget &dialog, const char *name)
{
    dialog.show();
    for (int i = 0; i < 20; ++i) {
        QCoreApplication::processEvents();
        QThread::msleep(15);
    }
    const QString file = pictures.filePath(QLatin1String(name) + QLatin1String(".png"));
    if (!dialog.grab().save(file))
        qFatal("cannot save %s", qPrintable(file));
}

template <typename Test> int firstColumn(const OutputModeModel &model, Test test)
{
    for (int column = 0; column < model.columnCount(); ++column) {
        if (test(model.item(column)))
            return column;
    }
    return 0;
}

QString statementSettingName()
{
    const QStringList names = settingNames();
    for (const QString &name : names) {
        if (loadStatementSetting(name).generate)
            return name;
    }
    return names.value(0);
}

void keepPicturesOfItemEditors(const QString &settingName)
{
    OutputModeModel model;
    model.load(settingName);
    const auto cell = [&model](int row, auto test) {
        return model.index(row, firstColumn(model, test));
    };

    EditOutputItemsDialog items(&model,
                                cell(OutputModeModel::OutputRow, [](const OutputItem &item) {
                                    return item.mappings.size() > 1;
                                }));
    keepPicture(items, "dialog-items");
    RuleDialog rules(&model, cell(OutputModeModel::RulesRow, [](const OutputItem &item) {
        return item.rules.size() > 1 && !item.afterRules.isEmpty();
    }));
    keepPicture(rules, "dialog-rules");
    MergeDialog merge(&model, cell(OutputModeModel::MergeRow, [](const OutputItem &item) {
        return item.mergesTexts();
    }));
    keepPicture(merge, "dialog-merge");

    PdfSetModel fields;
    fields.setFields(loadStatementSetting(settingName).fields);
    PdfRuleDialog fieldRules(&fields,
                             fields.index(PdfSetModel::RuleRow, StatementFields::PostCode));
    keepPicture(fieldRules, "dialog-statement-rules");
}

// Not every setting has conditions.
void keepPictureOfConditions()
{
    const auto hasConditions = [](const OutputItem &item) { return !item.conditions.isEmpty(); };
    const QStringList names = settingNames();
    for (const QString &name : names) {
        OutputModeModel model;
        model.load(name);
        const int column = firstColumn(model, hasConditions);
        if (!hasConditions(model.item(column)))
            continue;
        EditConditionsDialog conditions(&model,
                                        model.index(OutputModeModel::ConditionsRow, column));
        keepPicture(conditions, "dialog-conditions");
        return;
    }
}

void keepPicturesOfManagers(const QString &settingName)
{
    QStringListModel names(settingNames());
    ConfigDialog company(&names);
    keepPicture(company, "dialog-company");
    ConfigDialog manager(&names);
    manager.findChild<QTabWidget *>()->setCurrentIndex(1);
    keepPicture(manager, "dialog-settings");

    ConvertSettingDialog empty(&names);
    keepPicture(empty, "dialog-setting-empty");
    for (const int tab : {0, 1}) {
        ConvertSettingDialog setting(&names);
        setting.loadSetting(names.index(int(names.stringList().indexOf(settingName))));
        setting.findChild<QTabWidget *>()->setCurrentIndex(tab);
        keepPicture(setting, tab == 0 ? "dialog-setting" : "dialog-setting-statement");
    }
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    pictures.setPath(QDir(arguments.value(2)).absolutePath());
    if (arguments.size() != 3 || !pictures.exists() || !QDir::setCurrent(arguments.at(1))) {
        QTextStream(stderr) << "usage: picture_dialogs WORKFOLDER PICTUREFOLDER\n";
        return 2;
    }
    const QString settingName = statementSettingName();
    keepPicturesOfManagers(settingName);
    keepPicturesOfItemEditors(settingName);
    keepPictureOfConditions();
    KeySelectDialog keys({QStringLiteral("주문번호"), QStringLiteral("주문일시"),
                          QStringLiteral("고객명"), QStringLiteral("고객 메일")},
                         {QStringLiteral("결제일시"), QStringLiteral("주문번호"),
                          QStringLiteral("결제수단"), QStringLiteral("결제금액")},
                         {0, 1});
    keepPicture(keys, "dialog-keys");
    return 0;
}
