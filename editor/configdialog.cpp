#include "editor/configdialog.h"

#include "editor/convertsettingdialog.h"
#include "settings/companyinfo.h"
#include "settings/convertsettings.h"
#include "ui_configdialog.h"

#include <QShortcut>
#include <QStringListModel>

ConfigDialog::ConfigDialog(QStringListModel *settingNames, QWidget *parent)
    : Dialog(parent), ui(std::make_unique<Ui::ConfigDialog>()), m_settingNames(settingNames)
{
    ui->setupUi(this);
    addStatusBar();
    ui->settingListView->setModel(m_settingNames);
    const CompanyInfo company = loadCompanyInfo();
    const QList<QLineEdit *> edits = companyEdits();
    for (int field = 0; field < edits.size(); ++field)
        edits.at(field)->setText(company.value(field));
    connect(ui->cancelButton, &QPushButton::clicked, this, &ConfigDialog::close);
    connectList();
}

ConfigDialog::~ConfigDialog() = default;

void ConfigDialog::connectList()
{
    QListView *const list = ui->settingListView;
    connect(list, &QListView::doubleClicked, this, &ConfigDialog::editSetting);

    // The keyboard's focus makes a row current without marking it; what Delete takes must be seen.
    connect(list->selectionModel(), &QItemSelectionModel::currentChanged, list,
            [list](const QModelIndex &index) { list->setCurrentIndex(index); });

    // In the list these keys must not reach the dialog, whose default button would close it.
    const auto addKey = [this, list](const QKeySequence &key, void (ConfigDialog::*slot)()) {
        auto *shortcut = new QShortcut(key, list);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, slot);
    };
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_F2})
        addKey(key, &ConfigDialog::on_setButton_clicked);
    addKey(Qt::Key_Delete, &ConfigDialog::on_deleteButton_clicked);
}

QList<QLineEdit *> ConfigDialog::companyEdits() const
{
    return {ui->CompanyNameEdit, ui->StoreNameEdit, ui->StoreSiteEdit, ui->PostCodeEdit,
            ui->AddressEdit,     ui->TelEdit,       ui->FaxEdit,       ui->EmailEdit};
}

void ConfigDialog::on_addButton_clicked()
{
    (new ConvertSettingDialog(m_settingNames, this))->showAndForget();
}

void ConfigDialog::on_setButton_clicked()
{
    editSetting(ui->settingListView->currentIndex());
}

void ConfigDialog::editSetting(const QModelIndex &index)
{
    if (!index.isValid())
        return;
    auto *dialog = new ConvertSettingDialog(m_settingNames, this);
    dialog->loadSetting(index);
    dialog->showAndForget();
}

void ConfigDialog::on_deleteButton_clicked()
{
    const QModelIndex index = ui->settingListView->currentIndex();
    if (!index.isValid())
        return;
    const QString name = index.data().toString();
    m_settingNames->removeRow(index.row());
    removeSetting(name);
}

void ConfigDialog::on_okButton_clicked()
{
    CompanyInfo company;
    const QList<QLineEdit *> edits = companyEdits();
    for (int field = 0; field < edits.size(); ++field)
        company.fields[size_t(field)] = edits.at(field)->text();
    saveCompanyInfo(company);
    close();
}
