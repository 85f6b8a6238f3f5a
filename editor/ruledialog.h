// Edits the rules of one output item: those before and those after merging.
#pragma once

#include "common/abstractruledialog.h"

#include <QPersistentModelIndex>
#include <memory>

class OutputModeModel;

namespace Ui {
class RuleDialog;
}

class RuleDialog : public AbstractRuleDialog
{
    Q_OBJECT

public:
    /// The item is the one of the index's column.
    RuleDialog(OutputModeModel *model, const QModelIndex &index, QWidget *parent = nullptr);
    ~RuleDialog() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void on_addBeforeButton_clicked();
    void on_delBeforeButton_clicked();
    void on_addAfterButton_clicked();
    void on_delAfterButton_clicked();
    void on_moveDownButton_clicked();
    void on_moveUpButton_clicked();
    void on_okButton_clicked();

private:
    bool isOwnDrag(const QObject *source) const;

    const std::unique_ptr<Ui::RuleDialog> ui;
    OutputModeModel *const m_model;
    const QPersistentModelIndex m_index;
};
