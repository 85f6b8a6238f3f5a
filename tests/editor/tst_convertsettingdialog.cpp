// The convert setting dialog: its form, loading and saving, the output items and the statement.
#include "editor/editconditionsdialog.h"
#include "tests/app/answermessagebox.h"
#include "tests/editor/convertsettingtest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QTabWidget>

class TestConvertSettingDialog : public ConvertSettingTest
{
    Q_OBJECT

private slots:
    void widgets_data();
    void widgets();
    void isComplete();

    void newSettingIsEmpty();
    void showsWhatIsStored();
    void savesWhatItLoaded();
    void fontThatIsNotInstalledIsKept();
    void returnPressesTheButtonWithTheFocus();
    void nameIsRequired();
    void titleIsRequiredForAStatement();
    void titleIsNotRequiredWithoutAStatement();
    void newSettingIsAddedToTheNames();
    void renamedSettingKeepsItsRow();
    void existingNameIsWrittenOver();
    void cancelWritesNothing_data();
    void cancelWritesNothing();

    void itemsAreAddedAndNamed();
    void itemIsInsertedBeforeTheCurrentOne();
    void itemIsDeleted_data();
    void itemIsDeleted();
    void itemsAreMoved_data();
    void itemsAreMoved();
    void nothingHappensWithoutACurrentItem();
    void clickTogglesDistinctOnce();
    void doubleClickOpensTheEditor_data();
    void doubleClickOpensTheEditor();
    void conditionsWithoutEntriesOpenNothing();
    void droppedConditionIsAskedForAtOnce();
    void deletedConditionOpensNoFurtherEditor();

    void statementTabFollowsItsCheckBox();
    void clickTogglesPrintOnce();
    void doubleClickOnPrintSelectsTheOutputCell();
    void statementFieldsTakeNoCompanyFields();
};

void TestConvertSettingDialog::widgets_data()
{
    addWidgetColumns();
    const auto row = [](const char *name, const char *type, const char *text, const char *tip,
                        const char *accessibleName = "", const char *icon = "") {
        QTest::newRow(name) << type << QString(text) << QString(tip) << QString(accessibleName)
                            << icon;
    };
    row("label", "QLabel", "설정 이름:", "");
    row("settingNameEdit", "QLineEdit", "", "현재 설정을 식별할 이름을 지정합니다");
    row("CompanyInfoGroupBox", "DragGroupBox", "회사정보",
        "항목을 출력양식으로 드래그 하여 추가합니다");
    row("companyName", "QLabel", "회사명", "출력양식으로 드래그 하면 회사명이 추가됩니다");
    row("storeName", "QLabel", "판매처명", "출력양식으로 드래그 하면 판매처명이 추가됩니다");
    row("storeSite", "QLabel", "판매사이트", "출력양식으로 드래그 하면 판매사이트가 추가됩니다");
    row("postCode", "QLabel", "우편번호", "출력양식으로 드래그 하면 회사 우편번호가 추가됩니다");
    row("address", "QLabel", "주소", "출력양식으로 드래그 하면 회사 주소가 추가됩니다");
    row("phone", "QLabel", "전화번호", "출력양식으로 드래그 하면 회사 전화번호가 추가됩니다");
    row("fax", "QLabel", "팩스번호", "출력양식으로 드래그 하면 회사 팩스번호가 추가됩니다");
    row("email", "QLabel", "전자우편", "출력양식으로 드래그 하면 회사 이메일주소가 추가됩니다");
    row("groupBox", "QGroupBox", "입력양식", "항목을 출력양식으로 드래그하여 추가합니다");
    row("inputFileComboBox", "QComboBox", "", "선택된 양식파일의 첫 항목으로 이동합니다",
        "선택된 양식파일의 첫 항목으로 이동합니다");
    row("addInputFileButton", "QPushButton", "입력양식 추가",
        "입력될 양식을 파일에서 불러와 추가합니다", "", "table_add");
    row("clearInputFileButton", "QPushButton", "입력양식 비우기", "입력양식을 초기화 합니다", "",
        "table_delete");
    row("InputModeView", "QTableView", "", "", "입력양식");
    row("groupBox_2", "QGroupBox", "출력양식", "");
    row("addItemButton", "QPushButton", "항목 추가", "새로운 출력항목을 마지막에 추가합니다", "",
        "table_col_add");
    row("insertItemButton", "QPushButton", "항목 삽입",
        "새로운 출력항목을 선택된 위치에 삽입합니다", "", "table_col_insert");
    row("deleteItemButton", "QPushButton", "항목 삭제", "선택된 항목을 삭제합니다", "",
        "table_col_delete");
    row("pdfCheckBox", "QCheckBox", "구매 명세서 생성", "구매 명세서 PDF파일을 생성합니다");
    row("leftButton", "QPushButton", "", "선택된 항목을 왼쪽으로 이동합니다",
        "선택된 항목을 왼쪽으로 이동합니다", "arrow_left");
    row("rightButton", "QPushButton", "", "선택된 항목을 오른쪽으로 이동합니다",
        "선택된 항목을 오른쪽으로 이동합니다", "arrow_right");
    row("outputModeView", "QTableView", "", "", "출력양식");
    row("label_4", "QLabel", "제목 :", "");
    row("titleLineEdit", "QLineEdit", "", "명세서 상단에 출력될 제목을 지정합니다");
    row("label_5", "QLabel", "글꼴 :", "");
    row("fontComboBox", "QFontComboBox", "", "명세서에 사용될 글꼴을 지정합니다.");
    row("pdfModelView", "QTableView", "", "", "구매명세서");
    row("groupBox_3", "QGroupBox", "회사정보 출력여부", "");
    row("companyNameCheckBox", "QCheckBox", "회사명", "체크하여 회사명을 출력합니다.");
    row("storeNameCheckBox", "QCheckBox", "판매처명", "체크하여 판매처명을 출력합니다.");
    row("storeSiteCheckBox", "QCheckBox", "판매사이트", "체크하여 판매사이트 주소를 출력합니다.");
    row("storePostCodeCheckBox", "QCheckBox", "우편번호", "체크하여 우편번호를 출력합니다.");
    row("storeAddressCheckBox", "QCheckBox", "주소", "체크하여 주소를 출력합니다.");
    row("storeTelCheckBox", "QCheckBox", "전화번호", "체크하여 전화번호를 출력합니다.");
    row("storeFaxCheckBox", "QCheckBox", "팩스번호", "체크하여 팩스번호를 출력합니다.");
    row("storeEmailCheckBox", "QCheckBox", "전자우편", "체크하여 전자우편 주소를 출력합니다.");
    row("label_2", "QLabel", "구매감사 문구 :", "");
    row("mentTextEdit", "QPlainTextEdit", "",
        "수신자 주소 아래에 표시될 구매감사 문구를 지정합니다");
    row("label_3", "QLabel", "명세서 안내문구 :", "");
    row("commentTextEdit", "QPlainTextEdit", "", "명세서 관련 안내문구를 지정합니다");
    row("saveButton", "QPushButton", "저장", "변경된 사항을 저장합니다", "", "tick");
    row("cancelButton", "QPushButton", "취소", "변경된 사항을 저장하지 않습니다", "", "cross");
}

void TestConvertSettingDialog::widgets()
{
    openNew();
    if (QTest::currentDataTag() == QByteArray("fontComboBox")) {
        QCOMPARE(find<QWidget>("fontComboBox")->toolTip(),
                 QString("명세서에 사용될 글꼴을 지정합니다."));
        QCOMPARE(find<QWidget>("fontComboBox")->statusTip(),
                 QString("명세서에 사용될 글꼴을 지정합니다."));
        return; // its text is a font
    }
    checkWidget();
}

void TestConvertSettingDialog::isComplete()
{
    openSetting();
    QCOMPARE(m_dialog->windowTitle(), QString("변환설정"));
    QVERIFY(find<QPushButton>("saveButton")->isDefault());
    QCOMPARE(namelessWidgets(), QString());
    QCOMPARE(deafButtons(), QString());
    QCOMPARE(cutTexts(), QString());
    auto *tabs = find<QTabWidget>("outputTabWidget");
    QCOMPARE(tabs->tabText(0), QString("CSV 파일"));
    QCOMPARE(tabs->tabText(1), QString("구매명세서"));
    QCOMPARE(tabs->widget(0)->objectName(), QString("csvFileTab"));
    QCOMPARE(tabs->widget(1)->objectName(), QString("pdfTab"));
    tabs->setCurrentIndex(1);
    QCOMPARE(namelessWidgets(), QString());
    QCOMPARE(cutTexts(), QString());
    QCOMPARE(find<QLineEdit>("titleLineEdit")->placeholderText(),
             QString("명세서 상단에 출력될 제목을 지정합니다"));
}

// --- loading and saving -----------------------------------------------------------------------

void TestConvertSettingDialog::newSettingIsEmpty()
{
    openNew();
    QCOMPARE(find<QLineEdit>("settingNameEdit")->text(), QString());
    QVERIFY(!find<QCheckBox>("pdfCheckBox")->isChecked());
    QVERIFY(!find<QTabWidget>("outputTabWidget")->isTabEnabled(1));
    const QList<QCheckBox *> flags = find<QWidget>("groupBox_3")->findChildren<QCheckBox *>();
    QCOMPARE(flags.size(), 8);
    for (const QCheckBox *flag : flags)
        QVERIFY(flag->isChecked());
    QCOMPARE(output()->columnCount(), 0);
    QCOMPARE(find<QComboBox>("inputFileComboBox")->count(), 0);
}

void TestConvertSettingDialog::showsWhatIsStored()
{
    openSetting();
    QCOMPARE(find<QLineEdit>("settingNameEdit")->text(), QString("sample"));
    QCOMPARE(itemNames(), (QStringList{"number", "who"}));
    QCOMPARE(view("InputModeView")->model()->index(0, 1).data().toString(), QString("name"));
    QCOMPARE(find<QComboBox>("inputFileComboBox")->currentText(), QString("orders"));
    QVERIFY(find<QCheckBox>("pdfCheckBox")->isChecked());
    QVERIFY(find<QTabWidget>("outputTabWidget")->isTabEnabled(1));
    QCOMPARE(find<QLineEdit>("titleLineEdit")->text(), QString("Statement"));
    QCOMPARE(find<QPlainTextEdit>("mentTextEdit")->toPlainText(), QString("thanks\nagain"));
    QCOMPARE(find<QPlainTextEdit>("commentTextEdit")->toPlainText(), QString("comment"));
    QCOMPARE(find<QFontComboBox>("fontComboBox")->currentFont().family(), QString("DejaVu Sans"));
    QVERIFY(!find<QCheckBox>("storeFaxCheckBox")->isChecked());
    QVERIFY(find<QCheckBox>("storeTelCheckBox")->isChecked());
    QVERIFY(fields()->fields()[StatementFields::Name].toPrint);
}

void TestConvertSettingDialog::savesWhatItLoaded()
{
    const InputSetting input = loadInputSetting("sample");
    const QList<OutputItem> items = loadOutputItems("sample");
    const StatementSetting statement = loadStatementSetting("sample");
    openSetting();
    click("saveButton");
    QVERIFY(!isOpen());
    QVERIFY(loadInputSetting("sample") == input);
    QVERIFY(loadOutputItems("sample") == items);
    QVERIFY(loadStatementSetting("sample") == statement);
    QCOMPARE(m_names.stringList(), QStringList{"sample"});
}

// A shop shares its settings between computers that have different fonts.
void TestConvertSettingDialog::fontThatIsNotInstalledIsKept()
{
    StatementSetting statement = loadStatementSetting("sample");
    statement.font = "없는 글꼴";
    saveStatementSetting("sample", statement);
    openSetting();
    QCOMPARE(find<QComboBox>("fontComboBox")->currentText(), QString("없는 글꼴"));
    click("saveButton");
    QCOMPARE(loadStatementSetting("sample").font, QString("없는 글꼴"));

    openSetting();
    find<QFontComboBox>("fontComboBox")->setCurrentFont(QFont("DejaVu Serif"));
    click("saveButton");
    QCOMPARE(loadStatementSetting("sample").font, QString("DejaVu Serif"));
}

void TestConvertSettingDialog::returnPressesTheButtonWithTheFocus()
{
    openSetting();
    const QByteArray before = m_folder->read("quorinConverter.dat");
    find<QPushButton>("addItemButton")->setFocus();
    QTest::keyClick(find<QPushButton>("addItemButton"), Qt::Key_Return);
    QVERIFY(isOpen());
    QCOMPARE(itemNames().size(), 3);
    find<QWidget>("companyName")->setFocus();
    QTest::keyClick(find<QWidget>("companyName"), Qt::Key_Return);
    QVERIFY(isOpen());
    QTest::keyClick(find<QPushButton>("cancelButton"), Qt::Key_Return);
    QVERIFY(!isOpen());
    QCOMPARE(m_folder->read("quorinConverter.dat"), before);
}

void TestConvertSettingDialog::nameIsRequired()
{
    openSetting();
    find<QLineEdit>("settingNameEdit")->clear();
    find<QLineEdit>("titleLineEdit")->clear(); // the name is asked for first
    const QByteArray before = m_folder->read("quorinConverter.dat");
    const AnswerMessageBox box(Qt::Key_Return);
    click("saveButton");
    QCOMPARE(box.title, QString("Error"));
    QCOMPARE(box.text, QString("Name field is required."));
    QCOMPARE(box.icon, QMessageBox::Warning);
    QVERIFY(isOpen());
    QCOMPARE(m_dialog->focusWidget(), find<QLineEdit>("settingNameEdit"));
    QCOMPARE(m_folder->read("quorinConverter.dat"), before);
}

void TestConvertSettingDialog::titleIsRequiredForAStatement()
{
    openSetting();
    find<QLineEdit>("titleLineEdit")->clear();
    const QByteArray before = m_folder->read("quorinConverter.dat");
    const AnswerMessageBox box(Qt::Key_Return);
    click("saveButton");
    QCOMPARE(box.title, QString("Error"));
    QCOMPARE(box.text, QString("PDF title field is required."));
    QVERIFY(isOpen());
    QCOMPARE(find<QTabWidget>("outputTabWidget")->currentIndex(), 1);
    QCOMPARE(m_dialog->focusWidget(), find<QLineEdit>("titleLineEdit"));
    QCOMPARE(m_folder->read("quorinConverter.dat"), before);
}

void TestConvertSettingDialog::titleIsNotRequiredWithoutAStatement()
{
    openSetting();
    find<QLineEdit>("titleLineEdit")->clear();
    click("pdfCheckBox");
    click("saveButton");
    QVERIFY(!isOpen());
    QVERIFY(!loadStatementSetting("sample").generate);
    QCOMPARE(loadStatementSetting("sample").title, QString());
}

void TestConvertSettingDialog::newSettingIsAddedToTheNames()
{
    m_names.setStringList({"sample"});
    openNew();
    type(find<QLineEdit>("settingNameEdit"), "새 설정");
    click("saveButton");
    QVERIFY(!isOpen());
    QCOMPARE(m_names.stringList(), (QStringList{"sample", "새 설정"}));
    QCOMPARE(settingNames().size(), 2);
    QVERIFY(settingNames().contains("새 설정"));
    // The whole of the statement is written, although nobody has touched it.
    QVERIFY(m_folder->read("quorinConverter.dat").contains("C.O.D.Charge\\toPrint=false"));
}

void TestConvertSettingDialog::renamedSettingKeepsItsRow()
{
    saveSample("another");
    openSetting(settingNames().indexOf("sample"));
    const int row = m_names.stringList().indexOf("sample");
    find<QLineEdit>("settingNameEdit")->setText("renamed");
    click("saveButton");
    QCOMPARE(m_names.rowCount(), 2);
    QCOMPARE(m_names.stringList().at(row), QString("renamed"));
    QCOMPARE(settingNames(), (QStringList{"another", "renamed"}));
    QCOMPARE(loadOutputItems("renamed").size(), 2);
}

void TestConvertSettingDialog::existingNameIsWrittenOver()
{
    m_names.setStringList({"sample"});
    openNew();
    type(find<QLineEdit>("settingNameEdit"), "sample");
    click("saveButton");
    QCOMPARE(m_names.stringList(), (QStringList{"sample", "sample"}));
    QCOMPARE(settingNames(), QStringList{"sample"});
    QCOMPARE(loadOutputItems("sample").size(), 0);
}

void TestConvertSettingDialog::cancelWritesNothing_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("button") << false;
    QTest::newRow("Escape") << true;
}

void TestConvertSettingDialog::cancelWritesNothing()
{
    QFETCH(bool, byKey);
    openSetting();
    const QByteArray before = m_folder->read("quorinConverter.dat");
    click("addItemButton");
    click("clearInputFileButton");
    find<QLineEdit>("settingNameEdit")->setText("renamed");
    if (byKey)
        QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
    else
        click("cancelButton");
    QVERIFY(!isOpen());
    QCOMPARE(m_folder->read("quorinConverter.dat"), before);
    QCOMPARE(m_names.stringList(), QStringList{"sample"});
}

// --- output items -----------------------------------------------------------------------------

void TestConvertSettingDialog::itemsAreAddedAndNamed()
{
    openNew();
    for (const char *name : {"first", "second"}) {
        click("addItemButton");
        auto *editor = view("outputModeView")->findChild<QLineEdit *>();
        QVERIFY(editor != nullptr);
        QTRY_VERIFY(editor->hasFocus());
        QTest::keyClicks(editor, QLatin1String(name));
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_VERIFY(view("outputModeView")->findChild<QLineEdit *>() == nullptr);
    }
    QVERIFY(isOpen());
    QCOMPARE(itemNames(), (QStringList{"first", "second"}));
    QCOMPARE(view("outputModeView")->currentIndex(), output()->index(0, 1));
}

void TestConvertSettingDialog::itemIsInsertedBeforeTheCurrentOne()
{
    openSetting();
    clickCell("outputModeView", OutputModeModel::MergeRow, 1);
    click("insertItemButton");
    QCOMPARE(itemNames(), (QStringList{"number", "", "who"}));
    QCOMPARE(view("outputModeView")->currentIndex(), output()->index(0, 1));
    QVERIFY(view("outputModeView")->findChild<QLineEdit *>() != nullptr);
}

void TestConvertSettingDialog::itemIsDeleted_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("button") << false;
    QTest::newRow("Delete") << true;
}

void TestConvertSettingDialog::itemIsDeleted()
{
    QFETCH(bool, byKey);
    openSetting();
    clickCell("outputModeView", OutputModeModel::OutputRow, 0);
    if (byKey)
        QTest::keyClick(view("outputModeView"), Qt::Key_Delete);
    else
        click("deleteItemButton");
    QCOMPARE(itemNames(), QStringList{"who"});
    QVERIFY(!view("outputModeView")->currentIndex().isValid());
    QVERIFY(!view("outputModeView")->selectionModel()->hasSelection());
}

void TestConvertSettingDialog::itemsAreMoved_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<bool>("left");
    QTest::addColumn<bool>("byKey");
    QTest::addColumn<int>("to");
    for (const bool byKey : {false, true}) {
        const char *how = byKey ? "key" : "button";
        QTest::addRow("left by %s", how) << 1 << true << byKey << 0;
        QTest::addRow("right by %s", how) << 0 << false << byKey << 1;
        QTest::addRow("first one left by %s", how) << 0 << true << byKey << 0;
        QTest::addRow("last one right by %s", how) << 1 << false << byKey << 1;
    }
}

void TestConvertSettingDialog::itemsAreMoved()
{
    QFETCH(int, from);
    QFETCH(bool, left);
    QFETCH(bool, byKey);
    QFETCH(int, to);
    openSetting();
    const QString moved = itemNames().at(from);
    clickCell("outputModeView", OutputModeModel::OutputRow, from);
    if (byKey)
        QTest::keyClick(view("outputModeView"), left ? Qt::Key_Left : Qt::Key_Right,
                        Qt::AltModifier);
    else
        click(left ? "leftButton" : "rightButton");
    QCOMPARE(itemNames().indexOf(moved), to);
    QCOMPARE(view("outputModeView")->currentIndex().column(), to);
    if (from != to) {
        QCOMPARE(view("outputModeView")->currentIndex().row(), 0);
        QVERIFY(view("outputModeView")->hasFocus());
    }
}

void TestConvertSettingDialog::nothingHappensWithoutACurrentItem()
{
    openSetting();
    view("outputModeView")->setCurrentIndex(QModelIndex());
    for (const char *button : {"insertItemButton", "deleteItemButton", "leftButton", "rightButton"})
        click(button);
    QCOMPARE(itemNames(), (QStringList{"number", "who"}));
}

void TestConvertSettingDialog::clickTogglesDistinctOnce()
{
    openSetting();
    const int row = OutputModeModel::DistinctRow;
    clickCell("outputModeView", row, 1);
    QCOMPARE(output()->item(1).distinct, QString("YES"));
    QCOMPARE(view("outputModeView")->currentIndex(), output()->index(row, 1));
    clickCell("outputModeView", row, 1);
    QCOMPARE(output()->item(1).distinct, QString("NO"));
    QTest::keyClick(view("outputModeView"), Qt::Key_Space);
    QCOMPARE(output()->item(1).distinct, QString("YES"));
    doubleClickCell("outputModeView", row, 1);
    QCOMPARE(view("outputModeView")->currentIndex(), output()->index(0, 1));
}

void TestConvertSettingDialog::doubleClickOpensTheEditor_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QStringList>("editors");
    QTest::newRow("Name") << int(OutputModeModel::NameRow) << QStringList();
    QTest::newRow("Output") << int(OutputModeModel::OutputRow)
                            << QStringList{"EditOutputItemsDialog"};
    QTest::newRow("Conditions") << int(OutputModeModel::ConditionsRow)
                                << QStringList{"EditConditionsDialog"};
    QTest::newRow("Rules") << int(OutputModeModel::RulesRow) << QStringList{"RuleDialog"};
    QTest::newRow("Distinct") << int(OutputModeModel::DistinctRow) << QStringList();
    QTest::newRow("Merge") << int(OutputModeModel::MergeRow) << QStringList{"MergeDialog"};
}

void TestConvertSettingDialog::doubleClickOpensTheEditor()
{
    QFETCH(int, row);
    QFETCH(QStringList, editors);
    openSetting();
    doubleClickCell("outputModeView", row, 1);
    QCOMPARE(openEditors(), editors);
    for (QDialog *editor : m_dialog->findChildren<QDialog *>()) {
        QVERIFY(editor->isModal());
        editor->close();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(m_dialog->findChildren<QDialog *>().isEmpty());

    // The same by the keyboard; a name is edited in its cell.
    view("outputModeView")->setCurrentIndex(output()->index(row, 1));
    QTest::keyClick(view("outputModeView"), Qt::Key_F2);
    // Distinct has no editor; the double click leads to the name.
    if (row != OutputModeModel::DistinctRow && row != OutputModeModel::NameRow)
        QCOMPARE(openEditors(), editors);
    QVERIFY(row != OutputModeModel::NameRow
            || view("outputModeView")->findChild<QLineEdit *>() != nullptr);
}

void TestConvertSettingDialog::conditionsWithoutEntriesOpenNothing()
{
    openSetting();
    doubleClickCell("outputModeView", OutputModeModel::ConditionsRow, 0);
    QCOMPARE(openEditors(), QStringList());
}

void TestConvertSettingDialog::droppedConditionIsAskedForAtOnce()
{
    openSetting();
    QVERIFY(drop(output(), OutputModeModel::OutputRow, 1, {{InputSource, 0, "no"}}));
    QCOMPARE(openEditors(), QStringList());
    QVERIFY(drop(output(), OutputModeModel::ConditionsRow, 1, {{InputSource, 1, "name"}}));
    QCOMPARE(openEditors(), QStringList{"EditConditionsDialog"});
    QCOMPARE(
        child<EditConditionsDialog>()->findChild<QListWidget *>("itemListWidget")->currentRow(), 1);
}

void TestConvertSettingDialog::deletedConditionOpensNoFurtherEditor()
{
    openSetting();
    doubleClickCell("outputModeView", OutputModeModel::ConditionsRow, 1);
    auto *editor = child<EditConditionsDialog>();
    QTest::mouseClick(editor->findChild<QPushButton *>("delButton"), Qt::LeftButton);
    QCOMPARE(output()->item(1).conditions, QStringList());
    QCOMPARE(openEditors().size(), 1);
    QTest::mouseClick(editor->findChild<QPushButton *>("okButton"), Qt::LeftButton);
    QCOMPARE(openEditors(), QStringList());
}

// --- the statement ----------------------------------------------------------------------------

void TestConvertSettingDialog::statementTabFollowsItsCheckBox()
{
    openNew();
    auto *tabs = find<QTabWidget>("outputTabWidget");
    click("pdfCheckBox");
    QVERIFY(tabs->isTabEnabled(1));
    click("pdfCheckBox");
    QVERIFY(!tabs->isTabEnabled(1));
}

void TestConvertSettingDialog::clickTogglesPrintOnce()
{
    openSetting();
    find<QTabWidget>("outputTabWidget")->setCurrentIndex(1);
    clickCell("pdfModelView", PdfSetModel::PrintRow, 2);
    QVERIFY(fields()->fields()[2].toPrint);
    QCOMPARE(view("pdfModelView")->currentIndex(), fields()->index(0, 2));
    QTest::keyClick(view("pdfModelView"), Qt::Key_Space);
    QVERIFY(!fields()->fields()[2].toPrint);
}

void TestConvertSettingDialog::doubleClickOnPrintSelectsTheOutputCell()
{
    openSetting();
    find<QTabWidget>("outputTabWidget")->setCurrentIndex(1);
    doubleClickCell("pdfModelView", PdfSetModel::PrintRow, 1);
    QCOMPARE(view("pdfModelView")->currentIndex(), fields()->index(PdfSetModel::OutputRow, 1));
}

void TestConvertSettingDialog::statementFieldsTakeNoCompanyFields()
{
    openSetting();
    QVERIFY(!drop(fields(), PdfSetModel::OutputRow, 1, {{CompanySource, 4, "주소"}}));
    QVERIFY(drop(fields(), PdfSetModel::OutputRow, 1, {{InputSource, 1, "name"}}));
    QCOMPARE(fields()->fields()[1].mappings, QStringList{"name"});
    QCOMPARE(openEditors(), QStringList());
}

int main(int argc, char *argv[])
{
    return runConvertSettingTest<TestConvertSettingDialog>(argc, argv);
}

#include "tst_convertsettingdialog.moc"
