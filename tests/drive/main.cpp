// quorinDrive WORKFOLDER CONVERSIONS SCREENSHOTFOLDER
// Starts the program's own window in a working folder and walks through the conversions of a list
// with real mouse and keyboard events. The exit status is 0 when everything came out as expected.
#include "app/mainwindow.h"
#include "app/startup.h"
#include "tests/drive/drive.h"
#include "tests/drive/userhands.h"

#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <QThread>
#include <QTranslator>
#include <cstdio>
#include <memory>

namespace {

int refuse(const QString &text)
{
    std::fprintf(stderr, "quorinDrive: %s\n", qUtf8Printable(text));
    return 2;
}

} // namespace

int main(int argc, char *argv[])
{
    prepareApplication();
    // The dialog of the toolkit is the same on every desktop.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    // The walk must not move the user's own window or remember folders for the user.
    const QTemporaryDir userSettings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, userSettings.path());

    QApplication application(argc, argv);
    QCoreApplication::setApplicationVersion(QStringLiteral("1.00"));
    QApplication::setQuitOnLastWindowClosed(false); // the walk ends the program

    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4)
        return refuse(QStringLiteral("usage: quorinDrive WORKFOLDER CONVERSIONS SCREENSHOTFOLDER"));
    const QString conversionFile = QDir::current().absoluteFilePath(arguments.at(2));
    const QString screenshotFolder = QDir::current().absoluteFilePath(arguments.at(3));
    if (!QDir::setCurrent(arguments.at(1)))
        return refuse(QStringLiteral("there is no folder %1").arg(arguments.at(1)));
    if (!QDir().mkpath(screenshotFolder))
        return refuse(QStringLiteral("cannot make the folder %1").arg(screenshotFolder));
    QString problem;
    const QList<Conversion> conversions = readConversions(conversionFile, &problem);
    if (!problem.isEmpty())
        return refuse(problem);
    const QString missing = UserHands::whatIsMissing();
    if (!missing.isEmpty())
        return refuse(QStringLiteral("needs %1").arg(missing));

    QTranslator translator;
    installTranslation(translator, systemLanguageName());
    MainWindow window;
    window.show();

    Drive drive(window, screenshotFolder);
    const std::unique_ptr<QThread> walk(
        QThread::create([&] { QCoreApplication::exit(drive.run(conversions) ? 0 : 1); }));
    walk->start();
    const int exitStatus = QApplication::exec();
    walk->wait();
    return exitStatus;
}
