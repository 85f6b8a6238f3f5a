// Quorin Converter: turns the order exports of web shops into the CSV file that a carrier takes.
#include "app/mainwindow.h"
#include "app/platform.h"
#include "app/startup.h"
#include "update/programversion.h"

#include <QApplication>
#include <QTranslator>

int main(int argc, char *argv[])
{
    prepareApplication();
    const QString languageName = systemLanguageName();

    QApplication application(argc, argv);
    QCoreApplication::setApplicationVersion(programVersion());

    QTranslator translator;
    installTranslation(translator, languageName);

    const FileUrlOpener fileUrlOpener;
    MainWindow window;
    window.show();
    return QApplication::exec();
}
