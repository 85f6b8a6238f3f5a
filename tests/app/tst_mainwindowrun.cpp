// What the main window starts: conversions, other programs and the update.
#include "app/startup.h"
#include "statement/statementsetting.h"
#include "tests/app/answermessagebox.h"
#include "tests/app/mainwindowtest.h"
#include "tests/app/nonetwork.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QTimer>
#include <QUrl>
#include <QtTest>

namespace {

const QString updateText = QStringLiteral("There is newer version available.\n"
                                          "Do you want to update now?\n"
                                          "(Restart Quorin Converter is required.\n\n"
                                          "Current version : 1.00\n"
                                          "Latest version : <b>%1</b>");

/// What the status bar really drew, text by text, and whether the wait cursor showed each time.
class PaintedStatuses : public QObject
{
public:
    explicit PaintedStatuses(QStatusBar *bar) : m_bar(bar) { bar->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        const QString text = m_bar->currentMessage();
        if (event->type() == QEvent::Paint && (texts.isEmpty() || texts.last() != text)) {
            texts.append(text);
            const QCursor *cursor = QApplication::overrideCursor();
            waited.append(cursor != nullptr && cursor->shape() == Qt::WaitCursor);
        }
        return false;
    }

    QStringList texts;
    QList<bool> waited;

private:
    QStatusBar *const m_bar;
};

/// Stands in for the desktop: takes the addresses that the program opens.
class DesktopHandler : public QObject
{
    Q_OBJECT

public:
    DesktopHandler()
    {
        QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open");
        QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "open");
    }
    ~DesktopHandler() override
    {
        QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
        QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
    }

    QStringList opened;

public slots:
    void open(const QUrl &url) { opened.append(url.toString(QUrl::FullyEncoded)); }
};

} // namespace

class TestMainWindowRun : public MainWindowTest
{
    Q_OBJECT

private slots:
    void conversion_data();
    void conversion();
    void runEntersNoEventLoop();
    void lastStatusComesBackAfterATip();
    void emptyRunEndsWithAFullBar();
    void failedRunIsReported_data();
    void failedRunIsReported();
    void windowIsUsableAfterAFailure();
    void failureHidesTheBarOfTheRunBefore();
    void folderIsShownInTheExplorer();
    void folderIsShownByTheDesktopWithoutExplorer();
    void statementIsOpened();
    void statementIsMadeBesideTheOutput();
    void statementThatCannotBeWrittenCanBeAskedFor();
    void statementControlsStayAfterARunWithoutOne();
    void helpIsOpened();
    void makersSiteIsOpened();
    void updateIsOffered();
    void updateStartsTheUpdaterAndEndsTheProcess();
};

void TestMainWindowRun::conversion_data()
{
    addControls({"convertButton", "action_convert", "Ctrl+Return", "Ctrl+Enter"});
}

void TestMainWindowRun::conversion()
{
    add({path("one.csv")});
    PaintedStatuses painted(m_window->statusBar());
    use(QTest::currentDataTag());

    QCOMPARE(readFile(path("one_output.csv")).replace("\r\n", "\n"),
             QByteArray("second,first\n2,1\n4,3\n"));
    QCOMPARE(m_window->statusBar()->currentMessage(), QStringLiteral("Converting succeeded."));
    QCOMPARE(enabledControls(), QStringLiteral("convertButton openFolderButton action_convert"));
    QVERIFY(QApplication::overrideCursor() == nullptr);

    const auto *bar = m_window->statusBar()->findChild<QProgressBar *>();
    QVERIFY(bar->isVisible());
    QCOMPARE(bar->minimum(), 0);
    QCOMPARE(bar->maximum(), 4); // two rows converted, two rows written
    QCOMPARE(bar->value(), 4);

    // Each status was drawn while the run went on, under the wait cursor. What the mouse left in
    // the status bar before the run does not count.
    const int begin = painted.texts.indexOf(QStringLiteral("Checking all fields..."));
    QCOMPARE(painted.texts.mid(begin),
             (QStringList{
                 QStringLiteral("Checking all fields..."), QStringLiteral("Loading settings..."),
                 QStringLiteral("Processing input file(s)..."),
                 QStringLiteral("Generating output file..."), QStringLiteral("Start converting..."),
                 QStringLiteral("Deleting duplication and merging items..."),
                 QStringLiteral("Converting succeeded.")}));
    QVERIFY(!painted.waited.mid(begin).contains(false));
}

void TestMainWindowRun::runEntersNoEventLoop()
{
    add({path("one.csv")});
    bool timerFired = false;
    QTimer::singleShot(0, this, [&] { timerFired = true; });
    find<QAction>("action_convert")->trigger();
    QVERIFY(!timerFired);
    QCoreApplication::processEvents();
    QVERIFY(timerFired);
}

void TestMainWindowRun::lastStatusComesBackAfterATip()
{
    add({path("one.csv")});
    click("convertButton");
    auto *button = find<QPushButton>("setButton");
    QStatusTipEvent enter(button->statusTip());
    QCoreApplication::sendEvent(button, &enter);
    QCOMPARE(m_window->statusBar()->currentMessage(), button->statusTip());
    QStatusTipEvent leave{QString()};
    QCoreApplication::sendEvent(button, &leave);
    QCOMPARE(m_window->statusBar()->currentMessage(), QStringLiteral("Converting succeeded."));
}

void TestMainWindowRun::emptyRunEndsWithAFullBar()
{
    writeFile(path("one.csv"), "a,b\r\n");
    add({path("one.csv")});
    click("convertButton");
    QCOMPARE(readFile(path("one_output.csv")).replace("\r\n", "\n"), QByteArray("second,first\n"));
    const auto *bar = m_window->statusBar()->findChild<QProgressBar *>();
    QVERIFY(bar->maximum() > 0);
    QCOMPARE(bar->value(), bar->maximum());
}

void TestMainWindowRun::failedRunIsReported_data()
{
    QTest::addColumn<QString>("inputContent");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("message");
    QTest::newRow("headings that differ")
        << "a,c\n1,2\n"
        << "out.csv"
        << "Input file dose not match with setting.\nPlease check the input file(s).";
    QTest::newRow("an output file that cannot be written")
        << "a,b\n1,2\n"
        << "no/such/folder/out.csv"
        << "Cannot open output file:\nNo such file or directory.";
}

void TestMainWindowRun::failedRunIsReported()
{
    QFETCH(QString, inputContent);
    QFETCH(QString, output);
    QFETCH(QString, message);
    writeFile(path("one.csv"), inputContent.toUtf8());
    add({path("one.csv")});
    find<QLineEdit>("targetFile")->setText(m_folder->filePath(output));

    const AnswerMessageBox box(Qt::Key_Return);
    click("convertButton");
    QCOMPARE(box.title, QStringLiteral("Error"));
    QCOMPARE(box.text, message);
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(box.format, Qt::PlainText);
    QVERIFY(!box.hadWaitCursor);
    QVERIFY(QApplication::overrideCursor() == nullptr);
    QCOMPARE(m_window->statusBar()->currentMessage(), QStringLiteral("An error has occurred"));
    QCOMPARE(listed(), QStringList{path("one.csv")});
    QCOMPARE(target(), m_folder->filePath(output));
    QCOMPARE(enabledControls(), QStringLiteral("convertButton action_convert"));
}

void TestMainWindowRun::windowIsUsableAfterAFailure()
{
    add({path("one.csv")});
    QVERIFY(QFile::remove(path("one.csv")));
    const AnswerMessageBox box(Qt::Key_Return);
    click("convertButton");
    QCOMPARE(box.title, QStringLiteral("Error"));
    QVERIFY(!QFileInfo::exists(path("one_output.csv")));

    writeFile(path("one.csv"), "a,b\n5,6\n");
    click("convertButton");
    QCOMPARE(readFile(path("one_output.csv")).replace("\r\n", "\n"),
             QByteArray("second,first\n6,5\n"));
    QCOMPARE(m_window->statusBar()->currentMessage(), QStringLiteral("Converting succeeded."));
}

void TestMainWindowRun::failureHidesTheBarOfTheRunBefore()
{
    add({path("one.csv")});
    click("convertButton");
    const auto *bar = find<QProgressBar>("progressBar");
    QVERIFY(bar->isVisible());
    QVERIFY(QFile::remove(path("one.csv")));
    const AnswerMessageBox box(Qt::Key_Return);
    click("convertButton");
    QCOMPARE(box.title, QStringLiteral("Error"));
    QVERIFY(!bar->isVisible());
}

/// Gives the process another search path for programs while it lives.
class SearchPath
{
public:
    explicit SearchPath(const QString &path) : m_before(qgetenv("PATH"))
    {
        qputenv("PATH", path.toLocal8Bit());
    }
    ~SearchPath() { qputenv("PATH", m_before); }
    Q_DISABLE_COPY(SearchPath)

private:
    const QByteArray m_before;
};

static void writeProgram(const QString &name, const QByteArray &script)
{
    writeFile(name, "#!/bin/sh\n" + script);
    QFile::setPermissions(name, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void TestMainWindowRun::folderIsShownInTheExplorer()
{
    writeProgram(path("programs/explorer.exe"),
                 "printf '%s\\n' \"$#\" \"$1\" > explored.tmp\n"
                 "/bin/mv explored.tmp explored\n");
    QVERIFY(QDir().mkpath(path("my, results")));
    QVERIFY(QFile::link(path("my, results"), path("linked")));
    add({path("one.csv")});
    find<QLineEdit>("targetFile")->setText(path("linked/out.csv"));
    click("convertButton");

    DesktopHandler desktop;
    const SearchPath searchPath(path("programs"));
    click("openFolderButton");
    auto *process = m_window->findChild<QProcess *>();
    QVERIFY(process != nullptr);
    QCOMPARE(process->parent(), m_window.get());
    QCOMPARE(process->program(), QStringLiteral("explorer.exe"));
    const QString folder =
        QDir::toNativeSeparators(QFileInfo(path("my, results")).canonicalFilePath());
    QTRY_COMPARE(readFile(path("explored")), "1\n" + QFile::encodeName(folder) + "\n");
    QTRY_VERIFY(m_window->findChild<QProcess *>() == nullptr);
    QCOMPARE(desktop.opened, QStringList());
}

void TestMainWindowRun::folderIsShownByTheDesktopWithoutExplorer()
{
    add({path("one.csv")});
    click("convertButton");
    DesktopHandler desktop;
    const SearchPath searchPath(path("programs"));
    click("openFolderButton");
    const QString folder = QFileInfo(m_folder->path()).canonicalFilePath();
    QTRY_COMPARE(desktop.opened,
                 QStringList{QUrl::fromLocalFile(folder).toString(QUrl::FullyEncoded)});
    QTRY_VERIFY(m_window->findChild<QProcess *>() == nullptr);
}

void TestMainWindowRun::statementIsOpened()
{
    DesktopHandler desktop;
    find<QPushButton>("printButton")->setEnabled(true);
    find<QAction>("action_print")->setEnabled(true);
    click("printButton");
    find<QAction>("action_print")->trigger();
    // No run has made a statement yet: the path is empty.
    QCOMPARE(desktop.opened, (QStringList{QStringLiteral("file:///"), QStringLiteral("file:///")}));
}

/// Turns the statement of the setting "swap" on; its second page is told from its first by a
/// number.
static void saveStatement()
{
    StatementSetting statement;
    statement.generate = true;
    statement.title = QStringLiteral("Statement");
    StatementField &number = statement.fields[StatementFields::OrderNumber];
    number.toPrint = true;
    number.mappings = QStringList{QStringLiteral("a")};
    number.mapNums = {0};
    saveStatementSetting(QStringLiteral("swap"), statement);
}

void TestMainWindowRun::statementIsMadeBesideTheOutput()
{
    saveStatement();
    DesktopHandler desktop;
    writeFile(path("주문 1.csv"), "a,b\r\n1,2\r\n3,4\r\n");
    add({path("주문 1.csv")});
    PaintedStatuses painted(m_window->statusBar());
    click("convertButton");

    QCOMPARE(readFile(path("주문 1_output.csv")).replace("\r\n", "\n"),
             QByteArray("second,first\n2,1\n4,3\n"));
    const QByteArray pdf = readFile(path("주문 1_output.pdf"));
    QVERIFY(pdf.startsWith("%PDF-"));
    QVERIFY(pdf.contains("/Count 2"));
    QCOMPARE(m_window->statusBar()->currentMessage(), QStringLiteral("Converting succeeded."));
    QCOMPARE(
        enabledControls(),
        QStringLiteral("convertButton printButton openFolderButton action_convert action_print"));

    const auto *bar = find<QProgressBar>("progressBar");
    QCOMPARE(bar->maximum(), 7); // rows built, rows written, pages, and the end
    QCOMPARE(bar->value(), 7);
    const int begin =
        painted.texts.indexOf(QStringLiteral("Deleting duplication and merging items..."));
    QCOMPARE(
        painted.texts.mid(begin + 1),
        (QStringList{QStringLiteral("Creating PDF file..."), QStringLiteral("Saving PDF file..."),
                     QStringLiteral("Converting succeeded.")}));

    click("printButton");
    find<QAction>("action_print")->trigger();
    QCOMPARE(desktop.opened.size(), 2);
    for (const QString &address : qAsConst(desktop.opened)) {
        QVERIFY(address.startsWith(QLatin1String("file:///")));
        QCOMPARE(QDir::cleanPath(QUrl(address).toLocalFile()), path("주문 1_output.pdf"));
    }

    // Without files there is nothing to print.
    find<QListWidget>("sourceFileList")->setCurrentRow(0);
    click("removeButton");
    QCOMPARE(enabledControls(), QString());
}

void TestMainWindowRun::statementThatCannotBeWrittenCanBeAskedFor()
{
    saveStatement();
    add({path("one.csv")});
    QVERIFY(QDir().mkpath(path("one_output.pdf"))); // a folder stands in its place
    click("convertButton");
    QCOMPARE(m_window->statusBar()->currentMessage(), QStringLiteral("Converting succeeded."));
    QCOMPARE(
        enabledControls(),
        QStringLiteral("convertButton printButton openFolderButton action_convert action_print"));
    const auto *bar = find<QProgressBar>("progressBar");
    QCOMPARE(bar->value(), bar->maximum());
    QCOMPARE(readFile(path("one_output.csv")).replace("\r\n", "\n"),
             QByteArray("second,first\n2,1\n4,3\n"));
}

void TestMainWindowRun::statementControlsStayAfterARunWithoutOne()
{
    saveStatement();
    saveSwapSetting(QStringLiteral("without"));
    openWindow();
    add({path("one.csv")});
    find<QComboBox>("convertSetting")->setCurrentText(QStringLiteral("swap"));
    click("convertButton");
    find<QComboBox>("convertSetting")->setCurrentText(QStringLiteral("without"));
    find<QLineEdit>("targetFile")->setText(path("other.csv"));
    click("convertButton");
    QVERIFY(QFileInfo::exists(path("other.csv")));
    QVERIFY(!QFileInfo::exists(path("other.pdf")));
    QVERIFY(find<QPushButton>("printButton")->isEnabled());

    DesktopHandler desktop;
    click("printButton");
    QCOMPARE(desktop.opened.size(), 1);
    QCOMPARE(QDir::cleanPath(QUrl(desktop.opened.first()).toLocalFile()), path("one_output.pdf"));
}

void TestMainWindowRun::helpIsOpened()
{
    QVERIFY(QDir().mkpath(path("%41 #1")));
    QVERIFY(QDir::setCurrent(path("%41 #1")));
    DesktopHandler desktop;
    find<QAction>("action_help")->trigger();
    QTest::keyClick(m_window.get(), Qt::Key_F1);
    QCOMPARE(desktop.opened.size(), 2);
    QCOMPARE(desktop.opened.at(0), desktop.opened.at(1));
    QVERIFY(desktop.opened.at(0).startsWith(QLatin1String("file:///")));
    QCOMPARE(QUrl(desktop.opened.at(0)).path(),
             QLatin1Char('/') + QDir::currentPath() + QLatin1String("/quorinConverter.chm"));
}

void TestMainWindowRun::makersSiteIsOpened()
{
    DesktopHandler desktop;
    find<QAction>("action_velmora")->trigger();
    QCOMPARE(desktop.opened, QStringList{QStringLiteral("https://www.velmora.example")});
}

void TestMainWindowRun::updateIsOffered()
{
    const QString latest = QStringLiteral("<b>%1</b>");
    const AnswerMessageBox box(Qt::Key_Escape);
    QVERIFY(QMetaObject::invokeMethod(m_window.get(), "updateAlert",
                                      Q_ARG(QString, QStringLiteral("1.00")),
                                      Q_ARG(QString, latest)));
    QCOMPARE(box.title, QStringLiteral("Update available"));
    QCOMPARE(box.text, updateText);
    QCOMPARE(box.format, Qt::PlainText);
    QCOMPARE(box.icon, QMessageBox::Question);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Yes | QMessageBox::No));
    QCOMPARE(box.defaultButton, QMessageBox::Yes);
    // Escape is No: nothing happens.
    QVERIFY(m_window->isVisible());
}

void TestMainWindowRun::updateStartsTheUpdaterAndEndsTheProcess()
{
    // Slower than the process that starts it: it must survive that one.
    writeProgram(path("Updater.exe"), "sleep 1\necho $# > updated.tmp\nmv updated.tmp updated\n");
    QVERIFY(QDir().mkpath(path("config")));
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), path("config"));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--accept-update")});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(process.readAllStandardOutput(), QByteArray());
    QTRY_COMPARE(readFile(path("updated")), QByteArray("0\n"));
    // The window was not closed: no position was kept.
    QCOMPARE(QDir(path("config")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList());
}

/// The process of the test above: says Yes to the update, and must not come to its end.
static int acceptUpdate()
{
    const WarningCollector remarks;
    stayOffTheNetwork();
    MainWindow window;
    window.show();
    const AnswerMessageBox box(Qt::Key_Return); // the default button
    QMetaObject::invokeMethod(&window, "updateAlert", Q_ARG(QString, QStringLiteral("1.00")),
                              Q_ARG(QString, QStringLiteral("1.01")));
    return 3;
}

int main(int argc, char *argv[])
{
    prepareApplication();
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    if (argc == 2 && qstrcmp(argv[1], "--accept-update") == 0)
        return acceptUpdate();

    TestMainWindowRun test;
    return MainWindowTest::run(test, argc, argv);
}

#include "tst_mainwindowrun.moc"
