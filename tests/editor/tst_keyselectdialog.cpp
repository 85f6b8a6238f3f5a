// The question for the matching columns. What it answers is what the user sees marked.
#include "editor/keyselectdialog.h"
#include "tests/editor/dialogtest.h"

#include <QLabel>

using KeyPair = InputModeModel::KeyPair;
Q_DECLARE_METATYPE(KeyPair)

class TestKeySelectDialog : public DialogTest
{
    Q_OBJECT

private slots:
    void widgets_data();
    void widgets();
    void isComplete();
    void listsHoldTheColumnsInTheirOrder();
    void opensWithThePreselection_data();
    void opensWithThePreselection();
    void clickedRowsAreTheKeys();
    void clickWithCtrlChoosesToo();
    void rowsOfTheKeyboardAreTheKeys();
    void focusAloneChoosesNothing();
    void whatTheKeyboardUnmarksIsNotChosen();
    void okWithoutAChoiceIsTheCallersMatter();
    void doubleClickOnlyChooses();
    void leaving_data();
    void leaving();
    void emptyListsAreNoTrouble();

private:
    void openDialog(KeyPair preselected = KeyPair())
    {
        m_keys = open(new KeySelectDialog({"주문번호", "수취인", "주문번호"},
                                          {"상품", "주문번호", "수량", ""}, preselected));
    }
    QString keys() const
    {
        return QStringLiteral("%1 %2").arg(m_keys->keys().targetKey).arg(m_keys->keys().key);
    }
    QString marked() const
    {
        const Columns items = markedRows("originalDataListWidget");
        const Columns heads = markedRows("newDataListWidget");
        return QStringLiteral("%1 %2").arg(items.value(0, -1)).arg(heads.value(0, -1));
    }

    const KeySelectDialog *m_keys = nullptr;
};

void TestKeySelectDialog::widgets_data()
{
    addWidgetColumns();
    const QString itemTip = "기존데이터에서 매칭할 항목을 선택합니다.";
    const QString headTip = "추가한 파일에서 매칭할 항목을 선택합니다.";
    // clang-format off
    QTest::newRow("label")                  << "QLabel"      << "매칭시 비교될 항목을 각각 선택해 주십시오" << "" << "" << "";
    QTest::newRow("groupBox")               << "QGroupBox"   << "기존데이터 항목"        << itemTip << ""      << "";
    QTest::newRow("originalDataListWidget") << "QListWidget" << ""                       << ""      << itemTip << "";
    QTest::newRow("groupBox_2")             << "QGroupBox"   << "추가될 파일데이터 항목" << headTip << ""      << "";
    QTest::newRow("newDataListWidget")      << "QListWidget" << ""                       << ""      << headTip << "";
    QTest::newRow("okButton")               << "QPushButton" << "선택" << "선택된 항목들로 매칭하여 입력양식을 추가합니다" << "" << "";
    QTest::newRow("cancelButton")           << "QPushButton" << "취소" << "입력양식을 추가하지 않습니다"                   << "" << "";
    // clang-format on
}

void TestKeySelectDialog::widgets()
{
    openDialog();
    checkWidget();
}

void TestKeySelectDialog::isComplete()
{
    openDialog();
    QCOMPARE(m_dialog->windowTitle(), QString("항목매칭"));
    QVERIFY(m_dialog->isModal());
    QCOMPARE(namelessWidgets(), QString());
    QCOMPARE(deafButtons(), QString());
    QCOMPARE(cutTexts(), QString());
    QCOMPARE(tabOrder("originalDataListWidget"),
             QString("originalDataListWidget newDataListWidget okButton cancelButton"));
    QVERIFY(find<QPushButton>("okButton")->isDefault());
}

void TestKeySelectDialog::listsHoldTheColumnsInTheirOrder()
{
    openDialog();
    QCOMPARE(texts("originalDataListWidget"), QStringList({"주문번호", "수취인", "주문번호"}));
    QCOMPARE(texts("newDataListWidget"), QStringList({"상품", "주문번호", "수량", ""}));
}

void TestKeySelectDialog::opensWithThePreselection_data()
{
    QTest::addColumn<KeyPair>("preselected");
    QTest::addColumn<QString>("keys");
    QTest::newRow("a pair") << KeyPair{2, 1} << "2 1";
    QTest::newRow("the first of each") << KeyPair{0, 0} << "0 0";
    QTest::newRow("none") << KeyPair{-1, -1} << "-1 -1";
    QTest::newRow("an item without a heading counts as none") << KeyPair{1, -1} << "-1 -1";
    QTest::newRow("a heading without an item counts as none") << KeyPair{-1, 1} << "-1 -1";
}

void TestKeySelectDialog::opensWithThePreselection()
{
    QFETCH(KeyPair, preselected);
    openDialog(preselected);
    QTEST(keys(), "keys");
    QTEST(marked(), "keys");
    QTest::keyClick(m_dialog.get(), Qt::Key_Return);
    QVERIFY(!isOpen());
    QTEST(keys(), "keys");
}

void TestKeySelectDialog::clickedRowsAreTheKeys()
{
    openDialog();
    clickRow("originalDataListWidget", 2);
    QCOMPARE(keys(), QString("2 -1"));
    clickRow("newDataListWidget", 0);
    QCOMPARE(keys(), QString("2 0"));
    clickRow("originalDataListWidget", 1);
    QCOMPARE(keys(), QString("1 0"));
    QCOMPARE(marked(), QString("1 0"));
    click("okButton");
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QCOMPARE(keys(), QString("1 0"));
}

void TestKeySelectDialog::clickWithCtrlChoosesToo()
{
    openDialog({1, 1});
    for (const char *list : {"originalDataListWidget", "newDataListWidget"})
        clickRow(list, 1, Qt::ControlModifier);
    QCOMPARE(marked(), QString("1 1"));
    QCOMPARE(keys(), QString("1 1"));
}

void TestKeySelectDialog::rowsOfTheKeyboardAreTheKeys()
{
    openDialog({0, 0});
    auto *items = find<QListWidget>("originalDataListWidget");
    auto *heads = find<QListWidget>("newDataListWidget");
    QVERIFY(items->hasFocus());
    QTest::keyClick(items, Qt::Key_Down);
    QCOMPARE(keys(), QString("1 0"));
    QTest::keyClick(items, Qt::Key_Tab);
    QVERIFY(heads->hasFocus());
    QTest::keyClick(heads, Qt::Key_End);
    QCOMPARE(keys(), QString("1 3"));
    QTest::keyClick(heads, Qt::Key_Up);
    QCOMPARE(keys(), QString("1 2"));
    QCOMPARE(marked(), QString("1 2"));
    QTest::keyClick(heads, Qt::Key_Return);
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QCOMPARE(keys(), QString("1 2"));
}

void TestKeySelectDialog::focusAloneChoosesNothing()
{
    openDialog();
    auto *items = find<QListWidget>("originalDataListWidget");
    auto *heads = find<QListWidget>("newDataListWidget");
    QVERIFY(items->hasFocus());
    QCOMPARE(items->currentRow(), 0); // the focus has made it so
    QTest::keyClick(items, Qt::Key_Tab);
    QVERIFY(heads->hasFocus());
    QCOMPARE(marked(), QString("-1 -1"));
    QCOMPARE(keys(), QString("-1 -1"));
    QTest::keyClick(heads, Qt::Key_Space); // chooses it where it stands
    QCOMPARE(marked(), QString("-1 0"));
    QCOMPARE(keys(), QString("-1 0"));
}

void TestKeySelectDialog::whatTheKeyboardUnmarksIsNotChosen()
{
    openDialog({0, 0});
    QTest::keyClick(find<QListWidget>("originalDataListWidget"), Qt::Key_Space,
                    Qt::ControlModifier);
    QCOMPARE(marked(), QString("-1 0"));
    QCOMPARE(keys(), QString("-1 0"));
}

void TestKeySelectDialog::okWithoutAChoiceIsTheCallersMatter()
{
    openDialog();
    clickRow("newDataListWidget", 1);
    click("okButton");
    QVERIFY(!isOpen());
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QCOMPARE(keys(), QString("-1 1"));
}

void TestKeySelectDialog::doubleClickOnlyChooses()
{
    openDialog();
    const auto *items = find<QListWidget>("originalDataListWidget");
    clickRow("originalDataListWidget", 1);
    QTest::mouseDClick(items->viewport(), Qt::LeftButton, Qt::KeyboardModifiers(),
                       items->visualItemRect(items->item(1)).center());
    QVERIFY(isOpen());
    QCOMPARE(texts("originalDataListWidget").value(1), QString("수취인"));
    QCOMPARE(keys(), QString("1 -1"));
}

void TestKeySelectDialog::leaving_data()
{
    QTest::addColumn<bool>("withEscape");
    QTest::newRow("cancelButton") << false;
    QTest::newRow("Escape") << true;
}

void TestKeySelectDialog::leaving()
{
    QFETCH(bool, withEscape);
    openDialog({0, 0});
    if (withEscape)
        QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
    else
        click("cancelButton");
    QVERIFY(!isOpen());
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
}

void TestKeySelectDialog::emptyListsAreNoTrouble()
{
    m_keys = open(new KeySelectDialog({}, {}, KeyPair{0, 0}));
    auto *items = find<QListWidget>("originalDataListWidget");
    QTest::mouseClick(items->viewport(), Qt::LeftButton);
    QTest::keyClick(items, Qt::Key_Down);
    click("okButton");
    QCOMPARE(keys(), QString("-1 -1"));
}

QTEST_MAIN(TestKeySelectDialog)
#include "tst_keyselectdialog.moc"
