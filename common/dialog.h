// The common base of the editor dialogs.
#pragma once

#include <QDialog>

class QStatusBar;

/// A dialog with a status bar of its own, in which the status tips of its widgets appear.
class Dialog : public QDialog
{
    Q_OBJECT

public:
    explicit Dialog(QWidget *parent = nullptr);

    QStatusBar *statusBar() const { return m_statusBar; }

    /// Shows the dialog, which deletes itself when it is closed, over its parent, which waits.
    /// Returns at once.
    void showAndForget();

protected:
    bool event(QEvent *event) override;

    /// Puts the status bar at the foot of the form. Called once, after the form has been set up;
    /// the form has a box layout from top to bottom.
    void addStatusBar();
    /// Shows a warning with one OK button; the text is shown as it stands.
    void warn(const QString &text);

private:
    QStatusBar *const m_statusBar;
};
