// The editor of a statement field's rules: the same pages over one list, which is added to and
// deleted from but not reordered, and which only OK stores.
#include "tests/common/ruledialogtest.h"

#include "statement/pdfruledialog.h"
#include "statement/pdfsetmodel.h"

class TestPdfRuleDialog : public RuleDialogTest
{
    Q_OBJECT

private slots:
    void init();

    void theForm();
    void buttons_data();
    void buttons();
    void nothingIsSaidOfMerging();
    void everyWidgetHasAName();
    void choicesAreHeardOnce();

    void opensWithTheRulesOfTheField();
    void anyCellOfTheFieldWillDo();
    void addsTheRuleOfTheOpenPage_data();
    void addsTheRuleOfTheOpenPage();
    void anEmptyPageAddsNothing();
    void aCommaAddsNothing();
    void deletesTheCurrentRule();
    void withoutACurrentRuleNothingIsDeleted();
    void theOrderStays();

    void okStoresTheList();
    void okStoresAnEmptyList();
    void nothingIsStoredOtherwise_data();
    void nothingIsStoredOtherwise();

private:
    QStringList shown() const { return listed("listWidget"); }
    QStringList stored() const { return m_model->fields()[StatementFields::OrderDate].rules; }

    std::unique_ptr<PdfSetModel> m_model;
};

void TestPdfRuleDialog::init()
{
    RuleDialogTest::init();
    m_model = std::make_unique<PdfSetModel>();
    StatementFieldList fields;
    fields[StatementFields::OrderNumber].rules = QStringList{"trim"};
    fields[StatementFields::OrderDate].rules = QStringList{"left(10)", "append(,)", "left(10)"};
    m_model->setFields(fields);
    open(std::make_unique<PdfRuleDialog>(
        m_model.get(), m_model->index(PdfSetModel::RuleRow, StatementFields::OrderDate)));
}

// --- the form ---------------------------------------------------------------------------------

void TestPdfRuleDialog::theForm()
{
    QCOMPARE(m_dialog->windowTitle(), QString("규칙설정"));
    QVERIFY(m_dialog->findChild<QStatusBar *>() != nullptr);
    const QStringList pages{"lengthPage",  "crlfPage",         "insertPage",
                            "replacePage", "chracterTypePage", "spaceTrimPage"};
    const auto *toolBox = find<QToolBox>("toolBox");
    QCOMPARE(toolBox->count(), pages.size());
    for (int page = 0; page < pages.size(); ++page)
        QCOMPARE(toolBox->widget(page)->objectName(), pages.at(page));
    QCOMPARE(m_dialog->findChildren<QListWidget *>().size(), 1);
    QVERIFY(find<QPushButton>("okButton")->isDefault());
}

void TestPdfRuleDialog::buttons_data()
{
    QTest::addColumn<QString>("picture");

    QTest::newRow("addButton") << "add";
    QTest::newRow("delButton") << "delete";
    QTest::newRow("okButton") << "tick";
    QTest::newRow("cancelButton") << "cross";
}

void TestPdfRuleDialog::buttons()
{
    QFETCH(QString, picture);

    const auto *button = find<QPushButton>(QTest::currentDataTag());
    QVERIFY(!button->toolTip().isEmpty());
    QCOMPARE(button->statusTip(), button->toolTip());
    QCOMPARE(button->accessibleName(), button->toolTip());
    const QSize size(24, 24);
    QCOMPARE(button->icon().pixmap(size).toImage(),
             QIcon(QStringLiteral(":/icon/images/%1.png").arg(picture)).pixmap(size).toImage());
}

// A field is filled before statements are merged; there is no second list to tell apart.
void TestPdfRuleDialog::nothingIsSaidOfMerging()
{
    for (const char *name :
         {"beforeListWidget", "afterListWidget", "addBeforeButton", "delBeforeButton",
          "addAfterButton", "delAfterButton", "moveUpButton", "moveDownButton"})
        QVERIFY2(find<QWidget>(name) == nullptr, name);
    const auto widgets = m_dialog->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const auto *label = qobject_cast<const QLabel *>(widget);
        const QStringList texts{widget->toolTip(), widget->statusTip(), widget->accessibleName(),
                                label != nullptr ? label->text() : QString()};
        QVERIFY2(!texts.join(' ').contains("병합"), qPrintable(widget->objectName()));
    }
}

void TestPdfRuleDialog::everyWidgetHasAName()
{
    for (int page = 0; page < 6; ++page) {
        openPage(page);
        QCOMPARE(namelessWidgets(), QStringList());
    }
}

void TestPdfRuleDialog::choicesAreHeardOnce()
{
    QCOMPARE(listeners(find<QComboBox>("replaceBox")), 1);
    QCOMPARE(listeners(find<QComboBox>("lengthComboBox2")), 1);
}

// --- the list ---------------------------------------------------------------------------------

void TestPdfRuleDialog::opensWithTheRulesOfTheField()
{
    QCOMPARE(shown(), (QStringList{"left(10)", "append(,)", "left(10)"}));
}

void TestPdfRuleDialog::anyCellOfTheFieldWillDo()
{
    const PdfRuleDialog dialog(m_model.get(), m_model->index(0, StatementFields::OrderNumber));
    const auto *list = dialog.findChild<QListWidget *>("listWidget");
    QCOMPARE(list->count(), 1);
    QCOMPARE(list->item(0)->text(), QString("trim"));
}

void TestPdfRuleDialog::addsTheRuleOfTheOpenPage_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<Entries>("entries");
    QTest::addColumn<QString>("rule");

    QTest::newRow("length") << 0
                            << Entries{{"lengthComboBox", 1},
                                       {"lengthSpinBox", "2"},
                                       {"lengthComboBox2", 1}}
                            << "curRight(2)";
    QTest::newRow("line breaks") << 1 << Entries{{"removeCrlfRradioButton", 1}}
                                 << "newLine(REMOVE)";
    QTest::newRow("insert") << 2 << Entries{{"insertLineEdit", "x"}} << "prepend(x)";
    QTest::newRow("find")
        << 3 << Entries{{"findEdit", "x"}, {"findBox", 7}, {"replaceBox", 2}, {"replaceEdit", "y"}}
        << "find(notEndsWith(x),fullString,replace(y))";
    QTest::newRow("characters") << 4 << Entries{{"katakanaRadioButton", 1}} << "charType(katakana)";
    QTest::newRow("blanks") << 5 << Entries() << "trim";
}

void TestPdfRuleDialog::addsTheRuleOfTheOpenPage()
{
    QFETCH(int, page);
    QFETCH(Entries, entries);
    QFETCH(QString, rule);

    openPage(page);
    enter(entries);
    click("addButton");
    QCOMPARE(shown(), (QStringList{"left(10)", "append(,)", "left(10)", rule}));
}

void TestPdfRuleDialog::anEmptyPageAddsNothing()
{
    for (int page : {0, 2, 3}) {
        openPage(page);
        click("addButton");
    }
    QCOMPARE(shown().size(), 3);
}

void TestPdfRuleDialog::aCommaAddsNothing()
{
    openPage(3);
    enter({{"findEdit", "a"}, {"replaceBox", 2}, {"replaceEdit", "x,y"}});
    AnswerMessageBox box(Qt::Key_Return);
    click("addButton");
    QCOMPARE(box.title, QString("Error"));
    QCOMPARE(box.text, QString("Character ',' cannot be included."));
    QCOMPARE(m_dialog->focusWidget()->objectName(), QString("replaceEdit"));
    QCOMPARE(shown().size(), 3);
}

void TestPdfRuleDialog::deletesTheCurrentRule()
{
    clickRule("listWidget", "append(,)");
    click("delButton");
    QCOMPARE(shown(), (QStringList{"left(10)", "left(10)"}));
    auto *list = find<QListWidget>("listWidget");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Delete);
    QCOMPARE(shown(), QStringList{"left(10)"});
    click("delButton");
    click("delButton");
    QCOMPARE(shown(), QStringList());
}

void TestPdfRuleDialog::withoutACurrentRuleNothingIsDeleted()
{
    click("delButton");
    QCOMPARE(shown().size(), 3);
}

void TestPdfRuleDialog::theOrderStays()
{
    auto *list = find<QListWidget>("listWidget");
    clickRule("listWidget", "append(,)");
    QTest::keyClick(list, Qt::Key_Up, Qt::AltModifier);
    QTest::keyClick(list, Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(shown(), (QStringList{"left(10)", "append(,)", "left(10)"}));
    QCOMPARE(list->dragDropMode(), QAbstractItemView::NoDragDrop);
}

// --- storing ----------------------------------------------------------------------------------

void TestPdfRuleDialog::okStoresTheList()
{
    const QStringList rules{"left(10)", "left(10)", "trim"};
    openPage(5);
    click("addButton");
    clickRule("listWidget", "append(,)");
    click("delButton");
    QCOMPARE(stored().size(), 3); // not before OK

    const QSignalSpy changed(m_model.get(), &PdfSetModel::itemChanged);
    click("okButton");
    QCOMPARE(stored(), rules);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(m_model->fields()[StatementFields::OrderNumber].rules, QStringList{"trim"});
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QVERIFY(!m_dialog->isVisible());
}

void TestPdfRuleDialog::okStoresAnEmptyList()
{
    auto *list = find<QListWidget>("listWidget");
    list->setFocus();
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(list, Qt::Key_Delete);
    click("okButton");
    QCOMPARE(stored(), QStringList());
}

void TestPdfRuleDialog::nothingIsStoredOtherwise_data()
{
    QTest::addColumn<QString>("way");

    for (const char *way : {"cancelButton", "Escape", "close"})
        QTest::newRow(way) << way;
}

void TestPdfRuleDialog::nothingIsStoredOtherwise()
{
    QFETCH(QString, way);

    clickRule("listWidget", "append(,)");
    click("delButton");
    if (way == "close")
        m_dialog->close();
    else if (way == "Escape")
        QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Escape);
    else
        click("cancelButton");
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
    QCOMPARE(stored().size(), 3);
}

QTEST_MAIN(TestPdfRuleDialog)
#include "tst_pdfruledialog.moc"
