// What the program says of itself: its name, version and maker, and the terms under which it and
// the libraries that it uses may be used.
#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class InfoDialog;
}

class InfoDialog : public QDialog
{
    Q_OBJECT

public:
    explicit InfoDialog(QWidget *parent = nullptr);
    ~InfoDialog() override;

private:
    const std::unique_ptr<Ui::InfoDialog> ui;
};
