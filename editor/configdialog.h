// Manages the convert settings and the shop's own data.
#pragma once

#include "common/dialog.h"

#include <memory>

class QLineEdit;
class QStringListModel;

namespace Ui {
class ConfigDialog;
}

class ConfigDialog : public Dialog
{
    Q_OBJECT

public:
    /// `settingNames` is the list that the main window shows; it is changed in place.
    explicit ConfigDialog(QStringListModel *settingNames, QWidget *parent = nullptr);
    ~ConfigDialog() override;

private slots:
    void on_addButton_clicked();
    void on_setButton_clicked();
    void on_deleteButton_clicked();
    void on_okButton_clicked();
    /// Opens the setting that the index of the list names; nothing for an invalid one.
    void editSetting(const QModelIndex &index);

private:
    void connectList();
    /// The fields of the company information, by their numbers.
    QList<QLineEdit *> companyEdits() const;

    const std::unique_ptr<Ui::ConfigDialog> ui;
    QStringListModel *const m_settingNames;
};
