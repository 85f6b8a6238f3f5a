// The editor of the merge option of one item.
#include "editor/mergedialog.h"
#include "tests/app/answermessagebox.h"
#include "tests/editor/dialogtest.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QStackedWidget>

class TestMergeDialog : public DialogTest
{
    Q_OBJECT

private slots:
    void widgets_data();
    void widgets();
    void isComplete();
    void opensWithWhatIsStored_data();
    void opensWithWhatIsStored();
    void separatorCanBeSetExactlyWhileTextsAreMerged();
    void separatorTypeTurnsThePage();

    void okWithoutAChangeChangesNothing_data();
    void okWithoutAChangeChangesNothing();
    void okStoresTheChoice_data();
    void okStoresTheChoice();
    void typedSeparatorIsStoredAsItStands_data();
    void typedSeparatorIsStoredAsItStands();
    void lineBreakOfTheRadioButtonIsStored_data();
    void lineBreakOfTheRadioButtonIsStored();
    void missingLineBreakIsRefused();
    void missingLineBreakDoesNotMatterWithoutTexts();
    void leavingChangesNothing_data();
    void leavingChangesNothing();
    void changesOfTheItemWhileTheDialogIsOpenAreKept();

private:
    void openDialog()
    {
        open(new MergeDialog(&m_model, m_model.index(OutputModeModel::MergeRow, column)));
    }
    void openWith(const QString &merge, const QString &separator)
    {
        setItem(itemWith(merge, separator));
        openDialog();
    }
    static OutputItem itemWith(const QString &merge, const QString &separator)
    {
        OutputItem item = fullItem();
        item.merge = merge;
        item.mergeSeparator = separator;
        return item;
    }
    int chosen(const char *combo) const { return find<QComboBox>(combo)->currentIndex(); }
    // With the keyboard, as the list of a combo box is a window of its own.
    void choose(const char *combo, int index)
    {
        auto *box = find<QComboBox>(combo);
        QTest::keyClick(box, Qt::Key_Home);
        for (int row = 0; row < index; ++row)
            QTest::keyClick(box, Qt::Key_Down);
        QCOMPARE(box->currentIndex(), index);
    }
    QString checkedRadioButton() const
    {
        QStringList names;
        for (const char *name : {"lfRadioButton", "crlfRadioButton"}) {
            if (find<QRadioButton>(name)->isChecked())
                names.append(name);
        }
        return names.join(' ');
    }
    QString lineEdit() const { return find<QLineEdit>("separatorLineEdit")->text(); }
};

// --- the form ---------------------------------------------------------------------------------

void TestMergeDialog::widgets_data()
{
    addWidgetColumns();
    // clang-format off
    QTest::newRow("mergeTypeComboBox") << "QComboBox"    << ""               << "중복제거시 병합여부와 방식을 설정합니다"                 << ""                                       << "";
    QTest::newRow("separatorGroupBox") << "QGroupBox"    << ""               << ""                                                        << ""                                       << "";
    QTest::newRow("separatorComboBox") << "QComboBox"    << ""               << "문자열 병합시 항목사이에 추가될 연결자 유형을 선택합니다" << ""                                      << "";
    QTest::newRow("separatorLineEdit") << "QLineEdit"    << ""               << "항목사이에 추가될 연결문자를 지정합니다"                 << "항목사이에 추가될 연결문자를 지정합니다" << "";
    QTest::newRow("lfRadioButton")     << "QRadioButton" << "LF(\\n)"        << "LF개행 코드를 삽입합니다"                                << ""                                       << "";
    QTest::newRow("crlfRadioButton")   << "QRadioButton" << "CRLF(\\r\\n)"   << "CRLF개행 코드를 삽입합니다"                              << ""                                       << "";
    QTest::newRow("okButton")          << "QPushButton"  << "확인"           << "변경사항을 저장합니다"                                   << ""                                       << "tick";
    QTest::newRow("cancelButton")      << "QPushButton"  << "취소"           << "변경사항을 저장하지 않습니다"                            << ""                                       << "cross";
    // clang-format on
}

void TestMergeDialog::widgets()
{
    setItem(OutputItem());
    openDialog();
    checkWidget();
}

void TestMergeDialog::isComplete()
{
    openDialog();
    QCOMPARE(m_dialog->windowTitle(), QString("병합 설정"));
    QVERIFY(m_dialog->isModal());
    QCOMPARE(namelessWidgets(), QString());
    QCOMPARE(deafButtons(), QString());
    QCOMPARE(cutTexts(), QString());
    QCOMPARE(tabOrder("mergeTypeComboBox"),
             QString("mergeTypeComboBox separatorComboBox separatorLineEdit lfRadioButton "
                     "crlfRadioButton okButton cancelButton"));
    QVERIFY(find<QPushButton>("okButton")->isDefault());

    const auto entries = [this](const char *name) {
        const auto *combo = find<QComboBox>(name);
        QStringList entries;
        for (int index = 0; index < combo->count(); ++index)
            entries.append(combo->itemText(index));
        return entries;
    };
    QCOMPARE(entries("mergeTypeComboBox"), QStringList({"병합 안함", "문자열 병합", "숫자열 합"}));
    QCOMPARE(entries("separatorComboBox"), QStringList({"문자", "개행코드"}));
    QStringList labels;
    const QList<QLabel *> all = m_dialog->findChildren<QLabel *>();
    for (const QLabel *label : all)
        labels.append(label->text() + " " + label->buddy()->objectName());
    QCOMPARE(labels, QStringList({"병합방식 mergeTypeComboBox", "연결자 separatorComboBox"}));
}

void TestMergeDialog::opensWithWhatIsStored_data()
{
    QTest::addColumn<QString>("merge");
    QTest::addColumn<QString>("separator");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("radioButton");
    QTest::newRow("no merge") << "NO"
                              << "" << 0 << 0 << ""
                              << "";
    QTest::newRow("a new item") << ""
                                << "" << 0 << 0 << ""
                                << "";
    QTest::newRow("an unknown word") << "string"
                                     << "x" << 0 << 0 << ""
                                     << "";
    QTest::newRow("numbers") << "NUMBER"
                             << "" << 2 << 0 << ""
                             << "";
    QTest::newRow("texts without a separator") << "STRING"
                                               << "" << 1 << 0 << ""
                                               << "";
    QTest::newRow("comma and blank") << "STRING"
                                     << ", " << 1 << 0 << ", "
                                     << "";
    QTest::newRow("LF") << "STRING"
                        << "\n"
                        << 1 << 1 << ""
                        << "lfRadioButton";
    QTest::newRow("CR LF") << "STRING"
                           << "\r\n"
                           << 1 << 1 << ""
                           << "crlfRadioButton";
    QTest::newRow("two line breaks are typed text") << "STRING"
                                                    << "\n\n"
                                                    << 1 << 0 << "\n\n"
                                                    << "";
    QTest::newRow("CR alone is typed text") << "STRING"
                                            << "\r" << 1 << 0 << "\r"
                                            << "";
}

void TestMergeDialog::opensWithWhatIsStored()
{
    QFETCH(QString, merge);
    QFETCH(QString, separator);
    QFETCH(int, type);
    openWith(merge, separator);
    QCOMPARE(chosen("mergeTypeComboBox"), type);
    QCOMPARE(find<QGroupBox>("separatorGroupBox")->isEnabled(), type == 1);
    QTEST(chosen("separatorComboBox"), "page");
    QTEST(find<QStackedWidget>("separateStackedWidget")->currentIndex(), "page");
    QTEST(lineEdit(), "typed");
    QTEST(checkedRadioButton(), "radioButton");
}

void TestMergeDialog::separatorCanBeSetExactlyWhileTextsAreMerged()
{
    openWith("NO", "");
    const auto *group = find<QGroupBox>("separatorGroupBox");
    for (const int type : {1, 2, 1, 0}) {
        choose("mergeTypeComboBox", type);
        QCOMPARE(group->isEnabled(), type == 1);
    }
}

void TestMergeDialog::separatorTypeTurnsThePage()
{
    openWith("STRING", "x");
    QVERIFY(find<QLineEdit>("separatorLineEdit")->isVisible());
    choose("separatorComboBox", 1);
    QVERIFY(find<QRadioButton>("lfRadioButton")->isVisible());
    QVERIFY(!find<QLineEdit>("separatorLineEdit")->isVisible());
    choose("separatorComboBox", 0);
    QVERIFY(find<QLineEdit>("separatorLineEdit")->isVisible());
}

// --- storing ----------------------------------------------------------------------------------

void TestMergeDialog::okWithoutAChangeChangesNothing_data()
{
    QTest::addColumn<OutputItem>("stored");
    QTest::newRow("no merge") << itemWith("NO", "");
    QTest::newRow("numbers") << itemWith("NUMBER", "");
    QTest::newRow("texts") << itemWith("STRING", "");
    QTest::newRow("comma and blank") << itemWith("STRING", ", ");
    QTest::newRow("LF") << itemWith("STRING", "\n");
    QTest::newRow("CR LF") << itemWith("STRING", "\r\n");
    QTest::newRow("a line break within a text") << itemWith("STRING", "-\r\n-");
}

void TestMergeDialog::okWithoutAChangeChangesNothing()
{
    QFETCH(OutputItem, stored);
    setItem(stored);
    openDialog();
    click("okButton");
    QVERIFY(!isOpen());
    QCOMPARE(item(), stored);
    QCOMPARE(m_model.takeLog(), QStringList());
}

void TestMergeDialog::okStoresTheChoice_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<OutputItem>("stored");
    QTest::newRow("no merge forgets the separator") << 0 << itemWith("NO", "");
    QTest::newRow("texts keep it") << 1 << itemWith("STRING", fullItem().mergeSeparator + "typed");
    QTest::newRow("numbers forget it") << 2 << itemWith("NUMBER", "");
}

void TestMergeDialog::okStoresTheChoice()
{
    QFETCH(int, type);
    openDialog();
    QTest::keyClicks(find<QLineEdit>("separatorLineEdit"), "typed");
    choose("mergeTypeComboBox", type);
    click("okButton");
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QTEST(item(), "stored");
}

void TestMergeDialog::typedSeparatorIsStoredAsItStands_data()
{
    QTest::addColumn<QString>("typed");
    for (const char *typed : {"", " ", ", ", "\\n", "\"", "()", "가나"})
        QTest::newRow(typed) << typed;
}

void TestMergeDialog::typedSeparatorIsStoredAsItStands()
{
    QFETCH(QString, typed);
    openWith("NO", "");
    choose("mergeTypeComboBox", 1);
    type(find<QLineEdit>("separatorLineEdit"), typed);
    QTest::keyClick(find<QLineEdit>("separatorLineEdit"), Qt::Key_Return);
    QVERIFY(!isOpen());
    QCOMPARE(item(), itemWith("STRING", typed));
}

void TestMergeDialog::lineBreakOfTheRadioButtonIsStored_data()
{
    QTest::addColumn<QString>("separator");
    QTest::newRow("lfRadioButton") << "\n";
    QTest::newRow("crlfRadioButton") << "\r\n";
}

void TestMergeDialog::lineBreakOfTheRadioButtonIsStored()
{
    QFETCH(QString, separator);
    openWith("STRING", "x");
    choose("separatorComboBox", 1);
    click(QTest::currentDataTag());
    click("okButton");
    QVERIFY(!isOpen());
    QCOMPARE(item(), itemWith("STRING", separator));
}

void TestMergeDialog::missingLineBreakIsRefused()
{
    openWith("STRING", "x");
    choose("separatorComboBox", 1);
    QCOMPARE(checkedRadioButton(), QString());
    const AnswerMessageBox answer(Qt::Key_Return);
    click("okButton");
    QCOMPARE(answer.title, QString("Error"));
    QCOMPARE(answer.text, QString("Select new line code."));
    QCOMPARE(answer.icon, QMessageBox::Warning);
    QCOMPARE(answer.buttons, QMessageBox::Ok);
    QVERIFY(isOpen());
    QCOMPARE(item(), itemWith("STRING", "x"));
    QCOMPARE(m_model.takeLog(), QStringList());

    click("crlfRadioButton");
    click("okButton");
    QVERIFY(!isOpen());
    QCOMPARE(item(), itemWith("STRING", "\r\n"));
}

void TestMergeDialog::missingLineBreakDoesNotMatterWithoutTexts()
{
    openWith("STRING", "x");
    choose("separatorComboBox", 1);
    choose("mergeTypeComboBox", 2);
    click("okButton");
    QVERIFY(!isOpen());
    QCOMPARE(item(), itemWith("NUMBER", ""));
}

void TestMergeDialog::leavingChangesNothing_data()
{
    QTest::addColumn<bool>("withEscape");
    QTest::newRow("cancelButton") << false;
    QTest::newRow("Escape") << true;
}

void TestMergeDialog::leavingChangesNothing()
{
    QFETCH(bool, withEscape);
    openDialog();
    choose("mergeTypeComboBox", 2);
    if (withEscape)
        QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
    else
        click("cancelButton");
    QVERIFY(!isOpen());
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
    QCOMPARE(item(), fullItem());
}

void TestMergeDialog::changesOfTheItemWhileTheDialogIsOpenAreKept()
{
    openWith("NO", "");
    m_model.setData(m_model.index(OutputModeModel::NameRow, column), "renamed");
    choose("mergeTypeComboBox", 2);
    click("okButton");
    OutputItem expected = itemWith("NUMBER", "");
    expected.name = "renamed";
    QCOMPARE(item(), expected);
}

QTEST_MAIN(TestMergeDialog)
#include "tst_mergedialog.moc"
