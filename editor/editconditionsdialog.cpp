#include "editor/editconditionsdialog.h"

#include "editor/outputmodemodel.h"
#include "rules/functiontext.h"
#include "ui_editconditionsdialog.h"

#include <QShortcut>
#include <QStatusBar>
#include <limits>

namespace {

// In the order of typeComboBox and of its pages, and of combinationComboBox.
enum ConditionType { TextCondition, NumberCondition };
enum CombinationWord { And, Or };

// In the order of minComboBox and maxComboBox, which have the open bound last.
const QStringList &minKeywords()
{
    static const QStringList keywords = {QStringLiteral("greaterThan"),
                                         QStringLiteral("notLessThan"), QStringLiteral("unLimit")};
    return keywords;
}

const QStringList &maxKeywords()
{
    static const QStringList keywords = {
        QStringLiteral("lessThan"), QStringLiteral("notGreaterThan"), QStringLiteral("unLimit")};
    return keywords;
}

const int OpenBound = 2;

// In the order of findComboBox.
const QStringList &textKeywords()
{
    static const QStringList keywords = {
        QStringLiteral("equalTo"),    QStringLiteral("notEqualTo"),
        QStringLiteral("contains"),   QStringLiteral("notContains"),
        QStringLiteral("startsWith"), QStringLiteral("notStartsWith"),
        QStringLiteral("endsWith"),   QStringLiteral("notEndsWith")};
    return keywords;
}

// Required: the last four are only recognised without the "s" that they are saved with, so a saved
// condition of these leaves findComboBox where it was. Evaluating a condition is not affected.
const QStringList &loadedTextKeywords()
{
    static const QStringList keywords = {
        QStringLiteral("equalTo"),     QStringLiteral("notEqualTo"), QStringLiteral("contains"),
        QStringLiteral("notContains"), QStringLiteral("startWith"),  QStringLiteral("notStartWith"),
        QStringLiteral("endWith"),     QStringLiteral("notEndWith")};
    return keywords;
}

QString call(const QString &keyword, const QString &argument)
{
    return keyword + QLatin1Char('(') + argument + QLatin1Char(')');
}

QString boundText(const QStringList &keywords, const QComboBox *keyword, const QSpinBox *number)
{
    const QString name = keywords.at(keyword->currentIndex());
    return keyword->currentIndex() == OpenBound ? name
                                                : call(name, QString::number(number->value()));
}

// What is missing or unknown bounds nothing in a conversion either.
void loadBound(const QString &bound, const QStringList &keywords, QComboBox *keyword,
               QSpinBox *number)
{
    const int index = keywords.indexOf(functionName(bound));
    keyword->setCurrentIndex(index < 0 ? OpenBound : index);
    if (keyword->currentIndex() != OpenBound)
        number->setValue(functionIntArg(bound));
}

// An open bound has no number.
void setBoundType(int index, QSpinBox *number)
{
    if (index == OpenBound)
        number->setValue(0);
    number->setEnabled(index != OpenBound);
}

} // namespace

EditConditionsDialog::EditConditionsDialog(OutputModeModel *model, const QModelIndex &index,
                                           QWidget *parent)
    : Dialog(parent), ui(std::make_unique<Ui::EditConditionsDialog>()), m_model(model),
      m_index(index)
{
    ui->setupUi(this);
    addStatusBar();
    setUpNumberPage();
    connectForm();
    loadItem();
}

EditConditionsDialog::~EditConditionsDialog() = default;

void EditConditionsDialog::setCurrentCondition(int position)
{
    ui->itemListWidget->setCurrentRow(position);
}

// Not earlier: a new condition is to open with empty fields, not with those of the first one.
void EditConditionsDialog::showEvent(QShowEvent *event)
{
    if (ui->itemListWidget->currentRow() < 0)
        ui->itemListWidget->setCurrentRow(0);
    Dialog::showEvent(event);
}

void EditConditionsDialog::setUpNumberPage()
{
    for (QSpinBox *number : {ui->minSpinBox, ui->maxSpinBox}) {
        // Whatever a value can be read as.
        number->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
        connect(number, qOverload<int>(&QSpinBox::valueChanged), this,
                &EditConditionsDialog::numberConditionChanged);
    }
    for (QComboBox *keyword : {ui->minComboBox, ui->maxComboBox}) {
        connect(keyword, qOverload<int>(&QComboBox::currentIndexChanged), this,
                &EditConditionsDialog::numberConditionChanged);
    }
}

void EditConditionsDialog::connectForm()
{
    auto *deleteKey = new QShortcut(Qt::Key_Delete, ui->itemListWidget);
    deleteKey->setContext(Qt::WidgetShortcut);
    connect(deleteKey, &QShortcut::activated, this, &EditConditionsDialog::on_delButton_clicked);
}

void EditConditionsDialog::loadItem()
{
    const OutputItem item = m_model->item(m_index.column());
    ui->itemListWidget->addItems(item.conditions);
    if (item.condCombination == QLatin1String("AND"))
        ui->combinationComboBox->setCurrentIndex(And);
    else if (item.condCombination == QLatin1String("OR"))
        ui->combinationComboBox->setCurrentIndex(Or);
}

void EditConditionsDialog::on_minComboBox_currentIndexChanged(int index)
{
    setBoundType(index, ui->minSpinBox);
}

void EditConditionsDialog::on_maxComboBox_currentIndexChanged(int index)
{
    setBoundType(index, ui->maxSpinBox);
}

void EditConditionsDialog::on_itemListWidget_currentRowChanged(int currentRow)
{
    const QString condition = m_model->item(m_index.column()).condRules.value(currentRow);
    if (functionName(condition) == QLatin1String("range"))
        loadRange(condition);
    else if (!condition.isEmpty())
        loadTextTest(condition);
    ui->saveButton->setEnabled(false);
}

void EditConditionsDialog::loadRange(const QString &condition)
{
    ui->typeComboBox->setCurrentIndex(NumberCondition);
    const QStringList bounds = functionArgs(condition).split(QLatin1Char(','));
    loadBound(bounds.value(0), minKeywords(), ui->minComboBox, ui->minSpinBox);
    loadBound(bounds.value(1), maxKeywords(), ui->maxComboBox, ui->maxSpinBox);
}

void EditConditionsDialog::loadTextTest(const QString &condition)
{
    ui->typeComboBox->setCurrentIndex(TextCondition);
    ui->findLineEdit->setText(functionArgs(condition));
    const int index = loadedTextKeywords().indexOf(functionName(condition));
    if (index >= 0)
        ui->findComboBox->setCurrentIndex(index);
}

void EditConditionsDialog::on_findLineEdit_textChanged(const QString &text)
{
    ui->saveButton->setEnabled(!text.isEmpty());
}

void EditConditionsDialog::on_findComboBox_currentIndexChanged(int)
{
    ui->saveButton->setEnabled(!ui->findLineEdit->text().isEmpty());
}

void EditConditionsDialog::on_typeComboBox_currentIndexChanged(int index)
{
    ui->conditionPages->setCurrentIndex(index);
    ui->saveButton->setEnabled(index == NumberCondition || !ui->findLineEdit->text().isEmpty());
}

QString EditConditionsDialog::conditionText() const
{
    if (ui->conditionPages->currentIndex() == TextCondition)
        return call(textKeywords().at(ui->findComboBox->currentIndex()), ui->findLineEdit->text());
    return call(QStringLiteral("range"),
                boundText(minKeywords(), ui->minComboBox, ui->minSpinBox) + QLatin1Char(',')
                    + boundText(maxKeywords(), ui->maxComboBox, ui->maxSpinBox));
}

void EditConditionsDialog::on_saveButton_clicked()
{
    const int row = ui->itemListWidget->currentRow();
    if (row < 0)
        return;
    OutputItem item = m_model->item(m_index.column());
    // A damaged setting may have fewer conditions than tested values.
    while (item.condRules.size() <= row)
        item.condRules.append(QString());
    item.condRules[row] = conditionText();
    m_model->setItem(m_index.column(), item);
    ui->saveButton->setEnabled(false);
    statusBar()->showMessage(tr("Setting has saved"));
}

void EditConditionsDialog::numberConditionChanged()
{
    ui->saveButton->setEnabled(true);
}

void EditConditionsDialog::on_delButton_clicked()
{
    const int row = ui->itemListWidget->currentRow();
    if (row < 0)
        return;
    m_model->removeCondition(m_index.column(), row);
    {
        // While the line goes, the list names the next one by its row of before.
        const QSignalBlocker blocker(ui->itemListWidget);
        delete ui->itemListWidget->takeItem(row);
    }
    on_itemListWidget_currentRowChanged(ui->itemListWidget->currentRow());
}

void EditConditionsDialog::on_okButton_clicked()
{
    OutputItem item = m_model->item(m_index.column());
    item.condCombination = ui->combinationComboBox->currentIndex() == Or ? QStringLiteral("OR")
                                                                         : QStringLiteral("AND");
    m_model->setItem(m_index.column(), item);
    accept();
}
