// What every walk of a user through the window is made of: clicks on what is seen, answers to
// dialogs, waiting for what is to follow, pictures of the screen. Runs in a thread of its own; see
// userhands.h.
#pragma once

#include <QPoint>
#include <QSet>
#include <QString>
#include <QWidget>
#include <functional>

class QMainWindow;

class Walk
{
public:
    Walk(QMainWindow &window, const QString &screenshotFolder);

    QMainWindow &window() const { return m_window; }
    QString screenshotFolder() const { return m_screenshotFolder; }

    /// Where the user's clicks go: the dialog that lies over all others, or the window itself. For
    /// the window's thread, as the two below.
    QWidget *frontWindow() const;
    template <typename Widget> Widget *find(const QString &objectName) const
    {
        return qobject_cast<Widget *>(findWidget(objectName));
    }
    /// The pixel of the real screen in the middle of a widget.
    static QPoint screenCenter(const QWidget *widget);

    /// Every step returns whether it came out as expected; what did not is printed.
    bool click(const QString &objectName);
    /// Chooses an item of the menu bar. Without an item the menu is closed again.
    bool useMenu(const QString &menuName, const QString &actionName = QString());
    /// Answers the file dialog that a button opens.
    bool answerFileDialog(const QString &buttonName, const QString &answer);
    /// Waits until the front window is of this class and takes the keys.
    bool waitForFront(const char *className);
    /// Waits for a condition that is looked at in the window's thread.
    bool waitFor(const QString &what, const std::function<bool()> &condition);
    bool takeScreenshot(const QString &name);
    /// The first time under each name.
    bool takeScreenshotOnce(const QString &name);
    bool fail(const QString &text);
    /// To the standard output.
    static void report(const QString &text);

private:
    QWidget *findWidget(const QString &objectName) const;
    bool enterFileName(const QString &name);
    static bool happensWithin(int milliseconds, const std::function<bool()> &condition);

    QMainWindow &m_window;
    const QString m_screenshotFolder;
    int m_screenshotCount = 0;
    QSet<QString> m_takenOnce;
};
