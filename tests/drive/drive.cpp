#include "tests/drive/drive.h"

#include "engine/runtexts.h"
#include "statement/statementsetting.h"
#include "tests/drive/openedfiles.h"
#include "tests/drive/statementpages.h"
#include "tests/drive/userhands.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPixmap>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QThread>
#include <cstdio>

namespace {

const int patienceMilliseconds = 60000;
const int pollMilliseconds = 30;

void print(FILE *stream, const QString &text)
{
    std::fprintf(stream, "%s\n", qUtf8Printable(text));
    std::fflush(stream);
}

/// Where the user's clicks go: the dialog that lies over the window, or the window itself.
QWidget *frontWindow(QMainWindow &window)
{
    QWidget *modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : &window;
}

QPoint screenCenter(const QWidget *widget)
{
    return widget->mapToGlobal(widget->rect().center()) * widget->devicePixelRatioF();
}

QString messageBoxText()
{
    const auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    return box != nullptr ? box->windowTitle() + QLatin1String(": ") + box->text() : QString();
}

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

Drive::Drive(QMainWindow &window, const QString &screenshotFolder)
    : m_window(window), m_screenshotFolder(screenshotFolder)
{
}

bool Drive::run(const QList<Conversion> &conversions)
{
    if (walk(conversions))
        return true;
    takeScreenshot(QStringLiteral("failure"));
    return false;
}

bool Drive::walk(const QList<Conversion> &conversions)
{
    if (!waitFor(QStringLiteral("the window to come up"),
                 [this] { return m_window.isVisible() && m_window.isActiveWindow(); }))
        return false;
    if (!takeScreenshot(QStringLiteral("empty_window")) || !showFileMenu())
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
        && takeScreenshot(fileNamePart(conversion.settingName)) && checkOutput(conversion)
        && checkStatement(conversion) && removeInputFiles();
}

bool Drive::showFileMenu()
{
    const QPoint title = onGui([this] {
        QMenuBar *bar = m_window.menuBar();
        const auto *menu = m_window.findChild<QMenu *>(QStringLiteral("menu"));
        const QPoint center = bar->actionGeometry(menu->menuAction()).center();
        return bar->mapToGlobal(center) * bar->devicePixelRatioF();
    });
    const auto open = [] { return QApplication::activePopupWidget() != nullptr; };
    return UserHands::clickAt(title) && waitFor(QStringLiteral("the file menu to open"), open)
        && takeScreenshot(QStringLiteral("file_menu"))
        && UserHands::press({QStringLiteral("Escape")})
        && waitFor(QStringLiteral("the file menu to close"), [open] { return !open(); });
}

bool Drive::addInputFiles(const QStringList &files)
{
    if (!answerFileDialog(QStringLiteral("addButton"), dialogAnswer(files)))
        return false;
    return waitFor(
        QStringLiteral("the input files to be listed: %1").arg(files.join(QLatin1Char(' '))),
        [&] { return listedFiles() == files; });
}

bool Drive::chooseSetting(const QString &settingName)
{
    auto *combo = m_window.findChild<QComboBox *>(QStringLiteral("convertSetting"));
    const int row = onGui([&] { return combo->findText(settingName, Qt::MatchExactly); });
    if (row < 0)
        return fail(QStringLiteral("There is no setting \"%1\".").arg(settingName));

    QStringList keys{QStringLiteral("Home")};
    for (int step = 0; step < row; ++step)
        keys.append(QStringLiteral("Down"));
    keys.append(QStringLiteral("Return"));

    const auto popupOpen = [] { return QApplication::activePopupWidget() != nullptr; };
    return click(QStringLiteral("convertSetting"))
        && waitFor(QStringLiteral("the list of settings to open"), popupOpen)
        && UserHands::press(keys)
        && waitFor(QStringLiteral("the setting \"%1\" to be chosen").arg(settingName),
                   [&] { return !popupOpen() && combo->currentText() == settingName; });
}

bool Drive::chooseOutputFile(const QString &file)
{
    if (onGui([this] { return targetFile(); }) == file)
        return true;
    return answerFileDialog(QStringLiteral("setButton"), file)
        && waitFor(QStringLiteral("the output file to be %1").arg(file),
                   [&] { return targetFile() == file; });
}

bool Drive::pressConvert()
{
    const auto *folderButton =
        m_window.findChild<QPushButton *>(QStringLiteral("openFolderButton"));
    return click(QStringLiteral("convertButton"))
        && waitFor(QStringLiteral("the conversion to succeed"), [&] {
               // The button tells this success from the one before: it was off without files.
               return folderButton->isEnabled()
                   && m_window.statusBar()->currentMessage() == RunTexts::succeeded();
           });
}

bool Drive::checkOutput(const Conversion &conversion)
{
    if (!QFileInfo::exists(conversion.outputFile))
        return fail(QStringLiteral("There is no output file %1.").arg(conversion.outputFile));
    print(stdout, QStringLiteral("output file  %1").arg(conversion.outputFile));
    return true;
}

bool Drive::checkStatement(const Conversion &conversion)
{
    if (!loadStatementSetting(conversion.settingName).generate)
        return true;
    const QString file = statementFile(conversion);
    if (!QFileInfo::exists(file))
        return fail(QStringLiteral("There is no statement %1.").arg(file));
    print(stdout, QStringLiteral("statement    %1").arg(file));

    // The desktop would show it in its viewer.
    OpenedFiles opened;
    if (!click(QStringLiteral("printButton"))
        || !waitFor(QStringLiteral("the statement to be opened"),
                    [&] { return opened.contains(file); }))
        return false;

    QStringList pictures;
    const QString problem = paintPages(
        file, QDir(m_screenshotFolder).absoluteFilePath(QFileInfo(file).completeBaseName()),
        &pictures);
    if (!problem.isEmpty())
        return fail(problem);
    for (const QString &picture : pictures)
        print(stdout, QStringLiteral("page         %1").arg(picture));
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
        if (!UserHands::clickAt(firstRow) || !click(QStringLiteral("removeButton"))
            || !waitFor(QStringLiteral("a row to be removed"),
                        [&] { return list->count() == left - 1; }))
            return false;
    }
    return waitFor(QStringLiteral("the output file to be cleared"),
                   [this] { return targetFile().isEmpty(); });
}

bool Drive::quit()
{
    return UserHands::press({QStringLiteral("ctrl+q")})
        && waitFor(QStringLiteral("the window to close"), [this] { return !m_window.isVisible(); });
}

bool Drive::answerFileDialog(const QString &buttonName, const QString &answer)
{
    const auto noDialog = [] { return QApplication::activeModalWidget() == nullptr; };
    const auto dialogReady = [] {
        const auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        return dialog != nullptr && dialog->isActiveWindow();
    };
    return click(buttonName) && waitFor(QStringLiteral("the file dialog"), dialogReady)
        && click(QStringLiteral("fileNameEdit")) && UserHands::press({QStringLiteral("ctrl+a")})
        && UserHands::type(answer)
        && waitFor(QStringLiteral("the file dialog to show \"%1\"").arg(answer),
                   [&] {
                       const auto *edit = frontWindow(m_window)->findChild<QLineEdit *>(
                           QStringLiteral("fileNameEdit"));
                       return edit != nullptr && edit->text() == answer;
                   })
        && UserHands::press({QStringLiteral("Return")})
        && waitFor(QStringLiteral("the file dialog to close"), noDialog);
}

bool Drive::click(const QString &objectName)
{
    QPoint center;
    const QString problem = onGui([&] {
        const auto *widget = frontWindow(m_window)->findChild<QWidget *>(objectName);
        if (widget == nullptr || !widget->isVisible())
            return QStringLiteral("is not to be seen");
        if (!widget->isEnabled())
            return QStringLiteral("is disabled");
        center = screenCenter(widget);
        return QString();
    });
    if (!problem.isEmpty())
        return fail(QStringLiteral("%1 %2.").arg(objectName, problem));
    return UserHands::clickAt(center) || fail(QStringLiteral("Cannot click %1.").arg(objectName));
}

bool Drive::takeScreenshot(const QString &name)
{
    // Away from every tip, and with the time that a screen needs to show the last step.
    const QPoint restingPlace = onGui([this] { return screenCenter(m_window.statusBar()); });
    if (!UserHands::moveTo(restingPlace))
        return fail(QStringLiteral("Cannot move the mouse."));
    QThread::msleep(400);

    const QString path =
        QDir(m_screenshotFolder)
            .absoluteFilePath(QStringLiteral("%1_%2.png")
                                  .arg(m_screenshotCount++, 2, 10, QLatin1Char('0'))
                                  .arg(name));
    const bool saved =
        onGui([&] { return QGuiApplication::primaryScreen()->grabWindow(0).save(path); });
    if (!saved)
        return fail(QStringLiteral("Cannot save the screenshot %1.").arg(path));
    print(stdout, QStringLiteral("screenshot   %1").arg(path));
    return true;
}

bool Drive::waitFor(const QString &what, const std::function<bool()> &condition)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < patienceMilliseconds) {
        if (onGui(condition))
            return true;
        const QString message = onGui(messageBoxText);
        if (!message.isEmpty())
            return fail(
                QStringLiteral("Waited for %1; a message came instead: %2").arg(what, message));
        QThread::msleep(pollMilliseconds);
    }
    return fail(QStringLiteral("Waited in vain for %1.").arg(what));
}

bool Drive::fail(const QString &text)
{
    print(stderr, QStringLiteral("quorinDrive: %1").arg(text));
    return false;
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
