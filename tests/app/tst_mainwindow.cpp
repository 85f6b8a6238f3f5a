// What the main window shows: its texts, tips, icons, menus, order and settings.
#include "app/startup.h"
#include "tests/app/mainwindowtest.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMetaMethod>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>
#include <QStatusBar>
#include <QtTest>
#include <algorithm>

class TestMainWindow : public MainWindowTest
{
    Q_OBJECT

private slots:
    void actionsHaveTheirTextsAndIcons_data();
    void actionsHaveTheirTextsAndIcons();
    void widgetsHaveTheirTextsAndIcons_data();
    void widgetsHaveTheirTextsAndIcons();
    void menusHoldTheirActions_data();
    void menusHoldTheirActions();
    void windowIsComplete();
    void labelsHaveBuddies_data();
    void labelsHaveBuddies();
    void tabOrderFollowsTheWork();
    void slotsKeepTheirOrder();
    void iconOnlyButtonsAreSquare();
    void noTextIsCut();
    void settingsAreListed();
    void withoutSettingsNothingCanBeConverted();
    void positionIsKept();
    void positionOfAMaximisedOrMinimisedWindowIsNotKept_data();
    void positionOfAMaximisedOrMinimisedWindowIsNotKept();
    void exitActionClosesTheWindow();
};

static QImage imageOf(const QIcon &icon)
{
    return icon.pixmap(QSize(24, 24)).toImage();
}

static QImage imageNamed(const QString &name)
{
    return imageOf(QIcon(QStringLiteral(":/icon/images/%1.png").arg(name)));
}

void TestMainWindow::actionsHaveTheirTextsAndIcons_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("tip");
    QTest::addColumn<QString>("icon");
    QTest::addColumn<QString>("shortcut");
    QTest::addColumn<bool>("enabled");
    // clang-format off
    QTest::newRow("action_add")            << "입력파일 추가"   << "입력파일을 추가합니다"        << "add"         << "Ctrl+O"      << true;
    QTest::newRow("action_set")            << "출력파일 지정"   << "출력파일을 지정합니다"        << "folder"      << "Ctrl+S"      << true;
    QTest::newRow("action_company_config") << "회사정보설정"    << "회사정보를 설정합니다"        << "cog"         << ""            << true;
    QTest::newRow("action_exit")           << "프로그램 종료"   << "프로그램을 종료합니다"        << "exit"        << "Ctrl+Q"      << true;
    QTest::newRow("action_info")           << "쿼린컨버터 정보" << "쿼린컨버터 정보를 보여줍니다" << "information" << ""            << true;
    QTest::newRow("action_convert")        << "파일 변환"       << "파일을 변환합니다"            << "replace"     << "Ctrl+Return" << false;
    QTest::newRow("action_print")          << "명세서 출력"     << "생성된 명세서를 출력합니다."  << "printer"     << ""            << false;
    QTest::newRow("action_help")           << "도움말"          << "도움말을 실행합니다"          << "help"        << "F1"          << true;
    QTest::newRow("action_velmora")        << "벨모라"          << "벨모라 홈페이지로 연결합니다" << "velmora"     << ""            << true;
    QTest::newRow("action_convert_config") << "변환설정"        << "변환설정을 관리합니다"        << "table_gear"  << ""            << true;
    // clang-format on
}

void TestMainWindow::actionsHaveTheirTextsAndIcons()
{
    const auto *action = find<QAction>(QTest::currentDataTag());
    QVERIFY(action != nullptr);
    QTEST(action->text(), "text");
    QTEST(action->toolTip(), "tip");
    QTEST(action->statusTip(), "tip");
    QTEST(action->shortcut().toString(QKeySequence::PortableText), "shortcut");
    QTEST(action->isEnabled(), "enabled");
    QFETCH(QString, icon);
    QVERIFY(!imageNamed(icon).isNull());
    QCOMPARE(imageOf(action->icon()), imageNamed(icon));
}

void TestMainWindow::widgetsHaveTheirTextsAndIcons_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("tip");
    QTest::addColumn<QString>("accessibleName");
    QTest::addColumn<QString>("icon");
    QTest::addColumn<bool>("enabled");
    // clang-format off
    QTest::newRow("sourceFileList")   << "QListWidget" << ""               << ""                                     << "입력파일"                       << ""           << true;
    QTest::newRow("addButton")        << "QPushButton" << ""               << "입력파일을 추가합니다"                << "입력파일을 추가합니다"          << "add"        << true;
    QTest::newRow("removeButton")     << "QPushButton" << ""               << "선택된 입력파일을 제외합니다"         << "선택된 입력파일을 제외합니다"   << "delete"     << true;
    QTest::newRow("convertSetting")   << "QComboBox"   << ""               << "변환에 사용할 설정을 선택합니다"      << "변환설정"                       << ""           << true;
    QTest::newRow("configButton")     << "QPushButton" << ""               << "선택된 설정을 수정합니다"             << "선택된 설정을 수정합니다"       << "table_gear" << true;
    QTest::newRow("targetFile")       << "QLineEdit"   << ""               << "출력파일을 지정합니다"                << ""                               << ""           << true;
    QTest::newRow("setButton")        << "QPushButton" << ""               << "출력파일을 지정합니다"                << "출력파일을 지정합니다"          << "folder"     << true;
    QTest::newRow("convertButton")    << "QPushButton" << "변환"           << "파일을 변환합니다"                    << ""                               << "replace"    << false;
    QTest::newRow("printButton")      << "QPushButton" << "명세서\n출력"   << "생성된 명세서를 출력합니다."          << ""                               << "printer"    << false;
    QTest::newRow("openFolderButton") << "QPushButton" << "출력폴더\n열기" << "출력파일이 생성된 폴더를 탐색합니다." << ""                               << "open"       << false;
    // clang-format on
}

void TestMainWindow::widgetsHaveTheirTextsAndIcons()
{
    QFETCH(QString, type);
    QFETCH(QString, icon);
    const auto *widget = find<QWidget>(QTest::currentDataTag());
    QVERIFY(widget != nullptr);
    QVERIFY(widget->inherits(qPrintable(type)));
    QVERIFY(widget->isVisible());
    QTEST(widget->property("text").toString(), "text");
    QTEST(widget->toolTip(), "tip");
    QTEST(widget->statusTip(), "tip");
    QTEST(widget->accessibleName(), "accessibleName");
    QTEST(widget->isEnabled(), "enabled");
    if (!icon.isEmpty()) {
        QVERIFY(!imageNamed(icon).isNull());
        QCOMPARE(imageOf(widget->property("icon").value<QIcon>()), imageNamed(icon));
    }
}

void TestMainWindow::menusHoldTheirActions_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("entries");
    QTest::newRow("menu") << "파일"
                          << "action_add action_set action_convert action_print - action_exit";
    QTest::newRow("menu_3") << "환경설정"
                            << "action_company_config action_convert_config";
    QTest::newRow("menu_2") << "정보"
                            << "action_help action_info - action_velmora";
}

void TestMainWindow::menusHoldTheirActions()
{
    const auto *menu = find<QMenu>(QTest::currentDataTag());
    QTEST(menu->title(), "title");
    QStringList entries;
    const QList<QAction *> actions = menu->actions();
    for (const QAction *action : actions)
        entries.append(action->isSeparator() ? QStringLiteral("-") : action->objectName());
    QTEST(entries.join(QLatin1Char(' ')), "entries");
}

void TestMainWindow::windowIsComplete()
{
    QCOMPARE(m_window->windowTitle(), QStringLiteral("쿼린 컨버터"));
    QCOMPARE(imageOf(m_window->windowIcon()), imageNamed(QStringLiteral("logo")));
    QStringList menus;
    const QList<QAction *> actions = m_window->menuBar()->actions();
    for (const QAction *action : actions)
        menus.append(action->menu()->objectName());
    QCOMPARE(menus.join(QLatin1Char(' ')), QStringLiteral("menu menu_3 menu_2"));

    const auto *inputBox = find<QGroupBox>("inputBox");
    const auto *outputBox = find<QGroupBox>("outputBox");
    QCOMPARE(inputBox->title(), QStringLiteral("입력"));
    QCOMPARE(outputBox->title(), QStringLiteral("출력"));
    QCOMPARE(inputBox->y(), outputBox->y());
    QVERIFY(inputBox->geometry().right() < outputBox->x());

    QCOMPARE(find<QStatusBar>("statusBar"), m_window->statusBar());
    QVERIFY(!m_window->statusBar()->isSizeGripEnabled());
    const auto *bar = m_window->statusBar()->findChild<QProgressBar *>();
    QVERIFY(bar->isHidden());
    QVERIFY(!bar->isTextVisible());
}

void TestMainWindow::labelsHaveBuddies_data()
{
    QTest::addColumn<QString>("buddy");
    QTest::newRow("입력파일:") << "sourceFileList";
    QTest::newRow("변환설정:") << "convertSetting";
    QTest::newRow("출력파일:") << "targetFile";
}

void TestMainWindow::labelsHaveBuddies()
{
    const QString text = QString::fromUtf8(QTest::currentDataTag());
    const QList<QLabel *> labels = m_window->centralWidget()->findChildren<QLabel *>();
    const auto label = std::find_if(labels.begin(), labels.end(),
                                    [&](const QLabel *each) { return each->text() == text; });
    QVERIFY(label != labels.end());
    QTEST((*label)->buddy()->objectName(), "buddy");
}

void TestMainWindow::tabOrderFollowsTheWork()
{
    QStringList names;
    const QWidget *first = find<QWidget>("sourceFileList");
    const QWidget *widget = first;
    do {
        if (m_window->centralWidget()->isAncestorOf(widget)
            && (widget->focusPolicy() & Qt::TabFocus) != 0)
            names.append(widget->objectName());
        widget = widget->nextInFocusChain();
    } while (widget != first);
    QCOMPARE(names.join(QLatin1Char(' ')),
             QStringLiteral("sourceFileList addButton removeButton convertSetting configButton "
                            "targetFile setButton convertButton printButton openFolderButton"));
}

void TestMainWindow::slotsKeepTheirOrder()
{
    QStringList names;
    const QMetaObject *meta = m_window->metaObject();
    for (int index = meta->methodOffset(); index < meta->methodCount(); ++index) {
        if (meta->method(index).methodType() == QMetaMethod::Slot)
            names.append(QString::fromLatin1(meta->method(index).methodSignature()));
    }
    QCOMPARE(names,
             (QStringList{QStringLiteral("on_action_company_config_triggered()"),
                          QStringLiteral("add_file()"), QStringLiteral("del_file()"),
                          QStringLiteral("set_file()"), QStringLiteral("convert_file()"),
                          QStringLiteral("info_dialog()"), QStringLiteral("checkFields()"),
                          QStringLiteral("on_printButton_clicked()"),
                          QStringLiteral("on_configButton_clicked()"),
                          QStringLiteral("on_action_convert_config_triggered()"),
                          QStringLiteral("on_action_velmora_triggered()"),
                          QStringLiteral("on_openFolderButton_clicked()"),
                          QStringLiteral("updateAlert(QString,QString)"),
                          QStringLiteral("on_action_help_triggered()")}));
}

void TestMainWindow::iconOnlyButtonsAreSquare()
{
    for (const char *name : {"addButton", "removeButton", "configButton", "setButton"}) {
        const auto *button = find<QPushButton>(name);
        QCOMPARE(button->width(), button->height());
        QCOMPARE(button->iconSize(), QSize(24, 24));
    }
}

void TestMainWindow::noTextIsCut()
{
    m_window->resize(m_window->minimumSizeHint());
    const QList<QWidget *> widgets = m_window->centralWidget()->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (widget->inherits("QLabel") || widget->inherits("QPushButton"))
            QVERIFY2(widget->width() >= qMin(widget->sizeHint().width(), widget->maximumWidth()),
                     qPrintable(widget->objectName()));
    }
}

void TestMainWindow::settingsAreListed()
{
    saveSwapSetting(QStringLiteral("택배 양식"));
    saveSwapSetting(QStringLiteral("another"));
    openWindow();
    const auto *combo = find<QComboBox>("convertSetting");
    QCOMPARE(combo->count(), 3);
    QCOMPARE(combo->itemText(0), QStringLiteral("another"));
    QCOMPARE(combo->itemText(1), QStringLiteral("swap"));
    QCOMPARE(combo->itemText(2), QStringLiteral("택배 양식"));
    QCOMPARE(combo->currentIndex(), 0);
}

void TestMainWindow::withoutSettingsNothingCanBeConverted()
{
    QVERIFY(QFile::remove(QStringLiteral("quorinConverter.dat")));
    openWindow();
    QCOMPARE(find<QComboBox>("convertSetting")->currentIndex(), -1);
    add({path("one.csv")});
    QCOMPARE(target(), path("one_output.csv"));
    QCOMPARE(enabledControls(), QString());
}

void TestMainWindow::positionIsKept()
{
    QVERIFY(!QSettings().contains(QStringLiteral("pos")));
    m_window->move(123, 45);
    const QPoint position = m_window->pos();
    QVERIFY(m_window->close());
    QCOMPARE(QSettings().value(QStringLiteral("pos")).toPoint(), position);
    openWindow();
    QCOMPARE(m_window->pos(), position);
}

void TestMainWindow::positionOfAMaximisedOrMinimisedWindowIsNotKept_data()
{
    QTest::addColumn<int>("state");
    QTest::newRow("maximised") << int(Qt::WindowMaximized);
    QTest::newRow("minimised") << int(Qt::WindowMinimized);
    QTest::newRow("minimised from maximised") << int(Qt::WindowMaximized | Qt::WindowMinimized);
}

void TestMainWindow::positionOfAMaximisedOrMinimisedWindowIsNotKept()
{
    QFETCH(int, state);
    QSettings().setValue(QStringLiteral("pos"), QPoint(7, 8));
    m_window->setWindowState(Qt::WindowStates(state));
    QVERIFY(m_window->close());
    QCOMPARE(QSettings().value(QStringLiteral("pos")).toPoint(), QPoint(7, 8));
}

void TestMainWindow::exitActionClosesTheWindow()
{
    QTest::keyClick(m_window.get(), Qt::Key_Q, Qt::ControlModifier);
    QVERIFY(!m_window->isVisible());
    openWindow();
    find<QAction>("action_exit")->trigger();
    QVERIFY(!m_window->isVisible());
}

int main(int argc, char *argv[])
{
    prepareApplication();
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    TestMainWindow test;
    return MainWindowTest::run(test, argc, argv);
}

#include "tst_mainwindow.moc"
