#include "tests/app/answermessagebox.h"

#include <QApplication>
#include <QPushButton>
#include <QtTest>

AnswerMessageBox::AnswerMessageBox(Qt::Key key)
{
    connect(&m_timer, &QTimer::timeout, this, [this, key] { answer(key); });
    m_timer.start(0);
}

void AnswerMessageBox::answer(Qt::Key key)
{
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (box == nullptr)
        return; // not yet
    m_timer.stop();
    title = box->windowTitle();
    text = box->text();
    format = box->textFormat();
    icon = box->icon();
    buttons = box->standardButtons();
    defaultButton = box->standardButton(box->defaultButton());
    hadWaitCursor = QApplication::overrideCursor() != nullptr;
    QTest::keyClick(box, key);
}
