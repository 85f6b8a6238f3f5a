#include "common/dialog.h"

#include "resources/icons.h"

#include <QBoxLayout>
#include <QMessageBox>
#include <QStatusBar>
#include <QStatusTipEvent>

Dialog::Dialog(QWidget *parent) : QDialog(parent), m_statusBar(new QStatusBar(this))
{
    initIcons();
    m_statusBar->setSizeGripEnabled(false);
    // The button beside the close button that would explain nothing.
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

void Dialog::showAndForget()
{
    setAttribute(Qt::WA_DeleteOnClose);
    setModal(true);
    show();
}

bool Dialog::event(QEvent *event)
{
    if (event->type() == QEvent::StatusTip) {
        m_statusBar->showMessage(static_cast<QStatusTipEvent *>(event)->tip());
        return true;
    }
    return QDialog::event(event);
}

void Dialog::addStatusBar()
{
    qobject_cast<QBoxLayout *>(layout())->addWidget(m_statusBar);
}

void Dialog::warn(const QString &text)
{
    QMessageBox box(QMessageBox::Warning, tr("Error"), text, QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText); // names and paths may look like markup
    box.exec();
}
