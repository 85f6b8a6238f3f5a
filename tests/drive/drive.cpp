#include "tests/drive/drive.h"

#include "engine/runtexts.h"
#include "statement/statementsetting.h"
#include "tests/drive/formhands.h"
#include "tests/drive/openedfiles.h"
#include "tests/drive/statementpages.h"
#include "tests/drive/userhands.h"
#include "tests/drive/walk.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QPushButton>
#include <QStatusBar>

namespace {

/// One file as it is, several ones in quotes: what the file dialog takes.
QString dialogAnswer(const QStringList &files)
{
    if (files.size() == 1)
        return files.first();
    return QLatin1Char('"') + files.join(QLatin1String("\" \"")) + QLatin1Char('"');
}

QString statementFile(const Conversion &conversion)
{
    return QString(conversion.outputFile).replace(QLatin1String(".csv"), QLatin1String(".pdf"));
}

/// A setting's name as a part of a file name.
QString fileNamePart(QString text)
{
    return text.replace(QLatin1Char('/'), QLatin1Char('_'))
        .replace(QLatin1Char(' '), QLatin1Char('_'));
}

} // namespace

Drive::Drive(Walk &walk) : m_walk(walk), m_window(walk.window()) {}

bool Drive::run(const QList<Conversion> &conversions)
{
    if (!m_walk.takeScreenshot(QStringLiteral("empty_window"))
        || !m_walk.useMenu(QStringLiteral("menu")))
        return false;
    for (const Conversion &conversion : conversions) {
        if (!convert(conversion))
            return false;
    }
    return quit();
}

bool Drive::convert(const Conversion &conversion)
{
    // An output file of an earlier walk would prove nothing.
    QFile::remove(conversion.outputFile);
    QFile::remove(statementFile(conversion));
    return addInputFiles(conversion.inputFiles) && chooseSetting(conversion.settingName)
        && chooseOutputFile(conversion.outputFile) && pressConvert()
        && m_walk.takeScreenshot(fileNamePart(conversion.settingName)) && checkOutput(conversion)
        && checkStatement(conversion) && removeInputFiles();
}

bool Drive::addInputFiles(const QStringList &files)
{
    if (!m_walk.answerFileDialog(QStringLiteral("addButton"), dialogAnswer(files)))
        return false;
    return m_walk.waitFor(
        QStringLiteral("the input files to be listed: %1").arg(files.join(QLatin1Char(' '))),
        [&] { return listedFiles() == files; });
}

bool Drive::chooseSetting(const QString &settingName)
{
    auto *combo = m_window.findChild<QComboBox *>(QStringLiteral("convertSetting"));
    const int row = onGui([&] { return combo->findText(settingName, Qt::MatchExactly); });
    if (row < 0)
        return m_walk.fail(QStringLiteral("There is no setting \"%1\".").arg(settingName));
    return fillForm(m_walk, {FormStep::choose(combo->objectName(), row)});
}

bool Drive::chooseOutputFile(const QString &file)
{
    if (onGui([this] { return targetFile(); }) == file)
        return true;
    return m_walk.answerFileDialog(QStringLiteral("setButton"), file)
        && m_walk.waitFor(QStringLiteral("the output file to be %1").arg(file),
                          [&] { return targetFile() == file; });
}

bool Drive::pressConvert()
{
    const auto *folderButton =
        m_window.findChild<QPushButton *>(QStringLiteral("openFolderButton"));
    return m_walk.click(QStringLiteral("convertButton"))
        && m_walk.waitFor(QStringLiteral("the conversion to succeed"), [&] {
               // The button tells this success from the one before: it was off without files.
               return folderButton->isEnabled()
                   && m_window.statusBar()->currentMessage() == RunTexts::succeeded();
           });
}

bool Drive::checkOutput(const Conversion &conversion)
{
    if (!QFileInfo::exists(conversion.outputFile))
        return m_walk.fail(
            QStringLiteral("There is no output file %1.").arg(conversion.outputFile));
    Walk::report(QStringLiteral("output file  %1").arg(conversion.outputFile));
    return true;
}

bool Drive::checkStatement(const Conversion &conversion)
{
    if (!loadStatementSetting(conversion.settingName).generate)
        return true;
    const QString file = statementFile(conversion);
    if (!QFileInfo::exists(file))
        return m_walk.fail(QStringLiteral("There is no statement %1.").arg(file));
    Walk::report(QStringLiteral("statement    %1").arg(file));

    // The desktop would show it in its viewer.
    OpenedFiles opened;
    if (!m_walk.click(QStringLiteral("printButton"))
        || !m_walk.waitFor(QStringLiteral("the statement to be opened"),
                           [&] { return opened.contains(file); }))
        return false;

    QStringList pictures;
    const QString problem = paintPages(
        file, QDir(m_walk.screenshotFolder()).absoluteFilePath(QFileInfo(file).completeBaseName()),
        &pictures);
    if (!problem.isEmpty())
        return m_walk.fail(problem);
    for (const QString &picture : pictures)
        Walk::report(QStringLiteral("page         %1").arg(picture));
    return true;
}

bool Drive::removeInputFiles()
{
    auto *list = m_window.findChild<QListWidget *>(QStringLiteral("sourceFileList"));
    for (int left = onGui([list] { return list->count(); }); left > 0; --left) {
        const QPoint firstRow = onGui([list] {
            // Near its beginning: a long path is wider than the list.
            const QRect row = list->visualItemRect(list->item(0));
            const QPoint point(row.left() + 20, row.center().y());
            return list->viewport()->mapToGlobal(point) * list->devicePixelRatioF();
        });
        if (!UserHands::clickAt(firstRow) || !m_walk.click(QStringLiteral("removeButton"))
            || !m_walk.waitFor(QStringLiteral("a row to be removed"),
                               [&] { return list->count() == left - 1; }))
            return false;
    }
    return m_walk.waitFor(QStringLiteral("the output file to be cleared"),
                          [this] { return targetFile().isEmpty(); });
}

bool Drive::quit()
{
    return UserHands::press({QStringLiteral("ctrl+q")})
        && m_walk.waitFor(QStringLiteral("the window to close"),
                          [this] { return !m_window.isVisible(); });
}

QStringList Drive::listedFiles() const
{
    const auto *list = m_window.findChild<QListWidget *>(QStringLiteral("sourceFileList"));
    QStringList files;
    for (int row = 0; row < list->count(); ++row)
        files.append(list->item(row)->text());
    return files;
}

QString Drive::targetFile() const
{
    return m_window.findChild<QLineEdit *>(QStringLiteral("targetFile"))->text();
}
