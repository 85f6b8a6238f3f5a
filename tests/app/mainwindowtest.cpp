#include "tests/app/mainwindowtest.h"

#include "settings/inputsetting.h"
#include "settings/outputitem.h"
#include "tests/app/answerfiledialog.h"
#include "tests/app/nonetwork.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QSettings>
#include <QtTest>

void writeFile(const QString &name, const QByteArray &content)
{
    QVERIFY(QDir().mkpath(QFileInfo(name).path()));
    QFile file(name);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(name));
    file.write(content);
}

QByteArray readFile(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

void saveSwapSetting(const QString &name)
{
    InputForm form;
    form.name = QStringLiteral("orders");
    form.heads = QStringList{QStringLiteral("a"), QStringLiteral("b")};
    form.targetKey = -1;
    form.key = -1;
    InputSetting input;
    input.heads = form.heads;
    input.files = {form};
    saveInputSetting(name, input);

    OutputItem first;
    first.name = QStringLiteral("second");
    first.appendMapping(InputSource, 1, QStringLiteral("b"));
    OutputItem second;
    second.name = QStringLiteral("first");
    second.appendMapping(InputSource, 0, QStringLiteral("a"));
    saveOutputItems(name, {first, second});
}

int MainWindowTest::run(MainWindowTest &test, int argc, char *argv[])
{
    const QTemporaryDir userSettings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, userSettings.path());
    return QTest::qExec(&test, argc, argv);
}

void MainWindowTest::init()
{
    stayOffTheNetwork();
    m_warnings.emplace();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    QVERIFY(QDir::setCurrent(m_folder->path()));
    QSettings().clear();
    saveSwapSetting(QStringLiteral("swap"));
    for (const char *name : {"one.csv", "two.csv", "three.csv"})
        writeFile(QLatin1String(name), "a,b\r\n1,2\r\n3,4\r\n");
    openWindow();
}

void MainWindowTest::cleanup()
{
    m_window.reset();
    QVERIFY(QApplication::overrideCursor() == nullptr);
    const QStringList warnings = m_warnings->take();
    m_warnings.reset();
    QCOMPARE(warnings, QStringList());
}

void MainWindowTest::openWindow()
{
    m_window = std::make_unique<MainWindow>();
    m_window->show();
    activate();
}

// Keys go to the active window; without a window manager nobody activates the one that is left
// when a dialog closes.
void MainWindowTest::activate()
{
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void MainWindowTest::click(const char *button)
{
    QTest::mouseClick(find<QPushButton>(button), Qt::LeftButton);
}

void MainWindowTest::addControls(std::initializer_list<const char *> names)
{
    QTest::addColumn<bool>("unused");
    for (const char *name : names)
        QTest::newRow(name) << true;
}

void MainWindowTest::use(const char *control)
{
    if (find<QPushButton>(control) != nullptr)
        click(control);
    else if (auto *action = find<QAction>(control))
        action->trigger();
    else {
        activate();
        QTest::keySequence(m_window.get(), QKeySequence(QLatin1String(control)));
    }
}

void MainWindowTest::add(const QStringList &files)
{
    const AnswerFileDialog answer(files);
    click("addButton");
    QCOMPARE(answer.count(), 1);
}

bool MainWindowTest::drop(const QList<QUrl> &urls, Qt::KeyboardModifiers keys,
                          Qt::DropAction *action)
{
    QMimeData data;
    data.setUrls(urls);
    QWidget *viewport = find<QListWidget>("sourceFileList")->viewport();
    const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;
    const QPoint place(5, 5);

    QDragEnterEvent enter(place, actions, &data, Qt::LeftButton, keys);
    QCoreApplication::sendEvent(viewport, &enter);
    QDragMoveEvent move(place, actions, &data, Qt::LeftButton, keys);
    QCoreApplication::sendEvent(viewport, &move);
    QDropEvent drop(place, actions, &data, Qt::LeftButton, keys);
    QCoreApplication::sendEvent(viewport, &drop);
    *action = drop.dropAction();
    return enter.isAccepted() && move.isAccepted() && drop.isAccepted();
}

QString MainWindowTest::path(const char *name) const
{
    return m_folder->filePath(QString::fromUtf8(name));
}

QStringList MainWindowTest::listed() const
{
    const auto *list = find<QListWidget>("sourceFileList");
    QStringList files;
    for (int row = 0; row < list->count(); ++row)
        files.append(list->item(row)->text());
    return files;
}

QString MainWindowTest::target() const
{
    return find<QLineEdit>("targetFile")->text();
}

QString MainWindowTest::enabledControls() const
{
    QStringList names;
    for (const char *name : {"convertButton", "printButton", "openFolderButton"}) {
        if (find<QPushButton>(name)->isEnabled())
            names.append(QLatin1String(name));
    }
    for (const char *name : {"action_convert", "action_print"}) {
        if (find<QAction>(name)->isEnabled())
            names.append(QLatin1String(name));
    }
    return names.join(QLatin1Char(' '));
}
