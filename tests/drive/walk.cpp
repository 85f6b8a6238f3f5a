#include "tests/drive/walk.h"

#include "tests/drive/userhands.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPixmap>
#include <QRadioButton>
#include <QScreen>
#include <QStatusBar>
#include <QThread>
#include <cstdio>

namespace {

const int patienceMilliseconds = 30000;
const int pollMilliseconds = 5;

void print(FILE *stream, const QString &text)
{
    std::fprintf(stream, "%s\n", qUtf8Printable(text));
    std::fflush(stream);
}

QString messageBoxText()
{
    const auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    return box != nullptr ? box->windowTitle() + QLatin1String(": ") + box->text() : QString();
}

/// These buttons take a click only on their mark and their text, which are at their left.
QPoint placeForClick(const QWidget *widget)
{
    if (qobject_cast<const QRadioButton *>(widget) == nullptr
        && qobject_cast<const QCheckBox *>(widget) == nullptr)
        return Walk::screenCenter(widget);
    const QPoint onMark(10, widget->rect().center().y());
    return widget->mapToGlobal(onMark) * widget->devicePixelRatioF();
}

bool popupOpen()
{
    return QApplication::activePopupWidget() != nullptr;
}

} // namespace

Walk::Walk(QMainWindow &window, const QString &screenshotFolder)
    : m_window(window), m_screenshotFolder(screenshotFolder)
{
}

QWidget *Walk::frontWindow() const
{
    QWidget *modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : &m_window;
}

QWidget *Walk::findWidget(const QString &objectName) const
{
    return frontWindow()->findChild<QWidget *>(objectName);
}

QPoint Walk::screenCenter(const QWidget *widget)
{
    return widget->mapToGlobal(widget->rect().center()) * widget->devicePixelRatioF();
}

bool Walk::click(const QString &objectName)
{
    const QPoint nowhere(-1, -1);
    QPoint center = nowhere;
    QPoint before;
    QString problem;
    // What has just come up may still be on its way to its place.
    do {
        before = center;
        QThread::msleep(pollMilliseconds);
        problem = onGui([&] {
            const QWidget *widget = findWidget(objectName);
            if (widget == nullptr || !widget->isVisible())
                return QStringLiteral("is not to be seen");
            if (!widget->isEnabled())
                return QStringLiteral("is disabled");
            center = placeForClick(widget);
            return QString();
        });
    } while (problem.isEmpty() && center != before);
    if (!problem.isEmpty())
        return fail(QStringLiteral("%1 %2.").arg(objectName, problem));
    return UserHands::clickAt(center) || fail(QStringLiteral("Cannot click %1.").arg(objectName));
}

bool Walk::useMenu(const QString &menuName, const QString &actionName)
{
    const auto *menu = m_window.findChild<QMenu *>(menuName);
    const QPoint title = onGui([&] {
        QMenuBar *bar = m_window.menuBar();
        const QPoint center = bar->actionGeometry(menu->menuAction()).center();
        return bar->mapToGlobal(center) * bar->devicePixelRatioF();
    });
    if (!UserHands::clickAt(title)
        || !waitFor(QStringLiteral("the menu %1 to open").arg(menuName), popupOpen)
        || !takeScreenshotOnce(menuName))
        return false;
    if (actionName.isEmpty()) {
        if (!UserHands::press({QStringLiteral("Escape")}))
            return fail(QStringLiteral("Cannot press a key."));
    } else {
        const QPoint item = onGui([&] {
            auto *action = m_window.findChild<QAction *>(actionName);
            const QPoint center = menu->actionGeometry(action).center();
            return menu->mapToGlobal(center) * menu->devicePixelRatioF();
        });
        if (!UserHands::clickAt(item))
            return fail(QStringLiteral("Cannot click %1.").arg(actionName));
    }
    return waitFor(QStringLiteral("the menu %1 to close").arg(menuName),
                   [] { return !popupOpen(); });
}

bool Walk::answerFileDialog(const QString &buttonName, const QString &answer)
{
    if (!click(buttonName) || !waitForFront("QFileDialog"))
        return false;
    const auto closed = [] {
        return qobject_cast<QFileDialog *>(QApplication::activeModalWidget()) == nullptr;
    };
    // The dialog reads the folders beside its own work, and Return in the middle of that can mean
    // one of its proposals. A user looks and enters the name again.
    const int attempts = 3;
    const int momentMilliseconds = 3000;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        if (!enterFileName(answer))
            return false;
        if (happensWithin(momentMilliseconds, closed))
            return true;
    }
    return fail(QStringLiteral("The file dialog does not take \"%1\".").arg(answer));
}

bool Walk::enterFileName(const QString &name)
{
    const QString editName = QStringLiteral("fileNameEdit");
    // A list of proposals would take the click for itself.
    if (onGui(popupOpen)
        && !(UserHands::press({QStringLiteral("Escape")})
             && waitFor(QStringLiteral("the proposals to close"), [] { return !popupOpen(); })))
        return false;
    return click(editName) && UserHands::press({QStringLiteral("ctrl+a")}) && UserHands::paste(name)
        && waitFor(QStringLiteral("the file dialog to show \"%1\"").arg(name),
                   [&] {
                       const auto *edit = find<QLineEdit>(editName);
                       return edit != nullptr && edit->text() == name;
                   })
        && UserHands::press({QStringLiteral("Return")});
}

bool Walk::waitForFront(const char *className)
{
    return waitFor(QStringLiteral("the %1").arg(QLatin1String(className)), [&] {
        const QWidget *front = frontWindow();
        return front->inherits(className) && front->isVisible() && front->isActiveWindow();
    });
}

bool Walk::waitFor(const QString &what, const std::function<bool()> &condition)
{
    QString message;
    const bool happened = happensWithin(patienceMilliseconds, [&] {
        if (condition())
            return true;
        message = messageBoxText();
        return !message.isEmpty();
    });
    if (!happened)
        return fail(QStringLiteral("Waited in vain for %1.").arg(what));
    return message.isEmpty()
        || fail(QStringLiteral("Waited for %1; a message came instead: %2").arg(what, message));
}

bool Walk::happensWithin(int milliseconds, const std::function<bool()> &condition)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) {
        if (onGui(condition))
            return true;
        QThread::msleep(pollMilliseconds);
    }
    return false;
}

bool Walk::takeScreenshot(const QString &name)
{
    // Away from every tip, and with the time that a screen needs to show the last step.
    const QPoint restingPlace = onGui([this] {
        const auto *bar = frontWindow()->findChild<QStatusBar *>();
        return screenCenter(bar != nullptr ? bar : m_window.statusBar());
    });
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
    report(QStringLiteral("screenshot   %1").arg(path));
    return true;
}

bool Walk::takeScreenshotOnce(const QString &name)
{
    if (m_takenOnce.contains(name))
        return true;
    m_takenOnce.insert(name);
    return takeScreenshot(name);
}

bool Walk::fail(const QString &text)
{
    print(stderr,
          QCoreApplication::applicationFilePath().section(QLatin1Char('/'), -1)
              + QLatin1String(": ") + text);
    return false;
}

void Walk::report(const QString &text)
{
    print(stdout, text);
}
