// quorinRebuild WORKFOLDER MODELFOLDER SCREENSHOTFOLDER
// Builds every convert setting of the model folder anew in the working folder, which holds nothing
// but input files, with real mouse and keyboard events in the program's own window, and converts
// with what was built. Beside each output file it leaves a text of what the statements say.
// The exit status is 0 when everything came out as expected.
#include "engine/conversionrun.h"
#include "engine/runreporter.h"
#include "tests/drive/conversionlist.h"
#include "tests/drive/drive.h"
#include "tests/drive/rebuild.h"
#include "tests/drive/settingplan.h"
#include "tests/drive/walkprogram.h"
#include "tests/samples/statementpagestext.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

struct SilentReporter : RunReporter {
    void status(const QString &) override {}
    void error(const QString &) override {}
    void progress(int, int) override {}
    void statementFinished(const QString &) override {}
    void finished() override {}
};

QString describedPages; // of the last run

bool describePages(const StatementDocument &document, const QString &, StatementProgress &)
{
    describedPages = pagesAsText(document);
    return true;
}

bool writePages(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(describedPages.toUtf8()) > 0;
}

/// Converts once more, to another place, to see what the pages say.
bool describeStatements(const QList<Conversion> &conversions)
{
    const QTemporaryDir folder;
    SilentReporter reporter;
    for (const Conversion &conversion : conversions) {
        describedPages.clear();
        if (!runConversion({conversion.inputFiles, folder.filePath(QStringLiteral("output.csv")),
                            conversion.settingName},
                           reporter, describePages))
            return false;
        const QString fileName =
            QString(conversion.outputFile)
                .replace(QLatin1String("_output.csv"), QLatin1String("_statement.txt"));
        if (!describedPages.isEmpty() && !writePages(fileName))
            return false;
    }
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    WalkProgram program(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4)
        return WalkProgram::refuse(
            QStringLiteral("usage: quorinRebuild WORKFOLDER MODELFOLDER SCREENSHOTFOLDER"));
    const QDir start = QDir::current();
    const QDir modelFolder(start.absoluteFilePath(arguments.at(2)));
    if (!QDir::setCurrent(modelFolder.path()))
        return WalkProgram::refuse(QStringLiteral("there is no folder %1").arg(arguments.at(2)));
    const RebuildPlan plan = loadPlan();
    if (!QDir::setCurrent(start.absoluteFilePath(arguments.at(1))))
        return WalkProgram::refuse(QStringLiteral("there is no folder %1").arg(arguments.at(1)));
    QString problem;
    const QList<Conversion> conversions =
        readConversions(modelFolder.filePath(QStringLiteral("conversions.txt")), &problem);
    if (!problem.isEmpty())
        return WalkProgram::refuse(problem);

    const int exitStatus = program.run(start.absoluteFilePath(arguments.at(3)), [&](Walk &walk) {
        return Rebuild(walk).run(plan) && Drive(walk).run(conversions);
    });
    if (exitStatus != 0)
        return exitStatus;
    return describeStatements(conversions) ? 0 : 1;
}
