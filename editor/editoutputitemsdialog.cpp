#include "editor/editoutputitemsdialog.h"

#include "common/abstractoutputmodel.h"
#include "ui_editoutputitemsdialog.h"

#include <QShortcut>

namespace {

// Where an entry stood when the dialog was opened. Its text would not tell: one column can be
// mapped several times.
const int PositionRole = Qt::UserRole;

} // namespace

EditOutputItemsDialog::EditOutputItemsDialog(AbstractOutputModel *model, const QModelIndex &index,
                                             QWidget *parent)
    : Dialog(parent), ui(std::make_unique<Ui::EditOutputItemsDialog>()), m_model(model),
      m_index(index)
{
    ui->setupUi(this);
    addStatusBar();
    connectForm();
    loadItems();
    loadSeparator();
}

EditOutputItemsDialog::~EditOutputItemsDialog() = default;

void EditOutputItemsDialog::connectForm()
{
    connect(ui->cancelButton, &QPushButton::clicked, this, &EditOutputItemsDialog::reject);

    // The keyboard's focus makes a row current without marking it; what Delete takes must be seen.
    connect(ui->listWidget, &QListWidget::currentRowChanged, ui->listWidget,
            [list = ui->listWidget](int row) { list->setCurrentRow(row); });

    const auto addKey = [this](const QKeySequence &key, auto slot) {
        auto *shortcut = new QShortcut(key, ui->listWidget);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, slot);
    };
    addKey(Qt::Key_Delete, &EditOutputItemsDialog::on_delButton_clicked);
    addKey(Qt::ALT + Qt::Key_Up, [this] { moveCurrentItem(-1); });
    addKey(Qt::ALT + Qt::Key_Down, [this] { moveCurrentItem(1); });
}

void EditOutputItemsDialog::loadItems()
{
    const QStringList texts = m_model->data(m_index, Qt::EditRole).toStringList();
    for (int position = 0; position < texts.size(); ++position) {
        auto *item = new QListWidgetItem(texts.at(position), ui->listWidget);
        item->setData(PositionRole, position);
    }
}

void EditOutputItemsDialog::loadSeparator()
{
    const QString separator = m_model->separator(m_index);
    ui->sepCheckBox->setChecked(!separator.isEmpty());
    ui->sepLineEdit->setEnabled(!separator.isEmpty());
    ui->sepLineEdit->setText(separator);
}

void EditOutputItemsDialog::moveCurrentItem(int rows)
{
    const int row = ui->listWidget->currentRow();
    const int target = row + rows;
    if (row < 0 || target < 0 || target >= ui->listWidget->count())
        return;
    ui->listWidget->insertItem(target, ui->listWidget->takeItem(row));
    ui->listWidget->setCurrentRow(target);
}

void EditOutputItemsDialog::on_delButton_clicked()
{
    delete ui->listWidget->currentItem();
}

void EditOutputItemsDialog::on_sepCheckBox_clicked(bool checked)
{
    ui->sepLineEdit->setEnabled(checked);
    if (checked)
        ui->sepLineEdit->setFocus();
}

void EditOutputItemsDialog::on_okButton_clicked()
{
    QList<int> positions;
    for (int row = 0; row < ui->listWidget->count(); ++row)
        positions.append(ui->listWidget->item(row)->data(PositionRole).toInt());
    m_model->setMappings(m_index, positions,
                         ui->sepCheckBox->isChecked() ? ui->sepLineEdit->text() : QString());
    accept();
}
