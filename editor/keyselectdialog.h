// Asks by which columns a further input file is joined to the items that are there.
#pragma once

#include "common/dialog.h"
#include "editor/inputmodemodel.h"

#include <memory>

namespace Ui {
class KeySelectDialog;
}

class KeySelectDialog : public Dialog
{
    Q_OBJECT

public:
    /// `preselected` is taken over when both of its columns are chosen.
    KeySelectDialog(const QStringList &items, const QStringList &heads,
                    InputModeModel::KeyPair preselected, QWidget *parent = nullptr);
    ~KeySelectDialog() override;

    /// What the user chose; -1 where nothing is.
    InputModeModel::KeyPair keys() const { return m_keys; }

private slots:
    void on_originalDataListWidget_clicked(const QModelIndex &index);
    void on_newDataListWidget_clicked(const QModelIndex &index);

private:
    void connectForm();

    const std::unique_ptr<Ui::KeySelectDialog> ui;
    InputModeModel::KeyPair m_keys;
};
