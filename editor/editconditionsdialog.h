// Edits the conditions of one output item and how they are combined.
#pragma once

#include "common/dialog.h"

#include <QPersistentModelIndex>
#include <memory>

class OutputModeModel;
namespace Ui {
class EditConditionsDialog;
}

class EditConditionsDialog : public Dialog
{
    Q_OBJECT

public:
    /// The item is the one of the index's column.
    EditConditionsDialog(OutputModeModel *model, const QModelIndex &index,
                         QWidget *parent = nullptr);
    ~EditConditionsDialog() override;

    /// Opens with this condition instead of the first one.
    void setCurrentCondition(int position);

protected:
    void showEvent(QShowEvent *event) override;

private slots:
    void on_minComboBox_currentIndexChanged(int index);
    void on_maxComboBox_currentIndexChanged(int index);
    void on_itemListWidget_currentRowChanged(int currentRow);
    void on_findLineEdit_textChanged(const QString &text);
    void on_findComboBox_currentIndexChanged(int index);
    void on_typeComboBox_currentIndexChanged(int index);
    void on_saveButton_clicked();
    void numberConditionChanged();
    void on_delButton_clicked();
    void on_okButton_clicked();

private:
    void setUpNumberPage();
    void connectForm();
    void loadItem();
    void loadRange(const QString &condition);
    void loadTextTest(const QString &condition);
    /// The condition on the page that is shown.
    QString conditionText() const;

    const std::unique_ptr<Ui::EditConditionsDialog> ui;
    OutputModeModel *const m_model;
    const QPersistentModelIndex m_index;
};
