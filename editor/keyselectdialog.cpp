#include "editor/keyselectdialog.h"

#include "ui_keyselectdialog.h"

// Not the current row: the keyboard's focus makes the first row current without marking it, and
// only what the user sees marked is chosen.
static int selectedRow(const QListWidget *list)
{
    const QList<QListWidgetItem *> selected = list->selectedItems();
    return selected.isEmpty() ? -1 : list->row(selected.first());
}

KeySelectDialog::KeySelectDialog(const QStringList &items, const QStringList &heads,
                                 InputModeModel::KeyPair preselected, QWidget *parent)
    : Dialog(parent), ui(std::make_unique<Ui::KeySelectDialog>())
{
    ui->setupUi(this);
    addStatusBar();
    ui->originalDataListWidget->addItems(items);
    ui->newDataListWidget->addItems(heads);
    connectForm();
    if (preselected.targetKey >= 0 && preselected.key >= 0) {
        ui->originalDataListWidget->setCurrentRow(preselected.targetKey);
        ui->newDataListWidget->setCurrentRow(preselected.key);
    }
}

KeySelectDialog::~KeySelectDialog() = default;

void KeySelectDialog::connectForm()
{
    connect(ui->okButton, &QPushButton::clicked, this, &KeySelectDialog::accept);
    connect(ui->cancelButton, &QPushButton::clicked, this, &KeySelectDialog::reject);
    // Whoever works with the keyboard clicks nothing.
    connect(ui->originalDataListWidget, &QListWidget::itemSelectionChanged, this,
            [this] { m_keys.targetKey = selectedRow(ui->originalDataListWidget); });
    connect(ui->newDataListWidget, &QListWidget::itemSelectionChanged, this,
            [this] { m_keys.key = selectedRow(ui->newDataListWidget); });
}

// A click with Ctrl held down would take the mark off again; here a clicked row is a chosen one.
void KeySelectDialog::on_originalDataListWidget_clicked(const QModelIndex &index)
{
    if (index.isValid())
        ui->originalDataListWidget->setCurrentRow(index.row());
}

void KeySelectDialog::on_newDataListWidget_clicked(const QModelIndex &index)
{
    if (index.isValid())
        ui->newDataListWidget->setCurrentRow(index.row());
}
