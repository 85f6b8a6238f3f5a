#include "tests/drive/walkprogram.h"

#include "app/mainwindow.h"
#include "app/startup.h"
#include "tests/app/nonetwork.h"
#include "tests/drive/userhands.h"
#include "tests/drive/walk.h"

#include <QDir>
#include <QSettings>
#include <QThread>
#include <QTranslator>
#include <cstdio>
#include <memory>

namespace {

/// What must be known before there is an application.
int &prepared(int &argc)
{
    prepareApplication();
    // The dialog of the toolkit is the same on every desktop.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    return argc;
}

} // namespace

WalkProgram::WalkProgram(int &argc, char **argv) : m_application(prepared(argc), argv)
{
    // The walk must not move the user's own window or remember folders for the user.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_userSettings.path());
    QCoreApplication::setApplicationVersion(QStringLiteral("1.00"));
    QApplication::setQuitOnLastWindowClosed(false); // the walk ends the program
}

int WalkProgram::run(const QString &screenshotFolder, const std::function<bool(Walk &)> &steps)
{
    if (!QDir().mkpath(screenshotFolder))
        return refuse(QStringLiteral("cannot make the folder %1").arg(screenshotFolder));
    const QString missing = UserHands::whatIsMissing();
    if (!missing.isEmpty())
        return refuse(QStringLiteral("needs %1").arg(missing));

    QTranslator translator;
    installTranslation(translator, systemLanguageName());
    stayOffTheNetwork();
    MainWindow window;
    window.show();

    Walk walk(window, screenshotFolder);
    const std::unique_ptr<QThread> hands(QThread::create([&] {
        const bool succeeded = walk.waitForFront("MainWindow") && steps(walk);
        if (!succeeded)
            walk.takeScreenshot(QStringLiteral("failure"));
        QCoreApplication::exit(succeeded ? 0 : 1);
    }));
    hands->start();
    const int exitStatus = QApplication::exec();
    hands->wait();
    return exitStatus;
}

int WalkProgram::refuse(const QString &text)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(text));
    return 2;
}
