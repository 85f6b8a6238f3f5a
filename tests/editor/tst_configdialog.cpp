// The settings manager: the shop's own data are kept on OK and only then; settings are added,
// opened and deleted at once, in the list, in the file and in everything that shows the list.
#include "editor/configdialog.h"
#include "editor/convertsettingdialog.h"
#include "settings/convertsettings.h"
#include "tests/app/warningcollector.h"
#include "tests/settings/settingstest.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPointer>
#include <QPushButton>
#include <QStatusBar>
#include <QStringListModel>
#include <QTabWidget>
#include <QtTest>
#include <optional>

namespace {

// In the order of CompanyInfo::Field.
const char *const editNames[CompanyInfo::FieldCount] = {
    "CompanyNameEdit", "StoreNameEdit", "StoreSiteEdit", "PostCodeEdit",
    "AddressEdit",     "TelEdit",       "FaxEdit",       "EmailEdit"};

CompanyInfo realCompany()
{
    CompanyInfo company;
    company.fields = {"벨모라 상사",
                      "꽃가게",
                      "http://shop.example.com",
                      "123-4567",
                      "서울시 중구 세종대로 110",
                      "02-123-4567",
                      "02-1234-5678",
                      "kim@example.com"};
    return company;
}

} // namespace

class TestConfigDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void formIsAsDescribed();
    void buttonsAreAsDescribed_data();
    void buttonsAreAsDescribed();
    void companyFieldsAreAsDescribed_data();
    void companyFieldsAreAsDescribed();
    void tipsAppearInTheDialog();
    void everyWidgetHasANameForScreenReaders();
    void nothingIsCutOff();
    void tabKeyGoesThroughTheFieldsInOrder();

    void companyIsLoaded();
    void okSavesTheCompany_data();
    void okSavesTheCompany();
    void nothingElseSavesTheCompany_data();
    void nothingElseSavesTheCompany();
    void unfilledMasksAreStoredAsTheyAre();
    void okWithoutAChangeChangesNothing();
    void typedDigitsFallIntoTheMasks();
    void anyTextIsTaken();

    void addOpensAnEmptySetting();
    void aSettingOpensAndTheManagerStays_data();
    void aSettingOpensAndTheManagerStays();
    void withoutARowNothingOpens_data();
    void withoutARowNothingOpens();
    void aRowIsNotEditedInPlace();

    void deleteTakesTheSettingAtOnce_data();
    void deleteTakesTheSettingAtOnce();
    void deleteMarksANeighbour_data();
    void deleteMarksANeighbour();
    void deletingTheLastLeavesAnEmptyList();
    void withoutARowNothingIsDeleted_data();
    void withoutARowNothingIsDeleted();
    void deletedStaysDeletedAfterCancel();
    void deletingKeepsASettingNestedInTheGroup();
    void theRowThatDeleteTakesIsMarked();

private:
    void open();
    void openList();
    template <typename Type> Type *find(const char *name) const
    {
        return m_dialog->findChild<Type *>(QLatin1String(name));
    }
    QListView *list() const { return find<QListView>("settingListView"); }
    QLineEdit *edit(int field) const { return find<QLineEdit>(editNames[field]); }
    void click(const char *button) { QTest::mouseClick(find<QPushButton>(button), Qt::LeftButton); }
    QPoint placeOf(int row) const { return list()->visualRect(m_names.index(row, 0)).center(); }
    void clickRow(int row)
    {
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, Qt::NoModifier, placeOf(row));
    }
    /// Presses a button, a key in the list, or double clicks the current row.
    void use(const QString &control);
    static void addControls(std::initializer_list<const char *> controls);
    QStringList markedNames() const;
    /// The names of the settings that are open, or "(new)".
    QStringList openSettings() const;

    QStringListModel m_names;
    QPointer<ConfigDialog> m_dialog;
    std::optional<WorkingFolder> m_folder;
    std::optional<WarningCollector> m_warnings; ///< of the test that runs now
};

void TestConfigDialog::init()
{
    m_warnings.emplace();
    m_folder.emplace();
    for (const char *name : {"A", "B", "C"})
        saveOutputItems(name, {itemWithEveryFieldDifferent(1)});
    saveCompanyInfo(realCompany());
    m_names.setStringList(settingNames());
    open();
}

void TestConfigDialog::cleanup()
{
    delete m_dialog;
    const QStringList warnings = m_warnings->take();
    m_warnings.reset();
    m_folder.reset();
    QCOMPARE(warnings, QStringList());
}

void TestConfigDialog::open()
{
    delete m_dialog;
    m_dialog = new ConfigDialog(&m_names);
    m_dialog->showAndForget();
    m_dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog));
}

void TestConfigDialog::openList()
{
    find<QTabWidget>("tabWidget")->setCurrentIndex(1);
}

void TestConfigDialog::use(const QString &control)
{
    if (find<QPushButton>(qPrintable(control)) != nullptr)
        click(qPrintable(control));
    else if (control == "double click")
        QTest::mouseDClick(list()->viewport(), Qt::LeftButton, Qt::NoModifier,
                           list()->visualRect(list()->currentIndex()).center());
    else {
        if (!list()->hasFocus()) { // without making a row current
            const QSignalBlocker blocker(list()->selectionModel());
            list()->setFocus(Qt::OtherFocusReason);
        }
        QTest::keySequence(list(), QKeySequence(control));
    }
}

void TestConfigDialog::addControls(std::initializer_list<const char *> controls)
{
    QTest::addColumn<QString>("control");
    for (const char *control : controls)
        QTest::newRow(control) << control;
}

QStringList TestConfigDialog::markedNames() const
{
    QStringList names;
    for (const QModelIndex &index : list()->selectionModel()->selectedIndexes())
        names.append(index.data().toString());
    return names;
}

QStringList TestConfigDialog::openSettings() const
{
    QStringList names;
    const auto dialogs = m_dialog->findChildren<ConvertSettingDialog *>();
    for (const ConvertSettingDialog *dialog : dialogs) {
        const QString name = dialog->findChild<QLineEdit *>("settingNameEdit")->text();
        if (dialog->isVisible() && dialog->isModal())
            names.append(name.isEmpty() ? "(new)" : name);
    }
    return names;
}

// --- the form ---------------------------------------------------------------------------------

void TestConfigDialog::formIsAsDescribed()
{
    QCOMPARE(m_dialog->windowTitle(), QString("환경설정"));
    QVERIFY(m_dialog->isModal());
    const auto *tabs = find<QTabWidget>("tabWidget");
    QCOMPARE(tabs->count(), 2);
    QCOMPARE(tabs->tabText(0), QString("회사정보"));
    QCOMPARE(tabs->tabText(1), QString("변환설정 관리"));
    QCOMPARE(tabs->currentIndex(), 0);
    QCOMPARE(list()->model(), &m_names);
    QCOMPARE(list()->editTriggers(), QAbstractItemView::NoEditTriggers);
    QVERIFY(find<QPushButton>("okButton")->isDefault());
    QCOMPARE(find<QPushButton>("okButton")->parentWidget(), m_dialog.data());
}

void TestConfigDialog::buttonsAreAsDescribed_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("tip");
    QTest::addColumn<QString>("icon");

    QTest::newRow("addButton") << "추가"
                               << "새로운 설정을 추가합니다"
                               << "add";
    QTest::newRow("setButton") << "변경"
                               << "선택된 설정을 변경합니다"
                               << "table_edit";
    QTest::newRow("deleteButton") << "삭제"
                                  << "선택된 설정을 삭제합니다"
                                  << "delete";
    QTest::newRow("okButton") << "확인"
                              << "변경된 사항을 저장합니다"
                              << "tick";
    QTest::newRow("cancelButton") << "취소"
                                  << "변경된 사항을 저장하지 않습니다"
                                  << "cross";
}

void TestConfigDialog::buttonsAreAsDescribed()
{
    QFETCH(QString, icon);
    const auto *button = find<QPushButton>(QTest::currentDataTag());
    QTEST(button->text(), "text");
    QTEST(button->toolTip(), "tip");
    QTEST(button->statusTip(), "tip");
    const auto image = [](const QIcon &from) { return from.pixmap(24, 24).toImage(); };
    const QImage expected = image(QIcon(QStringLiteral(":/icon/images/%1.png").arg(icon)));
    QVERIFY(!expected.isNull());
    QCOMPARE(image(button->icon()), expected);
}

void TestConfigDialog::companyFieldsAreAsDescribed_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("placeholder");

    QTest::newRow("CompanyNameEdit") << "회사명"
                                     << ""
                                     << "";
    QTest::newRow("StoreNameEdit") << "판매처명"
                                   << ""
                                   << "";
    QTest::newRow("StoreSiteEdit") << "판매사이트"
                                   << ""
                                   << "http://www.example.com";
    // The masks as they are told; a blank stands for what is not filled in.
    QTest::newRow("PostCodeEdit") << "우편번호"
                                  << "999-9999"
                                  << "###-####";
    QTest::newRow("AddressEdit") << "주소"
                                 << ""
                                 << "";
    QTest::newRow("TelEdit") << "전화번호"
                             << "99-0999-9999"
                             << "##-####-####";
    QTest::newRow("FaxEdit") << "팩스번호"
                             << "99-0999-9999"
                             << "##-####-####";
    QTest::newRow("EmailEdit") << "전자우편"
                               << ""
                               << "shop@example.com";
}

void TestConfigDialog::companyFieldsAreAsDescribed()
{
    const auto *field = find<QLineEdit>(QTest::currentDataTag());
    QTEST(field->inputMask(), "mask");
    QTEST(field->placeholderText(), "placeholder");
    QString label;
    for (const QLabel *candidate : m_dialog->findChildren<QLabel *>()) {
        if (candidate->buddy() == field)
            label = candidate->text();
    }
    QTEST(label, "label");
}

void TestConfigDialog::tipsAppearInTheDialog()
{
    const auto *button = find<QPushButton>("okButton");
    QStatusTipEvent tip(button->statusTip());
    QCoreApplication::sendEvent(m_dialog, &tip);
    QCOMPARE(m_dialog->statusBar()->currentMessage(), button->statusTip());
    QVERIFY(m_dialog->statusBar()->isVisible());
    QVERIFY(m_dialog->statusBar()->y() > button->y());
}

void TestConfigDialog::everyWidgetHasANameForScreenReaders()
{
    for (QWidget *widget : m_dialog->findChildren<QWidget *>()) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->objectName().startsWith("qt_"))
            continue;
        // The bar of the tabs is called like the tab that is open.
        QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(widget);
        QVERIFY2(!reader->text(QAccessible::Name).isEmpty()
                     || qobject_cast<QTabWidget *>(widget) != nullptr,
                 qPrintable(widget->objectName()));
    }
}

void TestConfigDialog::nothingIsCutOff()
{
    m_dialog->resize(m_dialog->minimumSizeHint());
    for (int tab : {0, 1}) {
        find<QTabWidget>("tabWidget")->setCurrentIndex(tab);
        QCoreApplication::processEvents();
        for (const QWidget *widget : m_dialog->findChildren<QWidget *>()) {
            const bool hasText = widget->inherits("QLabel") || widget->inherits("QAbstractButton");
            const QSize needed = widget->minimumSizeHint();
            QVERIFY2(
                !hasText || !widget->isVisible()
                    || (widget->width() >= needed.width() && widget->height() >= needed.height()),
                qPrintable(widget->objectName()));
        }
    }
}

void TestConfigDialog::tabKeyGoesThroughTheFieldsInOrder()
{
    edit(0)->setFocus();
    for (int field = 1; field < CompanyInfo::FieldCount; ++field) {
        QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Tab);
        QCOMPARE(m_dialog->focusWidget(), edit(field));
    }
    QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Tab);
    QCOMPARE(m_dialog->focusWidget(), find<QWidget>("okButton"));
}

// --- the shop's own data ----------------------------------------------------------------------

void TestConfigDialog::companyIsLoaded()
{
    for (int field = 0; field < CompanyInfo::FieldCount; ++field)
        QCOMPARE(edit(field)->text(), realCompany().value(field));
}

void TestConfigDialog::okSavesTheCompany_data()
{
    addControls({"okButton", "Return"});
}

void TestConfigDialog::okSavesTheCompany()
{
    QFETCH(QString, control);
    CompanyInfo expected;
    expected.fields = {"새 회사",      "새 가게",        "https://new.example.com",
                       "765-4321",     "부산시 해운대",  "03-765-4321",
                       "06-7654-3210", "lee@example.com"};
    for (int field = 0; field < CompanyInfo::FieldCount; ++field) {
        edit(field)->clear();
        edit(field)->setCursorPosition(0);
        if (edit(field)->inputMask().isEmpty())
            edit(field)->insert(expected.value(field)); // a keyboard has no Korean letters
        else
            edit(field)->setText(expected.value(field));
    }
    QVERIFY(loadCompanyInfo() == realCompany());
    if (control == "Return") {
        edit(CompanyInfo::Name)->setFocus();
        QTest::keyClick(edit(CompanyInfo::Name), Qt::Key_Return);
    } else {
        click("okButton");
    }
    QVERIFY(loadCompanyInfo() == expected);
    QTRY_VERIFY(m_dialog.isNull());
}

void TestConfigDialog::nothingElseSavesTheCompany_data()
{
    addControls({"cancelButton", "Esc", "close"});
}

void TestConfigDialog::nothingElseSavesTheCompany()
{
    QFETCH(QString, control);
    edit(CompanyInfo::Name)->setFocus();
    QTest::keyClicks(edit(CompanyInfo::Name), "changed");
    QVERIFY(edit(CompanyInfo::Name)->text().contains("changed"));
    if (control == "cancelButton")
        click("cancelButton");
    else if (control == "Esc")
        QTest::keyClick(edit(CompanyInfo::Name), Qt::Key_Escape);
    else
        m_dialog->close();
    QTRY_VERIFY(m_dialog.isNull());
    QVERIFY(loadCompanyInfo() == realCompany());
}

void TestConfigDialog::unfilledMasksAreStoredAsTheyAre()
{
    for (int field = 0; field < CompanyInfo::FieldCount; ++field)
        edit(field)->clear();
    click("okButton");
    CompanyInfo expected;
    expected.fields[CompanyInfo::PostCode] = "-";
    expected.fields[CompanyInfo::Tel] = "--";
    expected.fields[CompanyInfo::Fax] = "--";
    QVERIFY(loadCompanyInfo() == expected);
}

void TestConfigDialog::okWithoutAChangeChangesNothing()
{
    const QByteArray before = m_folder->read(settingsFile);
    click("okButton");
    QCOMPARE(m_folder->read(settingsFile), before);
}

void TestConfigDialog::typedDigitsFallIntoTheMasks()
{
    const auto typed = [this](int field, const QString &keys) {
        edit(field)->clear();
        edit(field)->setFocus();
        edit(field)->setCursorPosition(0);
        QTest::keyClicks(edit(field), keys);
        return edit(field)->text();
    };
    QCOMPARE(typed(CompanyInfo::PostCode, "1234567"), QString("123-4567"));
    QCOMPARE(typed(CompanyInfo::PostCode, "12a"), QString("12-"));
    QCOMPARE(typed(CompanyInfo::Tel, "0212345678"), QString("02-1234-5678"));
    QCOMPARE(typed(CompanyInfo::Tel, "02123-4567"), QString("02-123-4567"));
    QCOMPARE(typed(CompanyInfo::Fax, "0212345678"), QString("02-1234-5678"));
}

void TestConfigDialog::anyTextIsTaken()
{
    for (const int field : {CompanyInfo::Name, CompanyInfo::Email}) {
        edit(field)->clear();
        QTest::keyClicks(edit(field), "  no address, \"at all\"  ");
    }
    click("okButton");
    QCOMPARE(companyValue(CompanyInfo::Name), QString("  no address, \"at all\"  "));
    QCOMPARE(companyValue(CompanyInfo::Email), QString("  no address, \"at all\"  "));
}

// --- the settings -----------------------------------------------------------------------------

void TestConfigDialog::addOpensAnEmptySetting()
{
    openList();
    clickRow(1);
    click("addButton");
    QCOMPARE(openSettings(), QStringList("(new)"));
    QCOMPARE(m_names.stringList(), (QStringList{"A", "B", "C"}));
}

void TestConfigDialog::aSettingOpensAndTheManagerStays_data()
{
    addControls({"setButton", "Return", "Enter", "F2", "double click"});
}

void TestConfigDialog::aSettingOpensAndTheManagerStays()
{
    QFETCH(QString, control);
    openList();
    clickRow(1);
    use(control);
    QCOMPARE(openSettings(), QStringList("B"));
    QVERIFY(m_dialog->isVisible());
}

void TestConfigDialog::withoutARowNothingOpens_data()
{
    addControls({"setButton", "Return", "Enter", "F2"});
}

void TestConfigDialog::withoutARowNothingOpens()
{
    QFETCH(QString, control);
    m_names.setStringList({});
    openList();
    use(control);
    QCOMPARE(openSettings(), QStringList());
    QVERIFY(m_dialog->isVisible());
}

void TestConfigDialog::aRowIsNotEditedInPlace()
{
    openList();
    clickRow(1);
    use("double click");
    use("F2");
    QTest::keyClicks(list(), "xyz");
    QVERIFY(list()->viewport()->findChild<QLineEdit *>() == nullptr);
    QCOMPARE(m_names.stringList(), (QStringList{"A", "B", "C"}));
}

void TestConfigDialog::deleteTakesTheSettingAtOnce_data()
{
    addControls({"deleteButton", "Del"});
}

void TestConfigDialog::deleteTakesTheSettingAtOnce()
{
    QFETCH(QString, control);
    openList();
    clickRow(1);
    use(control);
    QCOMPARE(m_names.stringList(), (QStringList{"A", "C"}));
    QCOMPARE(settingNames(), (QStringList{"A", "C"}));
    QVERIFY(!m_folder->read(settingsFile).contains("\nB\\"));
    QVERIFY(loadCompanyInfo() == realCompany());
}

void TestConfigDialog::deleteMarksANeighbour_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("neighbour");

    QTest::newRow("first") << 0 << "B";
    QTest::newRow("between") << 1 << "C";
    QTest::newRow("last") << 2 << "B";
}

void TestConfigDialog::deleteMarksANeighbour()
{
    QFETCH(int, row);
    QFETCH(QString, neighbour);
    openList();
    clickRow(row);
    use("Del");
    QCOMPARE(list()->currentIndex().data().toString(), neighbour);
    QCOMPARE(markedNames(), QStringList(neighbour));
    use("Del");
    QVERIFY(!settingNames().contains(neighbour));
    QCOMPARE(settingNames().size(), 1);
    QCOMPARE(markedNames(), settingNames());
}

void TestConfigDialog::deletingTheLastLeavesAnEmptyList()
{
    openList();
    clickRow(0);
    for (int i = 0; i < 4; ++i)
        click("deleteButton");
    QCOMPARE(m_names.stringList(), QStringList());
    QCOMPARE(settingNames(), QStringList());
    QVERIFY(!list()->currentIndex().isValid());
}

void TestConfigDialog::withoutARowNothingIsDeleted_data()
{
    addControls({"deleteButton", "Del"});
}

void TestConfigDialog::withoutARowNothingIsDeleted()
{
    QFETCH(QString, control);
    const QByteArray before = m_folder->read(settingsFile);
    openList();
    if (control == "Del")
        m_names.setStringList({}); // the list's focus would make a row current
    use(control);
    QCOMPARE(m_names.rowCount(), control == "Del" ? 0 : 3);
    QCOMPARE(m_folder->read(settingsFile), before);
}

void TestConfigDialog::deletedStaysDeletedAfterCancel()
{
    openList();
    clickRow(2);
    click("deleteButton");
    click("cancelButton");
    QTRY_VERIFY(m_dialog.isNull());
    QCOMPARE(settingNames(), (QStringList{"A", "B"}));
    open();
    QCOMPARE(m_names.stringList(), (QStringList{"A", "B"}));
}

void TestConfigDialog::deletingKeepsASettingNestedInTheGroup()
{
    saveOutputItems("A/2월", {itemWithEveryFieldDifferent(2)});
    m_names.setStringList(settingNames());
    openList();
    clickRow(0);
    click("deleteButton");
    QCOMPARE(m_names.stringList(), settingNames());
    QCOMPARE(settingNames(), (QStringList{"A/2월", "B", "C"}));
    QVERIFY(loadOutputItems("A/2월").value(0) == itemWithEveryFieldDifferent(2));
    clickRow(0);
    click("deleteButton");
    QCOMPARE(settingNames(), (QStringList{"B", "C"}));
}

void TestConfigDialog::theRowThatDeleteTakesIsMarked()
{
    openList();
    QVERIFY(markedNames().isEmpty());
    list()->setFocus(Qt::TabFocusReason);
    QCOMPARE(markedNames(), QStringList("A"));
    QTest::keyClick(list(), Qt::Key_Down);
    QCOMPARE(markedNames(), QStringList("B"));
    QTest::keyClick(list(), Qt::Key_Delete);
    QCOMPARE(settingNames(), (QStringList{"A", "C"}));
}

QTEST_MAIN(TestConfigDialog)
#include "tst_configdialog.moc"
