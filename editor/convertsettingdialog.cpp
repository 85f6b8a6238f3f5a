#include "editor/convertsettingdialog.h"

#include "common/lastdirectory.h"
#include "editor/editconditionsdialog.h"
#include "editor/editoutputitemsdialog.h"
#include "editor/inputmodemodel.h"
#include "editor/keyselectdialog.h"
#include "editor/mergedialog.h"
#include "editor/outputmodemodel.h"
#include "editor/ruledialog.h"
#include "editor/samplefile.h"
#include "engine/csvreader.h"
#include "statement/convertsetting.h"
#include "statement/pdfruledialog.h"
#include "statement/pdfsetmodel.h"
#include "statement/statementsetting.h"
#include "ui_convertsettingdialog.h"

#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QScrollBar>
#include <QStringListModel>
#include <new>

namespace {

const QSize preferredSize(1200, 690); // a screen of 1366 by 768 holds it
const int rowMargin = 2;              // above and below a line of a table

struct CompanyCheckBox {
    CompanyInfo::Field field;
    QCheckBox *Ui::ConvertSettingDialog::*box;
};

const CompanyCheckBox companyCheckBoxes[] = {
    {CompanyInfo::Name, &Ui::ConvertSettingDialog::companyNameCheckBox},
    {CompanyInfo::StoreName, &Ui::ConvertSettingDialog::storeNameCheckBox},
    {CompanyInfo::StoreSite, &Ui::ConvertSettingDialog::storeSiteCheckBox},
    {CompanyInfo::PostCode, &Ui::ConvertSettingDialog::storePostCodeCheckBox},
    {CompanyInfo::Address, &Ui::ConvertSettingDialog::storeAddressCheckBox},
    {CompanyInfo::Tel, &Ui::ConvertSettingDialog::storeTelCheckBox},
    {CompanyInfo::Fax, &Ui::ConvertSettingDialog::storeFaxCheckBox},
    {CompanyInfo::Email, &Ui::ConvertSettingDialog::storeEmailCheckBox},
};

/// Of a table that shows so many lines, its heading and its scroll bar.
int heightForLines(const QTableView &view, int lines)
{
    return view.horizontalHeader()->sizeHint().height()
        + lines * (view.fontMetrics().height() + 2 * rowMargin)
        + view.style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2 * view.frameWidth();
}

} // namespace

ConvertSettingDialog::ConvertSettingDialog(QStringListModel *settingNames, QWidget *parent)
    : Dialog(parent), ui(std::make_unique<Ui::ConvertSettingDialog>()),
      m_settingNames(settingNames), m_inputModel(new InputModeModel(this)),
      m_outputModel(new OutputModeModel(this)), m_pdfModel(new PdfSetModel(this))
{
    ui->setupUi(this);
    addStatusBar();
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    resize(preferredSize);
    setUpViews();
    ui->outputTabWidget->setTabEnabled(ui->outputTabWidget->indexOf(ui->pdfTab), false);
    connect(ui->cancelButton, &QPushButton::clicked, this, &ConvertSettingDialog::close);
}

ConvertSettingDialog::~ConvertSettingDialog() = default;

void ConvertSettingDialog::setUpViews()
{
    ui->InputModeView->setModel(m_inputModel);
    ui->outputModeView->setModel(m_outputModel);
    ui->pdfModelView->setModel(m_pdfModel);
    for (ItemTableView *view : {ui->InputModeView, ui->outputModeView, ui->pdfModelView}) {
        view->verticalHeader()->setMinimumSectionSize(fontMetrics().height());
        // The arrows move within a table; the tab key must lead out of it.
        view->setTabKeyNavigation(false);
    }
    // A column is a place to drop things on, also before anything stands in it.
    for (ItemTableView *view : {ui->outputModeView, ui->pdfModelView})
        view->horizontalHeader()->setMinimumSectionSize(fontMetrics().averageCharWidth() * 10);
    // A click on a heading would select an item once for every row.
    ui->InputModeView->horizontalHeader()->setSectionsClickable(false);
    // What is seen without scrolling: the items and both examples; of the statement fields the
    // check box, two mapped items and a rule.
    ui->InputModeView->setMinimumHeight(heightForLines(*ui->InputModeView, 3));
    ui->pdfModelView->setMinimumHeight(heightForLines(*ui->pdfModelView, 4));
    ui->pdfModelView->fitAllToContents();
    ui->fontComboBox->lineEdit()->setAccessibleName(ui->fontComboBox->toolTip());
    showFont(QString());
    ui->splitter->setStretchFactor(ui->splitter->indexOf(ui->groupBox), 0);
    ui->splitter->setStretchFactor(ui->splitter->indexOf(ui->groupBox_2), 1);

    connect(m_outputModel, &OutputModeModel::itemChanged, this,
            &ConvertSettingDialog::outputItemChanged);
    connect(m_outputModel, &OutputModeModel::itemsDropped, this,
            &ConvertSettingDialog::editConditionAfterDrop);
    connect(m_pdfModel, &PdfSetModel::itemChanged, this, &ConvertSettingDialog::pdfItemChanged);
    connect(ui->outputModeView, &ItemTableView::removalRequested, this,
            &ConvertSettingDialog::on_deleteItemButton_clicked);
    connect(ui->outputModeView, &ItemTableView::moveLeftRequested, this,
            &ConvertSettingDialog::on_leftButton_clicked);
    connect(ui->outputModeView, &ItemTableView::moveRightRequested, this,
            &ConvertSettingDialog::on_rightButton_clicked);
}

void ConvertSettingDialog::loadSetting(const QModelIndex &index)
{
    m_loadedName = index.data().toString();
    m_loadedIndex = index;
    ui->settingNameEdit->setText(m_loadedName);
    showStatement(loadStatementSetting(m_loadedName));
    m_inputModel->load(m_loadedName);
    m_outputModel->load(m_loadedName);
    showFormNames();
    for (ItemTableView *view : {ui->InputModeView, ui->outputModeView, ui->pdfModelView})
        view->fitAllToContents();
}

void ConvertSettingDialog::showFormNames()
{
    // Nobody has chosen a form: the view keeps its place and the focus stays where it is.
    const QSignalBlocker blocker(ui->inputFileComboBox);
    ui->inputFileComboBox->clear();
    for (const InputForm &form : m_inputModel->forms())
        ui->inputFileComboBox->addItem(form.name);
}

void ConvertSettingDialog::on_addInputFileButton_clicked()
{
    const QStringList files = QFileDialog::getOpenFileNames(
        this, tr("Load File(s)"), lastDirectory(), tr("CSV Files (*.csv);;All Files (*.*)"));
    if (files.isEmpty())
        return;
    rememberDirectory(files.first());
    for (const QString &file : files)
        addInputFile(file);
}

void ConvertSettingDialog::addInputFile(const QString &fileName)
{
    const auto refuse = [&](const QString &reason) {
        warn(tr("Cannot open file '%1':\n%2.").arg(fileName, reason));
    };
    QFile file(fileName);
    QString reason;
    if (!openCsvFile(file, &reason))
        return refuse(reason);
    SampleFile sample;
    try {
        sample = readSampleFile(file, fileName);
    } catch (const std::bad_alloc &) {
        return refuse(tr("The file is too large"));
    }
    if (sample.heads().join(QString()).isEmpty())
        return refuse(tr("The first line has no headings"));

    if (m_inputModel->isEmpty()) {
        m_inputModel->addFirstForm(sample);
    } else {
        KeySelectDialog dialog(m_inputModel->items(), sample.heads(),
                               m_inputModel->findKeyPair(sample.heads()), this);
        if (dialog.exec() != QDialog::Accepted)
            return;
        if (!m_inputModel->joinForm(sample, dialog.keys()))
            return warn(tr("Matching key was not selected"));
    }
    showFormNames();
    ui->InputModeView->fitAllToContents();
}

void ConvertSettingDialog::on_clearInputFileButton_clicked()
{
    m_inputModel->clear();
    m_outputModel->clear();
    ui->inputFileComboBox->clear();
}

void ConvertSettingDialog::on_inputFileComboBox_currentIndexChanged(int index)
{
    const QModelIndex first = m_inputModel->firstItemOfForm(index);
    if (!first.isValid())
        return;
    ui->InputModeView->setCurrentIndex(first);
    // At the left edge: what follows is the rest of the form.
    ui->InputModeView->scrollTo(first, QAbstractItemView::PositionAtTop);
    QScrollBar *bar = ui->InputModeView->horizontalScrollBar();
    bar->setValue(bar->value() + ui->InputModeView->columnViewportPosition(first.column()));
    ui->InputModeView->setFocus();
}

void ConvertSettingDialog::on_addItemButton_clicked()
{
    editNewItem(m_outputModel->appendItem());
}

void ConvertSettingDialog::on_insertItemButton_clicked()
{
    const QModelIndex current = ui->outputModeView->currentIndex();
    if (current.isValid())
        editNewItem(m_outputModel->insertItem(current.column()));
}

void ConvertSettingDialog::editNewItem(const QModelIndex &nameCell)
{
    ui->outputModeView->fitToContents(nameCell);
    ui->outputModeView->setCurrentIndex(nameCell);
    ui->outputModeView->edit(nameCell);
}

void ConvertSettingDialog::on_deleteItemButton_clicked()
{
    const QModelIndex current = ui->outputModeView->currentIndex();
    if (!current.isValid())
        return;
    m_outputModel->removeItem(current.column());
    ui->outputModeView->clearSelection();
    ui->outputModeView->setCurrentIndex(QModelIndex());
}

void ConvertSettingDialog::on_leftButton_clicked()
{
    const int column = ui->outputModeView->currentIndex().column();
    if (m_outputModel->moveItemLeft(column))
        showMovedItem(column - 1);
}

void ConvertSettingDialog::on_rightButton_clicked()
{
    const int column = ui->outputModeView->currentIndex().column();
    if (m_outputModel->moveItemRight(column))
        showMovedItem(column + 1);
}

void ConvertSettingDialog::showMovedItem(int column)
{
    const QModelIndex nameCell = m_outputModel->index(OutputModeModel::NameRow, column);
    ui->outputModeView->resizeColumnsToContents();
    ui->outputModeView->setCurrentIndex(nameCell);
    ui->outputModeView->setFocus();
    ui->outputModeView->scrollTo(nameCell);
}

void ConvertSettingDialog::on_outputModeView_clicked(const QModelIndex &index)
{
    if (index.row() == OutputModeModel::DistinctRow)
        m_outputModel->toggleDistinct(index.column());
    if (!ui->outputModeView->isEndingDoubleClick())
        ui->outputModeView->setCurrentIndex(index);
}

void ConvertSettingDialog::on_outputModeView_doubleClicked(const QModelIndex &index)
{
    switch (index.row()) {
    case OutputModeModel::OutputRow:
        (new EditOutputItemsDialog(m_outputModel, index, this))->showAndForget();
        break;
    case OutputModeModel::ConditionsRow:
        if (!m_outputModel->item(index.column()).conditions.isEmpty())
            (new EditConditionsDialog(m_outputModel, index, this))->showAndForget();
        break;
    case OutputModeModel::RulesRow:
        (new RuleDialog(m_outputModel, index, this))->showAndForget();
        break;
    case OutputModeModel::DistinctRow:
        ui->outputModeView->setCurrentIndex(index.siblingAtRow(OutputModeModel::NameRow));
        break;
    case OutputModeModel::MergeRow:
        (new MergeDialog(m_outputModel, index, this))->showAndForget();
        break;
    default:
        break; // the view edits names by itself
    }
}

void ConvertSettingDialog::outputItemChanged(const QModelIndex &index)
{
    ui->outputModeView->fitToContents(index);
}

// A condition without a text never holds, so it is asked for at once.
void ConvertSettingDialog::editConditionAfterDrop(const QModelIndex &index, int count)
{
    if (index.row() != OutputModeModel::ConditionsRow)
        return;
    auto *dialog = new EditConditionsDialog(m_outputModel, index, this);
    dialog->setCurrentCondition(m_outputModel->item(index.column()).conditions.size() - count);
    dialog->showAndForget();
}

void ConvertSettingDialog::on_pdfCheckBox_toggled(bool checked)
{
    ui->outputTabWidget->setTabEnabled(ui->outputTabWidget->indexOf(ui->pdfTab), checked);
}

void ConvertSettingDialog::on_pdfModelView_clicked(const QModelIndex &index)
{
    if (index.row() == PdfSetModel::PrintRow)
        m_pdfModel->togglePrint(index.column());
    if (!ui->pdfModelView->isEndingDoubleClick())
        ui->pdfModelView->setCurrentIndex(index);
}

void ConvertSettingDialog::on_pdfModelView_doubleClicked(const QModelIndex &index)
{
    switch (index.row()) {
    case PdfSetModel::PrintRow:
        ui->pdfModelView->setCurrentIndex(index.siblingAtRow(PdfSetModel::OutputRow));
        break;
    case PdfSetModel::OutputRow:
        EditOutputItemsDialog(m_pdfModel, index, this).exec();
        break;
    case PdfSetModel::RuleRow:
        if (index.flags().testFlag(Qt::ItemIsEnabled))
            PdfRuleDialog(m_pdfModel, index, this).exec();
        break;
    default:
        break;
    }
}

void ConvertSettingDialog::pdfItemChanged(const QModelIndex &index)
{
    ui->pdfModelView->fitToContents(index);
}

void ConvertSettingDialog::showStatement(const StatementSetting &statement)
{
    ui->pdfCheckBox->setChecked(statement.generate);
    ui->titleLineEdit->setText(statement.title);
    ui->mentTextEdit->setPlainText(statement.ment);
    ui->commentTextEdit->setPlainText(statement.comment);
    showFont(statement.font);
    for (const CompanyCheckBox &flag : companyCheckBoxes)
        (ui.get()->*flag.box)->setChecked(statement.printCompany[flag.field]);
    m_pdfModel->setFields(statement.fields);
}

// Without a family the pages are printed in the program's own font: that one is shown. A family
// that is not installed here may be on the computer that the setting came from: it is kept as long
// as nobody chooses another.
void ConvertSettingDialog::showFont(const QString &family)
{
    const QString own = QFontInfo(font()).family();
    ui->fontComboBox->setCurrentFont(QFont(family.isEmpty() ? own : family));
    m_shownFont = ui->fontComboBox->currentFont().family();
    m_loadedFont = family.isEmpty() ? own : family;
    if (m_shownFont != m_loadedFont)
        ui->fontComboBox->setEditText(m_loadedFont);
}

StatementSetting ConvertSettingDialog::statement() const
{
    StatementSetting statement;
    statement.generate = ui->pdfCheckBox->isChecked();
    statement.title = ui->titleLineEdit->text();
    statement.ment = ui->mentTextEdit->toPlainText();
    statement.comment = ui->commentTextEdit->toPlainText();
    const QString shown = ui->fontComboBox->currentFont().family();
    statement.font = shown == m_shownFont ? m_loadedFont : shown;
    for (const CompanyCheckBox &flag : companyCheckBoxes)
        statement.printCompany[flag.field] = (ui.get()->*flag.box)->isChecked();
    statement.fields = m_pdfModel->fields();
    return statement;
}

void ConvertSettingDialog::on_saveButton_clicked()
{
    if (ui->settingNameEdit->text().isEmpty()) {
        warn(tr("Name field is required."));
        ui->settingNameEdit->setFocus();
        return;
    }
    if (ui->pdfCheckBox->isChecked() && ui->titleLineEdit->text().isEmpty()) {
        warn(tr("PDF title field is required."));
        ui->outputTabWidget->setCurrentWidget(ui->pdfTab);
        ui->titleLineEdit->setFocus();
        return;
    }
    saveConvertSetting(ui->settingNameEdit->text(),
                       {m_inputModel->setting(), m_outputModel->items(), statement()},
                       m_loadedName);
    updateSettingNames();
    accept();
}

void ConvertSettingDialog::updateSettingNames()
{
    QModelIndex row = m_loadedIndex;
    if (m_loadedName.isEmpty()) {
        m_settingNames->insertRow(m_settingNames->rowCount());
        row = m_settingNames->index(m_settingNames->rowCount() - 1);
    }
    const QString name = ui->settingNameEdit->text();
    if (row.data().toString() != name)
        m_settingNames->setData(row, name);
}
