// One walk of a user through the window: every conversion of a list, from the choice of the files
// to the output file. Runs in a thread of its own; see userhands.h.
#pragma once

#include "tests/drive/conversionlist.h"

#include <functional>

class QMainWindow;

class Drive
{
public:
    Drive(QMainWindow &window, const QString &screenshotFolder);

    /// Walks the whole way and prints the path of every output file, statement page and
    /// screenshot. The first thing
    /// that is not as expected ends the walk: it is printed, the screen is kept in a last
    /// screenshot, and the answer is false.
    bool run(const QList<Conversion> &conversions);

private:
    bool walk(const QList<Conversion> &conversions);
    bool convert(const Conversion &conversion);
    bool showFileMenu();
    bool addInputFiles(const QStringList &files);
    bool chooseSetting(const QString &settingName);
    bool chooseOutputFile(const QString &file);
    bool pressConvert();
    bool checkOutput(const Conversion &conversion);
    /// Opens the statement, if the setting makes one, and paints its pages.
    bool checkStatement(const Conversion &conversion);
    bool removeInputFiles();
    bool quit();

    /// Answers the file dialog that a button opens.
    bool answerFileDialog(const QString &buttonName, const QString &answer);
    bool click(const QString &objectName);
    bool takeScreenshot(const QString &name);

    /// Waits for a condition that is looked at in the window's thread.
    bool waitFor(const QString &what, const std::function<bool()> &condition);
    bool fail(const QString &text);

    QStringList listedFiles() const;
    QString targetFile() const;

    QMainWindow &m_window;
    const QString m_screenshotFolder;
    int m_screenshotCount = 0;
};
