// Edits the rules of one statement field.
#pragma once

#include "common/abstractruledialog.h"

#include <QPersistentModelIndex>
#include <memory>

class PdfSetModel;

namespace Ui {
class PdfRuleDialog;
}

class PdfRuleDialog : public AbstractRuleDialog
{
    Q_OBJECT

public:
    /// The field is the one of the index's column.
    PdfRuleDialog(PdfSetModel *model, const QModelIndex &index, QWidget *parent = nullptr);
    ~PdfRuleDialog() override;

private slots:
    void on_addButton_clicked();
    void on_delButton_clicked();
    void on_okButton_clicked();

private:
    const std::unique_ptr<Ui::PdfRuleDialog> ui;
    PdfSetModel *const m_model;
    const QPersistentModelIndex m_rules;
};
