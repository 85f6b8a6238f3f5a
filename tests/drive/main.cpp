// quorinDrive WORKFOLDER CONVERSIONS SCREENSHOTFOLDER
// Starts the program's own window in a working folder and walks through the conversions of a list
// with real mouse and keyboard events. The exit status is 0 when everything came out as expected.
#include "tests/drive/conversionlist.h"
#include "tests/drive/drive.h"
#include "tests/drive/walkprogram.h"

#include <QDir>

int main(int argc, char *argv[])
{
    WalkProgram program(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4)
        return WalkProgram::refuse(
            QStringLiteral("usage: quorinDrive WORKFOLDER CONVERSIONS SCREENSHOTFOLDER"));
    const QString conversionFile = QDir::current().absoluteFilePath(arguments.at(2));
    const QString screenshotFolder = QDir::current().absoluteFilePath(arguments.at(3));
    if (!QDir::setCurrent(arguments.at(1)))
        return WalkProgram::refuse(QStringLiteral("there is no folder %1").arg(arguments.at(1)));
    QString problem;
    const QList<Conversion> conversions = readConversions(conversionFile, &problem);
    if (!problem.isEmpty())
        return WalkProgram::refuse(problem);
    return program.run(screenshotFolder, [&](Walk &walk) { return Drive(walk).run(conversions); });
}
