// Edits the list of mapped values of one output item or statement field.
#pragma once

#include "common/dialog.h"

#include <QPersistentModelIndex>
#include <memory>

class AbstractOutputModel;
namespace Ui {
class EditOutputItemsDialog;
}

class EditOutputItemsDialog : public Dialog
{
    Q_OBJECT

public:
    /// `index` is a cell with mapped values.
    EditOutputItemsDialog(AbstractOutputModel *model, const QModelIndex &index,
                          QWidget *parent = nullptr);
    ~EditOutputItemsDialog() override;

private slots:
    void on_delButton_clicked();
    void on_sepCheckBox_clicked(bool checked);
    void on_okButton_clicked();

private:
    void loadItems();
    void loadSeparator();
    void connectForm();
    /// Moves the current entry by so many rows; nothing where there is no such row.
    void moveCurrentItem(int rows);

    const std::unique_ptr<Ui::EditOutputItemsDialog> ui;
    AbstractOutputModel *const m_model;
    const QPersistentModelIndex m_index;
};
