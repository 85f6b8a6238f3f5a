// Edits one convert setting: its input forms, its output items and its statement.
#pragma once

#include "common/dialog.h"

#include <QPersistentModelIndex>
#include <memory>

class InputModeModel;
class OutputModeModel;
class PdfSetModel;
class QStringListModel;
struct StatementSetting;

namespace Ui {
class ConvertSettingDialog;
}

class ConvertSettingDialog : public Dialog
{
    Q_OBJECT

public:
    /// A new setting, until one is loaded. `settingNames` is the list that the main window shows; a
    /// save changes it in place.
    explicit ConvertSettingDialog(QStringListModel *settingNames, QWidget *parent = nullptr);
    ~ConvertSettingDialog() override;

    /// Loads the setting that the index of the list names; saving changes this row.
    void loadSetting(const QModelIndex &index);

private slots:
    void on_addInputFileButton_clicked();
    void on_clearInputFileButton_clicked();
    void on_inputFileComboBox_currentIndexChanged(int index);
    void on_addItemButton_clicked();
    void on_insertItemButton_clicked();
    void on_deleteItemButton_clicked();
    void on_leftButton_clicked();
    void on_rightButton_clicked();
    void on_outputModeView_clicked(const QModelIndex &index);
    void on_outputModeView_doubleClicked(const QModelIndex &index);
    void outputItemChanged(const QModelIndex &index);
    void on_pdfCheckBox_toggled(bool checked);
    void on_pdfModelView_clicked(const QModelIndex &index);
    void on_pdfModelView_doubleClicked(const QModelIndex &index);
    void pdfItemChanged(const QModelIndex &index);
    void on_saveButton_clicked();

private:
    void setUpViews();
    /// Makes an input form of a file; what prevents that is shown to the user.
    void addInputFile(const QString &fileName);
    void showFormNames();
    /// Begins to edit the name of an output item that has just come in.
    void editNewItem(const QModelIndex &nameCell);
    /// Shows the item that has just been moved to a column.
    void showMovedItem(int column);
    void editConditionAfterDrop(const QModelIndex &index, int count);
    void showStatement(const StatementSetting &statement);
    void showFont(const QString &family);
    StatementSetting statement() const;
    void updateSettingNames();

    const std::unique_ptr<Ui::ConvertSettingDialog> ui;
    QStringListModel *const m_settingNames;
    InputModeModel *const m_inputModel;
    OutputModeModel *const m_outputModel;
    PdfSetModel *const m_pdfModel;
    QString m_loadedName; ///< empty for a new setting
    QPersistentModelIndex m_loadedIndex;
    QString m_loadedFont; ///< the statement's, which may not be installed
    QString m_shownFont;  ///< what the box of fonts made of it
};
