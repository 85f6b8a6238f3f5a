// The editor of the mapped values of one cell: what is removed or moved in its list is removed or
// moved in all three lists of the item, and what is not touched stays as it is stored. Dragging is
// tested where there is a display.
#include "editor/editoutputitemsdialog.h"
#include "tests/editor/dialogtest.h"

#include <QCheckBox>
#include <QLineEdit>

namespace {

// A model of another kind, which notes what it is told to keep.
class OtherModel : public AbstractOutputModel
{
public:
    int rowCount(const QModelIndex &) const override { return 1; }
    int columnCount(const QModelIndex &) const override { return 1; }
    QVariant data(const QModelIndex &, int role) const override
    {
        return role == Qt::EditRole ? QStringList{"one", "two"} : QVariant();
    }
    QString separator(const QModelIndex &) const override { return "-"; }
    bool setMappings(const QModelIndex &index, const Columns &positions,
                     const QString &separator) override
    {
        keptIndex = index;
        keptPositions = positions;
        keptSeparator = separator;
        return true;
    }

    QModelIndex keptIndex;
    Columns keptPositions;
    QString keptSeparator;

protected:
    bool addDroppedItems(const QModelIndex &, const DragItems &) override { return false; }
};

} // namespace

class TestEditOutputItemsDialog : public DialogTest
{
    Q_OBJECT

private slots:
    void widgets_data();
    void widgets();
    void isComplete();
    void opensWithTheMappedValues();
    void opensWithTheSeparator_data();
    void opensWithTheSeparator();

    void okWithoutAChangeChangesNothing_data();
    void okWithoutAChangeChangesNothing();
    void leavingChangesNothing_data();
    void leavingChangesNothing();

    void keysArrangeTheItem_data();
    void keysArrangeTheItem();
    void buttonRemovesTheClickedEntry();
    void withoutACurrentEntryNothingHappens();
    void currentEntryIsMarkedWhateverMadeItCurrent();

    void separatorIsStoredWhileTheBoxIsChecked();
    void separatorIsEmptyWhileTheBoxIsUnchecked();
    void uncheckedBoxKeepsTheTypedText();
    void otherModelsAreEditedThroughTheCommonBase();
    void columnThatIsGoneIsNotWritten();

private:
    void openDialog() { open(new EditOutputItemsDialog(&m_model, outputCell())); }
    QModelIndex outputCell() const { return m_model.index(OutputModeModel::OutputRow, column); }
    QListWidget *list() const { return find<QListWidget>("listWidget"); }
};

// --- the form ---------------------------------------------------------------------------------

void TestEditOutputItemsDialog::widgets_data()
{
    addWidgetColumns();
    // clang-format off
    QTest::newRow("listWidget")   << "QListWidget" << ""                     << "드래그하여 순서변경이 가능합니다"                      << "드래그하여 순서변경이 가능합니다" << "";
    QTest::newRow("delButton")    << "QPushButton" << ""                     << "선택된 항목을 제거합니다"                              << "선택된 항목을 제거합니다"         << "exit";
    QTest::newRow("sepCheckBox")  << "QCheckBox"   << "항목사이 연결자 삽입" << "항목들이 연결될 때 항목간에 설정된 문자를 삽입합니다"  << ""                                 << "";
    QTest::newRow("okButton")     << "QPushButton" << "확인"                 << "변경사항을 저장합니다"                                 << ""                                 << "tick";
    QTest::newRow("cancelButton") << "QPushButton" << "취소"                 << "변경사항을 저장하지 않습니다"                          << ""                                 << "cross";
    // clang-format on
    QTest::newRow("sepLineEdit") << "QLineEdit" << fullItem().separator
                                 << "삽입될 문자를 지정합니다"
                                 << "삽입될 문자를 지정합니다"
                                 << "";
}

void TestEditOutputItemsDialog::widgets()
{
    openDialog();
    checkWidget();
}

void TestEditOutputItemsDialog::isComplete()
{
    openDialog();
    QCOMPARE(m_dialog->windowTitle(), QString("항목변경"));
    QVERIFY(m_dialog->isModal());
    QCOMPARE(namelessWidgets(), QString());
    QCOMPARE(deafButtons(), QString());
    QCOMPARE(cutTexts(), QString());
    QCOMPARE(tabOrder("listWidget"),
             QString("listWidget delButton sepCheckBox sepLineEdit okButton cancelButton"));
    QVERIFY(find<QPushButton>("okButton")->isDefault());
}

void TestEditOutputItemsDialog::opensWithTheMappedValues()
{
    openDialog();
    QCOMPARE(texts("listWidget"), fullItem().mappings);
}

void TestEditOutputItemsDialog::opensWithTheSeparator_data()
{
    QTest::addColumn<QString>("separator");
    QTest::addColumn<bool>("checked");
    QTest::newRow("none") << "" << false;
    QTest::newRow("a blank") << " " << true;
    QTest::newRow("a text") << " / " << true;
}

void TestEditOutputItemsDialog::opensWithTheSeparator()
{
    QFETCH(QString, separator);
    QFETCH(bool, checked);
    OutputItem stored = fullItem();
    stored.separator = separator;
    setItem(stored);
    openDialog();
    QCOMPARE(find<QCheckBox>("sepCheckBox")->isChecked(), checked);
    QCOMPARE(find<QLineEdit>("sepLineEdit")->isEnabled(), checked);
    QCOMPARE(find<QLineEdit>("sepLineEdit")->text(), separator);
}

// --- without a change -------------------------------------------------------------------------

void TestEditOutputItemsDialog::okWithoutAChangeChangesNothing_data()
{
    QTest::addColumn<OutputItem>("stored");
    QTest::newRow("three values and a separator") << fullItem();
    QTest::newRow("repeated values") << repeatedItem();
    QTest::newRow("nothing at all") << OutputItem();
    QTest::newRow("no separator") << withField([](OutputItem &item) { item.separator.clear(); });
    QTest::newRow("a line break as separator")
        << withField([](OutputItem &item) { item.separator = "\r\n"; });
    QTest::newRow("damaged: more texts than sources")
        << withField([](OutputItem &item) { item.mapSources.clear(); });
    QTest::newRow("damaged: more numbers than texts")
        << withField([](OutputItem &item) { item.mapNums.append(7); });
}

void TestEditOutputItemsDialog::okWithoutAChangeChangesNothing()
{
    QFETCH(OutputItem, stored);
    setItem(stored);
    openDialog();
    click("okButton");
    QVERIFY(!isOpen());
    QCOMPARE(item(), stored);
    QCOMPARE(m_model.takeLog(), QStringList());
}

void TestEditOutputItemsDialog::leavingChangesNothing_data()
{
    QTest::addColumn<bool>("withEscape");
    QTest::newRow("cancelButton") << false;
    QTest::newRow("Escape") << true;
}

void TestEditOutputItemsDialog::leavingChangesNothing()
{
    QFETCH(bool, withEscape);
    openDialog();
    clickRow("listWidget", 1);
    click("delButton");
    QTest::keyClicks(find<QLineEdit>("sepLineEdit"), "new");
    if (withEscape)
        QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
    else
        click("cancelButton");
    QVERIFY(!isOpen());
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
    QCOMPARE(item(), fullItem());
    QCOMPARE(m_model.takeLog(), QStringList());
}

// --- order ------------------------------------------------------------------------------------

void TestEditOutputItemsDialog::keysArrangeTheItem_data()
{
    QTest::addColumn<int>("row");      // that is clicked
    QTest::addColumn<QString>("keys"); // then pressed
    QTest::addColumn<Columns>("positions");
    QTest::addColumn<int>("current"); // in the end

    QTest::newRow("down") << 0 << "Alt+Down" << Columns{1, 0, 2, 3} << 1;
    QTest::newRow("down to the end")
        << 0 << "Alt+Down Alt+Down Alt+Down" << Columns{1, 2, 3, 0} << 3;
    QTest::newRow("up") << 3 << "Alt+Up" << Columns{0, 1, 3, 2} << 2;
    QTest::newRow("up to the start") << 3 << "Alt+Up Alt+Up Alt+Up" << Columns{3, 0, 1, 2} << 0;
    QTest::newRow("the first stays when it goes up") << 0 << "Alt+Up" << Columns{0, 1, 2, 3} << 0;
    QTest::newRow("the last stays when it goes down")
        << 3 << "Alt+Down" << Columns{0, 1, 2, 3} << 3;
    QTest::newRow("there and back") << 1 << "Alt+Down Alt+Up" << Columns{0, 1, 2, 3} << 1;
    QTest::newRow("the first of two with one text is removed")
        << 0 << "Del" << Columns{1, 2, 3} << 0;
    QTest::newRow("the second of two with one text is removed")
        << 2 << "Del" << Columns{0, 1, 3} << 2;
    QTest::newRow("the last is removed") << 3 << "Del" << Columns{0, 1, 2} << 2;
    QTest::newRow("moved, then removed") << 0 << "Alt+Down Del" << Columns{1, 2, 3} << 1;
    QTest::newRow("removed, then the next moved") << 0 << "Del Alt+Down" << Columns{2, 1, 3} << 1;
    QTest::newRow("all are removed") << 0 << "Del Del Del Del" << Columns{} << -1;
    QTest::newRow("more than all are removed") << 0 << "Del Del Del Del Del" << Columns{} << -1;
}

void TestEditOutputItemsDialog::keysArrangeTheItem()
{
    QFETCH(int, row);
    QFETCH(QString, keys);
    QFETCH(Columns, positions);
    setItem(repeatedItem());
    openDialog();
    clickRow("listWidget", row);
    const QStringList sequences = keys.split(' ');
    for (const QString &sequence : sequences)
        QTest::keySequence(list(), QKeySequence(sequence));
    QTEST(list()->currentRow(), "current");
    QCOMPARE(item(), repeatedItem()); // until OK
    click("okButton");
    QCOMPARE(item(), arranged(repeatedItem(), positions));
}

void TestEditOutputItemsDialog::buttonRemovesTheClickedEntry()
{
    setItem(repeatedItem());
    openDialog();
    clickRow("listWidget", 1);
    click("delButton");
    QCOMPARE(texts("listWidget"), QStringList({"same", "same", "last"}));
    click("okButton");
    QCOMPARE(item(), arranged(repeatedItem(), {0, 2, 3}));
}

void TestEditOutputItemsDialog::withoutACurrentEntryNothingHappens()
{
    openDialog();
    list()->setCurrentRow(-1);
    click("delButton");
    for (const char *keys : {"Del", "Alt+Up", "Alt+Down"})
        QTest::keySequence(list(), QKeySequence(keys));
    click("okButton");
    QCOMPARE(item(), fullItem());
}

void TestEditOutputItemsDialog::currentEntryIsMarkedWhateverMadeItCurrent()
{
    openDialog();
    QVERIFY(list()->hasFocus()); // which makes the first one current
    QCOMPARE(list()->currentRow(), 0);
    QCOMPARE(markedRows("listWidget"), Columns{0});
    QTest::keyClick(list(), Qt::Key_Down, Qt::ControlModifier);
    QCOMPARE(list()->currentRow(), 1);
    QCOMPARE(markedRows("listWidget"), Columns{1});
}

// --- separator --------------------------------------------------------------------------------

void TestEditOutputItemsDialog::separatorIsStoredWhileTheBoxIsChecked()
{
    OutputItem stored = fullItem();
    stored.separator.clear();
    setItem(stored);
    openDialog();
    click("sepCheckBox");
    auto *edit = find<QLineEdit>("sepLineEdit");
    QVERIFY(edit->isEnabled());
    QVERIFY(edit->hasFocus());
    QTest::keyClicks(edit, ", ");
    click("okButton");
    stored.separator = ", ";
    QCOMPARE(item(), stored);
}

void TestEditOutputItemsDialog::separatorIsEmptyWhileTheBoxIsUnchecked()
{
    openDialog();
    click("sepCheckBox");
    QVERIFY(!find<QLineEdit>("sepLineEdit")->isEnabled());
    click("okButton");
    QCOMPARE(item(), withField([](OutputItem &item) { item.separator.clear(); }));
}

void TestEditOutputItemsDialog::uncheckedBoxKeepsTheTypedText()
{
    openDialog();
    click("sepCheckBox");
    click("sepCheckBox");
    QCOMPARE(find<QLineEdit>("sepLineEdit")->text(), fullItem().separator);
    QTest::keyClick(find<QLineEdit>("sepLineEdit"), Qt::Key_Return);
    QVERIFY(!isOpen());
    QCOMPARE(item(), fullItem());
}

// --- models -----------------------------------------------------------------------------------

void TestEditOutputItemsDialog::otherModelsAreEditedThroughTheCommonBase()
{
    OtherModel model;
    open(new EditOutputItemsDialog(&model, model.index(0, 0)));
    QCOMPARE(texts("listWidget"), QStringList({"one", "two"}));
    clickRow("listWidget", 1);
    QTest::keyClick(list(), Qt::Key_Up, Qt::AltModifier);
    click("okButton");
    QCOMPARE(model.keptIndex, model.index(0, 0));
    QCOMPARE(model.keptPositions, Columns({1, 0}));
    QCOMPARE(model.keptSeparator, QString("-"));
    m_dialog.reset();
}

void TestEditOutputItemsDialog::columnThatIsGoneIsNotWritten()
{
    Output model({"one", "two"});
    open(new EditOutputItemsDialog(&model, model.index(OutputModeModel::OutputRow, 0)));
    model.removeItem(0);
    model.takeLog();
    click("okButton");
    QVERIFY(!isOpen());
    QCOMPARE(model.takeLog(), QStringList());
    m_dialog.reset();
}

QTEST_MAIN(TestEditOutputItemsDialog)
#include "tst_editoutputitemsdialog.moc"
