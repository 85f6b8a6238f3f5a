// The frame of a program that walks through the real window with real mouse and keyboard events.
#pragma once

#include <QApplication>
#include <QTemporaryDir>
#include <functional>

class Walk;

class WalkProgram
{
public:
    WalkProgram(int &argc, char **argv);

    /// Shows the window of the working folder, walks in a thread beside it, and returns the exit
    /// status: 0 when the walk says that everything came out as expected. Otherwise the screen is
    /// kept in a last screenshot.
    int run(const QString &screenshotFolder, const std::function<bool(Walk &)> &steps);
    /// Prints why there can be no walk, and returns the exit status for that.
    static int refuse(const QString &text);

private:
    QTemporaryDir m_userSettings;
    QApplication m_application;
};
