#include "tests/translations/everywindow.h"

#include "app/mainwindow.h"
#include "editor/configdialog.h"
#include "editor/convertsettingdialog.h"
#include "editor/editconditionsdialog.h"
#include "editor/editoutputitemsdialog.h"
#include "editor/keyselectdialog.h"
#include "editor/mergedialog.h"
#include "editor/ruledialog.h"
#include "settings/convertsettings.h"
#include "settings/inputsetting.h"
#include "statement/pdfruledialog.h"
#include "statement/statementsetting.h"
#include "update/infodialog.h"

#include <QComboBox>
#include <QFileDialog>
#include <QListWidget>
#include <QMessageBox>
#include <QTableView>

namespace {

void copySamples(const WorkingFolder &folder)
{
    const QDir samples(QUORIN_SOURCE_DIR "/sample");
    const QStringList files = samples.entryList(QDir::Files);
    for (const QString &file : files) {
        if (!QFile::copy(samples.filePath(file), folder.path(file)))
            qFatal("cannot copy %s", qPrintable(file));
    }
}

/// Items called 1, 2, 3 ...
void nameByNumbers(OutputModeModel &model)
{
    for (int column = 0; column < model.columnCount(); ++column)
        model.setData(model.index(OutputModeModel::NameRow, column), QString::number(column + 1));
}

} // namespace

QStringList EveryWindow::names()
{
    return {"main window",   "settings manager",   "convert setting", "new convert setting",
            "key selection", "output items",       "conditions",      "rules",
            "merging",       "statement rules",    "information",     "file to open",
            "file to save",  "question and answer"};
}

EveryWindow::EveryWindow(const QString &settingName) : m_settingName(settingName)
{
    copySamples(m_folder);
    m_settingNames.setStringList(settingNames());
    m_items.load(settingName);
    nameByNumbers(m_items);
    m_fields.setFields(loadStatementSetting(settingName).fields);
    // The condition editor shows nothing of an item without conditions.
    OutputItem item = m_items.item(0);
    item.appendCondition(InputSource, 0, "1");
    item.condRules.last() = "contains(1)";
    item.merge = "STRING";
    m_items.setItem(0, item);
}

std::unique_ptr<QWidget> EveryWindow::make(const QString &name)
{
    if (name == "main window")
        return makeMainWindow();
    if (name == "settings manager")
        return std::make_unique<ConfigDialog>(&m_settingNames);
    if (name == "convert setting")
        return makeConvertSettingDialog();
    if (name == "new convert setting")
        return std::make_unique<ConvertSettingDialog>(&m_settingNames);
    if (name == "key selection") {
        const QStringList heads = loadInputSetting(m_settingName).heads;
        return std::make_unique<KeySelectDialog>(heads, heads, InputModeModel::KeyPair{0, 0});
    }
    if (name == "output items")
        return std::make_unique<EditOutputItemsDialog>(&m_items, cell(OutputModeModel::OutputRow));
    if (name == "conditions") {
        return std::make_unique<EditConditionsDialog>(&m_items,
                                                      cell(OutputModeModel::ConditionsRow));
    }
    if (name == "rules")
        return std::make_unique<RuleDialog>(&m_items, cell(OutputModeModel::RulesRow));
    if (name == "merging")
        return std::make_unique<MergeDialog>(&m_items, cell(OutputModeModel::MergeRow));
    if (name == "statement rules") {
        return std::make_unique<PdfRuleDialog>(
            &m_fields, m_fields.index(PdfSetModel::RuleRow, StatementFields::PostCode));
    }
    if (name == "information")
        return std::make_unique<InfoDialog>();
    if (name == "question and answer") {
        return std::make_unique<QMessageBox>(QMessageBox::Question, QString(), QString(),
                                             QMessageBox::Ok | QMessageBox::Cancel
                                                 | QMessageBox::Yes | QMessageBox::No);
    }
    auto files =
        std::make_unique<QFileDialog>(nullptr, MainWindow::tr("Input Files"), QString(),
                                      MainWindow::tr("CSV Files (*.csv);;All Files (*.*)"));
    files->setOption(QFileDialog::DontUseNativeDialog);
    if (name == "file to save")
        files->setAcceptMode(QFileDialog::AcceptSave);
    return files;
}

std::unique_ptr<QWidget> EveryWindow::makeMainWindow() const
{
    auto window = std::make_unique<MainWindow>();
    QMetaObject::invokeMethod(window->findChild<QListWidget *>("sourceFileList"), "filesDropped",
                              Q_ARG(QStringList, {m_folder.path("shop_orders.csv")}));
    window->findChild<QComboBox *>("convertSetting")->setCurrentText(m_settingName);
    return window;
}

std::unique_ptr<QWidget> EveryWindow::makeConvertSettingDialog()
{
    auto dialog = std::make_unique<ConvertSettingDialog>(&m_settingNames);
    dialog->loadSetting(
        m_settingNames.index(int(m_settingNames.stringList().indexOf(m_settingName))));
    auto *view = dialog->findChild<QTableView *>("outputModeView");
    nameByNumbers(*qobject_cast<OutputModeModel *>(view->model()));
    return dialog;
}

QModelIndex EveryWindow::cell(int row) const
{
    return m_items.index(row, 0);
}
