// One walk of a user through the window: every conversion of a list, from the choice of the files
// to the output file. Runs in a thread of its own; see userhands.h.
#pragma once

#include "tests/drive/conversionlist.h"

class QMainWindow;
class Walk;

class Drive
{
public:
    explicit Drive(Walk &walk);

    /// Walks the whole way, closes the window and prints the path of every output file, statement
    /// page and screenshot. The first thing that is not as expected ends the walk: it is printed,
    /// and the answer is false.
    bool run(const QList<Conversion> &conversions);

private:
    bool convert(const Conversion &conversion);
    bool addInputFiles(const QStringList &files);
    bool chooseSetting(const QString &settingName);
    bool chooseOutputFile(const QString &file);
    bool pressConvert();
    bool checkOutput(const Conversion &conversion);
    /// Opens the statement, if the setting makes one, and paints its pages.
    bool checkStatement(const Conversion &conversion);
    bool removeInputFiles();
    bool quit();

    QStringList listedFiles() const;
    QString targetFile() const;

    Walk &m_walk;
    QMainWindow &m_window;
};
