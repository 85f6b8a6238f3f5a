#include "update/infodialog.h"

#include "resources/icons.h"
#include "ui_infodialog.h"
#include "update/makersite.h"
#include "update/programversion.h"

InfoDialog::InfoDialog(QWidget *parent) : QDialog(parent), ui(std::make_unique<Ui::InfoDialog>())
{
    initIcons();
    ui->setupUi(this);
    // The button beside the close button that would explain nothing.
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    ui->versionLabel->setText(tr("Version : ") + programVersion());
    ui->urlLabel->setText(makerSite().toString());
    ui->okButton->setFocus();
    connect(ui->okButton, &QPushButton::clicked, this, &InfoDialog::close);
}

InfoDialog::~InfoDialog() = default;
