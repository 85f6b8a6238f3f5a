// The two file fields of the main window and what they enable.
#include "app/startup.h"
#include "tests/app/answerfiledialog.h"
#include "tests/app/mainwindowtest.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>
#include <QStatusBar>
#include <QUrl>
#include <QtTest>

class TestMainWindowFiles : public MainWindowTest
{
    Q_OBJECT

private slots:
    void addFileAsksForInputFiles_data();
    void addFileAsksForInputFiles();
    void addFileListsTheFilesInTheirOrder();
    void addFileCancelledChangesNothing();
    void addFileStartsInTheLastDirectory();
    void addFileStartsInTheHomeFolder();
    void lastDirectoryIsCanonical();
    void listedFileIsNotListedTwice();
    void sameNameInOtherCaseIsAnotherFile();
    void defaultOutputFile_data();
    void defaultOutputFile();
    void chosenOutputFileStaysWhenFilesAreAdded();
    void emptiedOutputFileIsMadeAgain();
    void droppedFilesAreAdded();
    void droppedFileIsNeverMoved();
    void droppedFolderOrTextIsRefused_data();
    void droppedFolderOrTextIsRefused();
    void deletingRows_data();
    void deletingRows();
    void deleteKeyRemovesTheRow();
    void focusShowsWhichRowDeleteTakes();
    void removeWithoutARowDoesNothing();
    void removeFromAnEmptyListClearsTheOutputFile();
    void removingTheLastFileDisablesAll();
    void setFileAsksForTheOutputFile_data();
    void setFileAsksForTheOutputFile();
    void setFileCancelledChangesNothing();
    void typedOutputFileIsWhereTheOutputGoes();
    void readiness_data();
    void readiness();
    void readinessNeverEnablesTheResults();
    void everyCheckHidesTheProgressBar();
};

void TestMainWindowFiles::addFileAsksForInputFiles_data()
{
    addControls({"addButton", "action_add", "Ctrl+O"});
}

void TestMainWindowFiles::addFileAsksForInputFiles()
{
    const AnswerFileDialog answer({path("one.csv")});
    use(QTest::currentDataTag());
    QCOMPARE(answer.count(), 1);
    QCOMPARE(answer.seen().title, QStringLiteral("Input Files"));
    QCOMPARE(answer.seen().nameFilters,
             (QStringList{QStringLiteral("CSV Files (*.csv)"), QStringLiteral("All Files (*.*)")}));
    QVERIFY(answer.seen().takesSeveral);
    QVERIFY(!answer.seen().saves);
    QCOMPARE(listed(), QStringList{path("one.csv")});
    QCOMPARE(enabledControls(), QStringLiteral("convertButton action_convert"));
}

void TestMainWindowFiles::addFileListsTheFilesInTheirOrder()
{
    add({path("two.csv")});
    add({path("three.csv"), path("one.csv")});
    QCOMPARE(listed(), (QStringList{path("two.csv"), path("three.csv"), path("one.csv")}));
    QCOMPARE(target(), path("two_output.csv"));
    QCOMPARE(find<QListWidget>("sourceFileList")->item(1)->toolTip(),
             QDir::toNativeSeparators(path("three.csv")));
}

void TestMainWindowFiles::addFileCancelledChangesNothing()
{
    add({});
    QCOMPARE(listed(), QStringList());
    QCOMPARE(target(), QString());
    QVERIFY(!QSettings().contains(QStringLiteral("last directory")));
    QCOMPARE(enabledControls(), QString());
}

void TestMainWindowFiles::addFileStartsInTheLastDirectory()
{
    QSettings().setValue(QStringLiteral("last directory"), m_folder->path());
    const AnswerFileDialog answer;
    click("addButton");
    QCOMPARE(answer.seen().folder, m_folder->path());
}

void TestMainWindowFiles::addFileStartsInTheHomeFolder()
{
    QSettings().setValue(QStringLiteral("last directory"), QString());
    const AnswerFileDialog answer;
    click("addButton");
    QCOMPARE(answer.seen().folder, QDir::homePath());
}

void TestMainWindowFiles::lastDirectoryIsCanonical()
{
    writeFile(path("real/in.csv"), "a,b\n");
    QVERIFY(QFile::link(path("real"), path("linked")));
    // The link of a file leads elsewhere, but it is the folder that was opened that counts.
    QVERIFY(QFile::link(path("one.csv"), path("real/link.csv")));
    add({path("linked/link.csv")});
    QCOMPARE(listed(), QStringList{path("linked/link.csv")});
    QCOMPARE(QSettings().value(QStringLiteral("last directory")).toString(),
             QFileInfo(path("real")).canonicalFilePath());
}

void TestMainWindowFiles::listedFileIsNotListedTwice()
{
    add({path("one.csv"), path("two.csv")});
    find<QLineEdit>("targetFile")->setText(QStringLiteral("chosen.csv"));
    add({path("two.csv")});
    QCOMPARE(listed(), (QStringList{path("one.csv"), path("two.csv")}));
    QCOMPARE(target(), QStringLiteral("chosen.csv"));
    add({path("two.csv"), path("three.csv"), path("one.csv")});
    QCOMPARE(listed(), (QStringList{path("one.csv"), path("two.csv"), path("three.csv")}));
}

void TestMainWindowFiles::sameNameInOtherCaseIsAnotherFile()
{
    writeFile(path("ONE.csv"), "a,b\n");
    add({path("one.csv")});
    add({path("ONE.csv")});
    QCOMPARE(listed(), (QStringList{path("one.csv"), path("ONE.csv")}));
}

void TestMainWindowFiles::defaultOutputFile_data()
{
    QTest::addColumn<QString>("output");
    QTest::newRow("data/orders.csv") << "data/orders_output.csv";
    QTest::newRow("data/orders") << "data/orders_output.csv";
    QTest::newRow("data/orders.2024.csv") << "data/orders.2024_output.csv";
    QTest::newRow("data/orders.CSV") << "data/orders_output.csv";
    QTest::newRow("data/.csv") << "data/_output.csv";
    QTest::newRow("data/orders.") << "data/orders_output.csv";
    QTest::newRow("data/주문 목록.csv") << "data/주문 목록_output.csv";
    // The last "." of the whole path: here it stands in the folder.
    QTest::newRow("shop.kr/orders") << "shop_output.csv";
}

void TestMainWindowFiles::defaultOutputFile()
{
    QFETCH(QString, output);
    // No dot in front of the name, or it would be the last one of a path without any other.
    QVERIFY(!m_folder->path().contains(QLatin1Char('.')));
    const QString input = path(QTest::currentDataTag());
    writeFile(input, "a,b\n");
    add({input});
    QCOMPARE(target(), m_folder->filePath(output));
}

void TestMainWindowFiles::chosenOutputFileStaysWhenFilesAreAdded()
{
    find<QLineEdit>("targetFile")->setText(QStringLiteral("chosen.csv"));
    add({path("one.csv")});
    QCOMPARE(target(), QStringLiteral("chosen.csv"));
}

void TestMainWindowFiles::emptiedOutputFileIsMadeAgain()
{
    add({path("one.csv")});
    find<QLineEdit>("targetFile")->clear();
    QCOMPARE(enabledControls(), QString());
    add({path("two.csv")});
    QCOMPARE(target(), path("one_output.csv"));
}

void TestMainWindowFiles::droppedFilesAreAdded()
{
    add({path("two.csv")});
    QSettings().remove(QStringLiteral("last directory"));
    Qt::DropAction action = Qt::IgnoreAction;
    QVERIFY(drop({QUrl::fromLocalFile(path("one.csv")), QUrl::fromLocalFile(path("two.csv")),
                  QUrl::fromLocalFile(path("one.csv"))},
                 Qt::NoModifier, &action));
    QCOMPARE(listed(), (QStringList{path("two.csv"), path("one.csv")}));
    QCOMPARE(target(), path("two_output.csv"));
    QCOMPARE(QSettings().value(QStringLiteral("last directory")).toString(),
             QFileInfo(m_folder->path()).canonicalFilePath());
    QCOMPARE(enabledControls(), QStringLiteral("convertButton action_convert"));
}

void TestMainWindowFiles::droppedFileIsNeverMoved()
{
    Qt::DropAction action = Qt::IgnoreAction;
    QVERIFY(drop({QUrl::fromLocalFile(path("one.csv"))}, Qt::ShiftModifier, &action));
    QCOMPARE(action, Qt::CopyAction);
    QCOMPARE(listed(), QStringList{path("one.csv")});
    QCOMPARE(target(), path("one_output.csv"));
}

void TestMainWindowFiles::droppedFolderOrTextIsRefused_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("a folder") << QStringLiteral("file:///");
    QTest::newRow("a web page") << QStringLiteral("https://shop.example/orders.csv");
    QTest::newRow("nothing") << QString();
}

void TestMainWindowFiles::droppedFolderOrTextIsRefused()
{
    QFETCH(QString, address);
    QList<QUrl> urls;
    if (!address.isEmpty())
        urls.append(QUrl(address));
    Qt::DropAction action = Qt::IgnoreAction;
    QVERIFY(!drop(urls, Qt::NoModifier, &action));
    QCOMPARE(listed(), QStringList());
    QCOMPARE(target(), QString());
}

void TestMainWindowFiles::deletingRows_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("chosenOutput");
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("output");
    QTest::newRow("the first: the next one names the output") << 0 << ""
                                                              << "two.csv three.csv"
                                                              << "two_output.csv";
    QTest::newRow("the first: replaces a chosen output too") << 0 << "chosen.csv"
                                                             << "two.csv three.csv"
                                                             << "two_output.csv";
    QTest::newRow("another one leaves the output alone") << 1 << ""
                                                         << "one.csv three.csv"
                                                         << "one_output.csv";
    QTest::newRow("another one leaves a chosen output alone") << 1 << "chosen.csv"
                                                              << "one.csv three.csv"
                                                              << "chosen.csv";
    QTest::newRow("the last one leaves a chosen output alone") << 2 << "chosen.csv"
                                                               << "one.csv two.csv"
                                                               << "chosen.csv";
}

void TestMainWindowFiles::deletingRows()
{
    QFETCH(int, row);
    QFETCH(QString, chosenOutput);
    QFETCH(QString, left);
    QFETCH(QString, output);
    add({path("one.csv"), path("two.csv"), path("three.csv")});
    if (!chosenOutput.isEmpty())
        find<QLineEdit>("targetFile")->setText(m_folder->filePath(chosenOutput));

    auto *list = find<QListWidget>("sourceFileList");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(row)).center());
    click("removeButton");
    QStringList files;
    const QStringList names = left.split(QLatin1Char(' '));
    for (const QString &name : names)
        files.append(m_folder->filePath(name));
    QCOMPARE(listed(), files);
    QCOMPARE(target(), m_folder->filePath(output));
    QCOMPARE(enabledControls(), QStringLiteral("convertButton action_convert"));
}

void TestMainWindowFiles::deleteKeyRemovesTheRow()
{
    add({path("one.csv"), path("two.csv")});
    auto *list = find<QListWidget>("sourceFileList");
    activate();
    list->setCurrentRow(1);
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Delete);
    QCOMPARE(listed(), QStringList{path("one.csv")});

    find<QPushButton>("addButton")->setFocus();
    QTest::keyClick(find<QPushButton>("addButton"), Qt::Key_Delete);
    QCOMPARE(listed(), QStringList{path("one.csv")});

    // In the output file it deletes a character, as everywhere.
    auto *targetFile = find<QLineEdit>("targetFile");
    targetFile->setText(QStringLiteral("xout.csv"));
    targetFile->setFocus();
    targetFile->setCursorPosition(0);
    QTest::keyClick(targetFile, Qt::Key_Delete);
    QCOMPARE(target(), QStringLiteral("out.csv"));
    QCOMPARE(listed(), QStringList{path("one.csv")});
}

void TestMainWindowFiles::focusShowsWhichRowDeleteTakes()
{
    add({path("one.csv"), path("two.csv")});
    auto *list = find<QListWidget>("sourceFileList");
    activate();
    QVERIFY(list->selectedItems().isEmpty());
    list->setFocus(Qt::TabFocusReason);
    QCOMPARE(list->currentRow(), 0);
    QCOMPARE(list->selectedItems(), QList<QListWidgetItem *>{list->item(0)});
}

void TestMainWindowFiles::removeWithoutARowDoesNothing()
{
    find<QLineEdit>("targetFile")->setText(QStringLiteral("chosen.csv"));
    add({path("one.csv")});
    find<QListWidget>("sourceFileList")->setCurrentRow(-1);
    click("removeButton");
    QCOMPARE(listed(), QStringList{path("one.csv")});
    QCOMPARE(target(), QStringLiteral("chosen.csv"));
}

void TestMainWindowFiles::removeFromAnEmptyListClearsTheOutputFile()
{
    find<QLineEdit>("targetFile")->setText(QStringLiteral("chosen.csv"));
    click("removeButton");
    QCOMPARE(target(), QString());
}

void TestMainWindowFiles::removingTheLastFileDisablesAll()
{
    add({path("one.csv")});
    click("convertButton");
    QCOMPARE(enabledControls(), QStringLiteral("convertButton openFolderButton action_convert"));
    find<QPushButton>("printButton")->setEnabled(true);
    find<QAction>("action_print")->setEnabled(true);

    find<QListWidget>("sourceFileList")->setCurrentRow(0);
    click("removeButton");
    QCOMPARE(listed(), QStringList());
    QCOMPARE(target(), QString());
    QCOMPARE(enabledControls(), QString());
}

void TestMainWindowFiles::setFileAsksForTheOutputFile_data()
{
    addControls({"setButton", "action_set", "Ctrl+S"});
}

void TestMainWindowFiles::setFileAsksForTheOutputFile()
{
    QVERIFY(QDir().mkpath(path("results")));
    const AnswerFileDialog answer({path("results/new.csv")});
    use(QTest::currentDataTag());
    QCOMPARE(answer.count(), 1);
    QCOMPARE(answer.seen().title, QStringLiteral("Output File"));
    QCOMPARE(answer.seen().folder, QDir::homePath());
    QCOMPARE(answer.seen().nameFilters, QStringList{QStringLiteral("CSV File (*.csv)")});
    QVERIFY(answer.seen().saves);
    QCOMPARE(target(), path("results/new.csv"));
    QCOMPARE(QSettings().value(QStringLiteral("last directory")).toString(),
             QFileInfo(path("results")).canonicalFilePath());

    const AnswerFileDialog again;
    use(QTest::currentDataTag());
    QCOMPARE(again.seen().folder, QFileInfo(path("results")).canonicalFilePath());
}

void TestMainWindowFiles::setFileCancelledChangesNothing()
{
    add({path("one.csv")});
    QSettings().remove(QStringLiteral("last directory"));
    const AnswerFileDialog answer;
    click("setButton");
    QCOMPARE(answer.count(), 1);
    QCOMPARE(target(), path("one_output.csv"));
    QVERIFY(!QSettings().contains(QStringLiteral("last directory")));
}

void TestMainWindowFiles::typedOutputFileIsWhereTheOutputGoes()
{
    add({path("one.csv")});
    auto *targetFile = find<QLineEdit>("targetFile");
    targetFile->selectAll();
    QTest::keyClicks(targetFile, path("typed.csv"));
    click("convertButton");
    QVERIFY(QFileInfo::exists(path("typed.csv")));
    QVERIFY(!QFileInfo::exists(path("one_output.csv")));
}

void TestMainWindowFiles::readiness_data()
{
    QTest::addColumn<bool>("hasInput");
    QTest::addColumn<bool>("hasOutput");
    QTest::addColumn<bool>("hasSetting");
    for (int bits = 0; bits < 8; ++bits) {
        const bool input = (bits & 1) != 0;
        const bool output = (bits & 2) != 0;
        const bool setting = (bits & 4) != 0;
        QTest::addRow("input %d, output %d, setting %d", input, output, setting)
            << input << output << setting;
    }
}

void TestMainWindowFiles::readiness()
{
    QFETCH(bool, hasInput);
    QFETCH(bool, hasOutput);
    QFETCH(bool, hasSetting);
    if (hasInput)
        add({path("one.csv")});
    find<QLineEdit>("targetFile")->setText(hasOutput ? QStringLiteral("out.csv") : QString());
    find<QComboBox>("convertSetting")->setCurrentIndex(hasSetting ? 0 : -1);
    QCOMPARE(enabledControls(),
             hasInput && hasOutput && hasSetting ? QStringLiteral("convertButton action_convert")
                                                 : QString());
}

void TestMainWindowFiles::readinessNeverEnablesTheResults()
{
    add({path("one.csv")});
    click("convertButton");
    QCOMPARE(enabledControls(), QStringLiteral("convertButton openFolderButton action_convert"));
    auto *targetFile = find<QLineEdit>("targetFile");
    const QString output = target();
    targetFile->clear();
    QCOMPARE(enabledControls(), QString());
    targetFile->setText(output);
    QCOMPARE(enabledControls(), QStringLiteral("convertButton action_convert"));
}

void TestMainWindowFiles::everyCheckHidesTheProgressBar()
{
    saveSwapSetting(QStringLiteral("second"));
    openWindow();
    const auto *bar = m_window->statusBar()->findChild<QProgressBar *>();
    add({path("one.csv")});
    click("convertButton");
    QVERIFY(bar->isVisible());
    find<QComboBox>("convertSetting")->setCurrentIndex(1);
    QVERIFY(bar->isHidden());
    click("convertButton");
    QVERIFY(bar->isVisible());
    QTest::keyClick(find<QLineEdit>("targetFile"), Qt::Key_X);
    QVERIFY(bar->isHidden());
    click("convertButton");
    QVERIFY(bar->isVisible());
    add({path("two.csv")});
    QVERIFY(bar->isHidden());
}

int main(int argc, char *argv[])
{
    prepareApplication();
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    TestMainWindowFiles test;
    return MainWindowTest::run(test, argc, argv);
}

#include "tst_mainwindowfiles.moc"
