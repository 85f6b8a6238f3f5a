#include "statement/pdfruledialog.h"

#include "statement/pdfsetmodel.h"
#include "ui_pdfruledialog.h"

PdfRuleDialog::PdfRuleDialog(PdfSetModel *model, const QModelIndex &index, QWidget *parent)
    : AbstractRuleDialog(parent), ui(std::make_unique<Ui::PdfRuleDialog>()), m_model(model),
      m_rules(model->index(PdfSetModel::RuleRow, index.column()))
{
    ui->setupUi(this);
    addStatusBar();
    setPages(ui->rulePages);
    connect(ui->cancelButton, &QPushButton::clicked, this, &PdfRuleDialog::reject);
    setUpList(ui->listWidget, m_rules.data(Qt::EditRole).toStringList());
}

PdfRuleDialog::~PdfRuleDialog() = default;

void PdfRuleDialog::on_addButton_clicked()
{
    addRule(ui->listWidget);
}

void PdfRuleDialog::on_delButton_clicked()
{
    deleteRule(ui->listWidget);
}

void PdfRuleDialog::on_okButton_clicked()
{
    m_model->setData(m_rules, rules(ui->listWidget));
    accept();
}
