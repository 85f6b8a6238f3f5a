// What the main window opens to manage and to edit settings.
#include "app/startup.h"
#include "editor/configdialog.h"
#include "editor/convertsettingdialog.h"
#include "settings/convertsettings.h"
#include "tests/app/mainwindowtest.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

class TestMainWindowEditors : public MainWindowTest
{
    Q_OBJECT

private slots:
    void managerOpensOnTheCompanyTab_data();
    void managerOpensOnTheCompanyTab();
    void chosenSettingIsEdited();
    void nothingIsEditedWithoutASetting();
    void changesOfTheManagerAreSeenAtOnce();

private:
    template <typename Dialog> Dialog *onlyDialog() const
    {
        const QList<QDialog *> dialogs = m_window->findChildren<QDialog *>();
        return dialogs.size() == 1 ? qobject_cast<Dialog *>(dialogs.first()) : nullptr;
    }
    static void press(QWidget *dialog, const char *button)
    {
        QTest::mouseClick(dialog->findChild<QPushButton *>(QLatin1String(button)), Qt::LeftButton);
    }
};

void TestMainWindowEditors::managerOpensOnTheCompanyTab_data()
{
    addControls({"action_company_config", "action_convert_config"});
}

void TestMainWindowEditors::managerOpensOnTheCompanyTab()
{
    use(QTest::currentDataTag());
    auto *manager = onlyDialog<ConfigDialog>();
    QVERIFY(manager != nullptr);
    QVERIFY(manager->isVisible());
    QVERIFY(manager->isModal());
    QCOMPARE(manager->findChild<QTabWidget *>()->currentIndex(), 0);
    press(manager, "cancelButton");
    QTRY_VERIFY(m_window->findChild<QDialog *>() == nullptr); // it has deleted itself
}

void TestMainWindowEditors::chosenSettingIsEdited()
{
    saveSwapSetting(QStringLiteral("other"));
    openWindow();
    auto *combo = find<QComboBox>("convertSetting");
    combo->setCurrentText(QStringLiteral("swap"));
    click("configButton");
    auto *editor = onlyDialog<ConvertSettingDialog>();
    QVERIFY(editor != nullptr);
    QVERIFY(editor->isVisible());
    QVERIFY(editor->isModal());
    auto *name = editor->findChild<QLineEdit *>(QStringLiteral("settingNameEdit"));
    QCOMPARE(name->text(), QStringLiteral("swap"));

    // A rename changes the row that is chosen.
    name->setText(QStringLiteral("바꾼 이름"));
    press(editor, "saveButton");
    QTRY_VERIFY(m_window->findChild<QDialog *>() == nullptr);
    QCOMPARE(combo->currentText(), QStringLiteral("바꾼 이름"));
    QCOMPARE(combo->count(), 2);
    QVERIFY(!settingNames().contains(QStringLiteral("swap")));
}

void TestMainWindowEditors::nothingIsEditedWithoutASetting()
{
    removeSetting(QStringLiteral("swap"));
    openWindow();
    click("configButton");
    QVERIFY(m_window->findChild<QDialog *>() == nullptr);
}

void TestMainWindowEditors::changesOfTheManagerAreSeenAtOnce()
{
    auto *combo = find<QComboBox>("convertSetting");
    add({path("one.csv")});
    QVERIFY(find<QPushButton>("convertButton")->isEnabled());
    find<QAction>("action_convert_config")->trigger();
    auto *manager = onlyDialog<ConfigDialog>();
    manager->findChild<QTabWidget *>()->setCurrentIndex(1);
    auto *list = manager->findChild<QListView *>(QStringLiteral("settingListView"));
    list->setCurrentIndex(list->model()->index(0, 0));
    press(manager, "deleteButton");
    QCOMPARE(combo->count(), 0);
    QCOMPARE(combo->currentIndex(), -1);
    QVERIFY(!find<QPushButton>("convertButton")->isEnabled());

    // The first setting of an empty list is chosen, so that converting can begin.
    press(manager, "addButton");
    auto *editor = manager->findChild<ConvertSettingDialog *>();
    QVERIFY(editor != nullptr);
    editor->findChild<QLineEdit *>(QStringLiteral("settingNameEdit"))
        ->setText(QStringLiteral("new"));
    press(editor, "saveButton");
    QCOMPARE(combo->currentText(), QStringLiteral("new"));
    QVERIFY(find<QPushButton>("convertButton")->isEnabled());
    press(manager, "cancelButton");
    QTRY_VERIFY(m_window->findChild<QDialog *>() == nullptr);
}

int main(int argc, char *argv[])
{
    prepareApplication();
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    TestMainWindowEditors test;
    return MainWindowTest::run(test, argc, argv);
}

#include "tst_mainwindoweditors.moc"
