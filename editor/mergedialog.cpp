#include "editor/mergedialog.h"

#include "editor/outputmodemodel.h"
#include "ui_mergedialog.h"

namespace {

// In the order of mergeTypeComboBox and of separatorComboBox.
enum MergeType { NoMerge, TextMerge, NumberMerge };
enum SeparatorType { TypedSeparator, LineBreakSeparator };

QString lf()
{
    return QStringLiteral("\n");
}

QString crlf()
{
    return QStringLiteral("\r\n");
}

} // namespace

MergeDialog::MergeDialog(OutputModeModel *model, const QModelIndex &index, QWidget *parent)
    : Dialog(parent), ui(std::make_unique<Ui::MergeDialog>()), m_model(model), m_index(index)
{
    ui->setupUi(this);
    addStatusBar();
    connect(ui->cancelButton, &QPushButton::clicked, this, &MergeDialog::reject);
    loadItem();
}

MergeDialog::~MergeDialog() = default;

void MergeDialog::loadItem()
{
    const OutputItem item = m_model->item(m_index.column());
    if (item.mergesTexts()) {
        ui->mergeTypeComboBox->setCurrentIndex(TextMerge);
        loadSeparator(item.mergeSeparator);
    } else if (item.mergesNumbers()) {
        ui->mergeTypeComboBox->setCurrentIndex(NumberMerge);
    }
}

void MergeDialog::loadSeparator(const QString &separator)
{
    if (separator == lf() || separator == crlf()) {
        ui->separatorComboBox->setCurrentIndex(LineBreakSeparator);
        (separator == lf() ? ui->lfRadioButton : ui->crlfRadioButton)->setChecked(true);
    } else {
        ui->separatorLineEdit->setText(separator);
    }
}

void MergeDialog::on_mergeTypeComboBox_currentIndexChanged(int index)
{
    ui->separatorGroupBox->setEnabled(index == TextMerge);
}

void MergeDialog::on_separatorComboBox_currentIndexChanged(int index)
{
    ui->separateStackedWidget->setCurrentIndex(index);
}

std::optional<QString> MergeDialog::separator() const
{
    if (ui->separatorComboBox->currentIndex() == TypedSeparator)
        return ui->separatorLineEdit->text();
    if (ui->lfRadioButton->isChecked())
        return lf();
    if (ui->crlfRadioButton->isChecked())
        return crlf();
    return std::nullopt;
}

void MergeDialog::on_okButton_clicked()
{
    OutputItem item = m_model->item(m_index.column());
    const int type = ui->mergeTypeComboBox->currentIndex();
    if (type == TextMerge) {
        const std::optional<QString> chosen = separator();
        if (!chosen) {
            warn(tr("Select new line code."));
            return;
        }
        item.merge = QStringLiteral("STRING");
        item.mergeSeparator = *chosen;
    } else {
        item.merge = type == NumberMerge ? QStringLiteral("NUMBER") : QStringLiteral("NO");
        item.mergeSeparator.clear();
    }
    m_model->setItem(m_index.column(), item);
    accept();
}
