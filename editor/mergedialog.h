// Edits how the values of one output item are merged when duplicates are removed.
#pragma once

#include "common/dialog.h"

#include <QPersistentModelIndex>
#include <memory>
#include <optional>

class OutputModeModel;
namespace Ui {
class MergeDialog;
}

class MergeDialog : public Dialog
{
    Q_OBJECT

public:
    /// The item is the one of the index's column.
    MergeDialog(OutputModeModel *model, const QModelIndex &index, QWidget *parent = nullptr);
    ~MergeDialog() override;

private slots:
    void on_mergeTypeComboBox_currentIndexChanged(int index);
    void on_separatorComboBox_currentIndexChanged(int index);
    void on_okButton_clicked();

private:
    void loadItem();
    void loadSeparator(const QString &separator);
    /// The separator on the page that is shown; none while no line break is chosen there.
    std::optional<QString> separator() const;

    const std::unique_ptr<Ui::MergeDialog> ui;
    OutputModeModel *const m_model;
    const QPersistentModelIndex m_index;
};
