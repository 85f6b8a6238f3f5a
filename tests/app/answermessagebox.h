// Answers the next message box as a user would, from a zero timer that its event loop serves.
#pragma once

#include <QMessageBox>
#include <QTimer>

/// Presses one key in the box and keeps what the box was like.
class AnswerMessageBox : public QObject
{
public:
    explicit AnswerMessageBox(Qt::Key key);

    QString title = QStringLiteral("(no box)");
    QString text;
    Qt::TextFormat format = Qt::AutoText;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons;
    QMessageBox::StandardButton defaultButton = QMessageBox::NoButton;
    bool hadWaitCursor = false;

private:
    void answer(Qt::Key key);

    QTimer m_timer;
};
