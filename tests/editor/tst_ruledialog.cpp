// The editor of an output item's rules: two lists that are filled from the pages, ordered, handed
// over from one to the other, and stored only by OK. On a real display it also drags rules.
#include "tests/common/ruledialogtest.h"

#include "editor/outputmodemodel.h"
#include "editor/ruledialog.h"

#include <QProcess>
#include <QStandardPaths>
#include <QStatusBar>

class TestRuleDialog : public RuleDialogTest
{
    Q_OBJECT

private slots:
    void init();

    void theForm();
    void buttons_data();
    void buttons();
    void everyWidgetHasAName();
    void choicesAreHeardOnce();
    void tipsAppearInTheDialog();

    void opensWithTheStoredRules();
    void addsTheRuleOfTheOpenPage_data();
    void addsTheRuleOfTheOpenPage();
    void anEmptyPageAddsNothing();
    void aCommaAddsNothing();
    void deletesTheCurrentRule_data();
    void deletesTheCurrentRule();
    void withoutACurrentRuleNothingHappens();
    void deletingBeforeFollowsTheFocusOfTheList();
    void movesBetweenTheLists();
    void theOnlyRuleIsMoved();
    void keysMoveWithinAList();
    void equalRulesAreEachTheirOwn();

    void okStoresBothLists();
    void okWithoutAChangeChangesNothing();
    void nothingIsStoredOtherwise_data();
    void nothingIsStoredOtherwise();
    void theItemMayMoveMeanwhile();
    void theItemMayGoMeanwhile();

    void foreignDragsAreRefused();
    void dragsReorderAList();
    void dragsMoveBetweenTheLists();
    void aMethodIsChosenByTheMouse();

private:
    QStringList before() const { return listed("beforeListWidget"); }
    QStringList after() const { return listed("afterListWidget"); }
    void drag(const char *fromList, int fromRow, const char *toList, int toRow, bool lowerHalf);

    std::unique_ptr<OutputModeModel> m_model;
};

void TestRuleDialog::init()
{
    RuleDialogTest::init();
    m_dialog.reset();
    m_model = std::make_unique<OutputModeModel>();
    for (const char *name : {"a", "b", "c"})
        m_model->setData(m_model->appendItem(), name);
    OutputItem item = m_model->item(1);
    item.rules = QStringList{"trim", "left(3)", "newLine(LF)"};
    item.afterRules = QStringList{"append(,)", "curRight(1)"};
    item.separator = "-";
    item.appendMapping(InputSource, 4, "수량");
    m_model->setItem(1, item);
    open(std::make_unique<RuleDialog>(m_model.get(), m_model->index(3, 1)));
}

// --- the form ---------------------------------------------------------------------------------

void TestRuleDialog::theForm()
{
    QCOMPARE(m_dialog->windowTitle(), QString("규칙설정"));
    QVERIFY(m_dialog->findChild<QStatusBar *>() != nullptr);
    for (const char *name : {"beforeListWidget", "afterListWidget"}) {
        QCOMPARE(find<QListWidget>(name)->toolTip(), QString("드래그하여 순서변경이 가능합니다"));
        QCOMPARE(find<QListWidget>(name)->statusTip(), QString("드래그하여 순서변경이 가능합니다"));
    }
    QCOMPARE(find<QLabel>("beforeLabel")->text(), QString("병합 전 처리"));
    QCOMPARE(find<QLabel>("beforeLabel")->buddy(), find<QListWidget>("beforeListWidget"));
    QCOMPARE(find<QLabel>("afterLabel")->text(), QString("병합 후 처리"));
    QCOMPARE(find<QLabel>("afterLabel")->buddy(), find<QListWidget>("afterListWidget"));
    QCOMPARE(find<QToolBox>("toolBox")->count(), 6);
    QVERIFY(find<QPushButton>("okButton")->isDefault());
}

void TestRuleDialog::buttons_data()
{
    QTest::addColumn<QString>("tip");
    QTest::addColumn<QString>("picture");

    QTest::newRow("addBeforeButton") << "설정된 규칙을 병합 전 처리에 추가합니다"
                                     << "add";
    QTest::newRow("delBeforeButton") << "선택된 병합 전 처리 규칙을 삭제합니다"
                                     << "delete";
    QTest::newRow("addAfterButton") << "설정된 규칙을 병합 후 처리에 추가합니다"
                                    << "add";
    QTest::newRow("delAfterButton") << "선택된 병합 후 처리 규칙을 삭제합니다"
                                    << "delete";
    QTest::newRow("moveDownButton") << "선택된 규칙을 병합 후 처리로 이동합니다"
                                    << "arrow_down";
    QTest::newRow("moveUpButton") << "선택된 규칙을 병합 전 처리로 이동합니다"
                                  << "arrow_up";
    QTest::newRow("okButton") << "변경사항을 저장합니다"
                              << "tick";
    QTest::newRow("cancelButton") << "변경사항을 저장하지 않습니다"
                                  << "cross";
}

void TestRuleDialog::buttons()
{
    QFETCH(QString, tip);
    QFETCH(QString, picture);

    const auto *button = find<QPushButton>(QTest::currentDataTag());
    QCOMPARE(button->toolTip(), tip);
    QCOMPARE(button->statusTip(), tip);
    QCOMPARE(button->accessibleName(), tip);
    const QSize size(24, 24);
    QCOMPARE(button->iconSize(), size);
    QCOMPARE(button->icon().pixmap(size).toImage(),
             QIcon(QStringLiteral(":/icon/images/%1.png").arg(picture)).pixmap(size).toImage());
    QVERIFY(!button->icon().pixmap(size).isNull());
}

void TestRuleDialog::everyWidgetHasAName()
{
    for (int page = 0; page < 6; ++page) {
        openPage(page);
        QCOMPARE(namelessWidgets(), QStringList());
    }
}

// The pages stand in a form within the form, and both connect by name.
void TestRuleDialog::choicesAreHeardOnce()
{
    QCOMPARE(listeners(find<QComboBox>("replaceBox")), 1);
    QCOMPARE(listeners(find<QComboBox>("lengthComboBox2")), 1);
}

void TestRuleDialog::tipsAppearInTheDialog()
{
    QStatusTipEvent tip("tip");
    QCoreApplication::sendEvent(find<QPushButton>("moveUpButton"), &tip);
    QCOMPARE(m_dialog->findChild<QStatusBar *>()->currentMessage(), QString("tip"));
}

// --- the lists --------------------------------------------------------------------------------

void TestRuleDialog::opensWithTheStoredRules()
{
    QCOMPARE(before(), (QStringList{"trim", "left(3)", "newLine(LF)"}));
    QCOMPARE(after(), (QStringList{"append(,)", "curRight(1)"}));
}

void TestRuleDialog::addsTheRuleOfTheOpenPage_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<Entries>("entries");
    QTest::addColumn<QString>("rule");

    QTest::newRow("length") << 0
                            << Entries{{"lengthComboBox", 1},
                                       {"lengthSpinBox", "2"},
                                       {"lengthComboBox2", 1}}
                            << "curRight(2)";
    QTest::newRow("line breaks") << 1 << Entries{{"crlfRadioButton", 1}} << "newLine(CRLF)";
    QTest::newRow("insert") << 2 << Entries{{"insertComboBox", 1}, {"insertLineEdit", "x"}}
                            << "append(x)";
    QTest::newRow("find") << 3
                          << Entries{{"findEdit", "x"},
                                     {"findBox", 5},
                                     {"scopeComboBox", 1},
                                     {"replaceBox", 2},
                                     {"replaceEdit", "y"}}
                          << "find(notStartsWith(x),matchedString,replace(y))";
    QTest::newRow("characters") << 4 << Entries{{"hirakanaRadioButton", 1}} << "charType(hirakana)";
    QTest::newRow("blanks") << 5 << Entries{{"simplifiedRadioButton", 1}} << "simplified";
}

void TestRuleDialog::addsTheRuleOfTheOpenPage()
{
    QFETCH(int, page);
    QFETCH(Entries, entries);
    QFETCH(QString, rule);

    openPage(page);
    enter(entries);
    click("addAfterButton");
    QCOMPARE(after(), (QStringList{"append(,)", "curRight(1)", rule}));
    QCOMPARE(before(), (QStringList{"trim", "left(3)", "newLine(LF)"}));
    click("addBeforeButton");
    QCOMPARE(after(), (QStringList{"append(,)", "curRight(1)", rule}));
    QCOMPARE(before(), (QStringList{"trim", "left(3)", "newLine(LF)", rule}));
}

void TestRuleDialog::anEmptyPageAddsNothing()
{
    for (int page : {0, 2, 3}) {
        openPage(page);
        click("addBeforeButton");
        click("addAfterButton");
    }
    QCOMPARE(before().size(), 3);
    QCOMPARE(after().size(), 2);
}

void TestRuleDialog::aCommaAddsNothing()
{
    openPage(2);
    enter("insertLineEdit", "a,b");
    for (const char *button : {"addBeforeButton", "addAfterButton"}) {
        activate();
        AnswerMessageBox box(Qt::Key_Return);
        click(button);
        QCOMPARE(box.title, QString("Error"));
        QCOMPARE(box.text, QString("Character ',' cannot be included."));
        QCOMPARE(m_dialog->focusWidget()->objectName(), QString("insertLineEdit"));
    }
    QCOMPARE(before().size(), 3);
    QCOMPARE(after().size(), 2);
}

void TestRuleDialog::deletesTheCurrentRule_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QString>("button"); // none: the key
    QTest::addColumn<QStringList>("left");

    QTest::newRow("the first") << "beforeListWidget"
                               << "trim"
                               << "delBeforeButton" << QStringList{"left(3)", "newLine(LF)"};
    QTest::newRow("the middle one") << "beforeListWidget"
                                    << "left(3)"
                                    << "delBeforeButton" << QStringList{"trim", "newLine(LF)"};
    QTest::newRow("the last") << "beforeListWidget"
                              << "newLine(LF)"
                              << "delBeforeButton" << QStringList{"trim", "left(3)"};
    QTest::newRow("by the key") << "beforeListWidget"
                                << "left(3)"
                                << "" << QStringList{"trim", "newLine(LF)"};
    QTest::newRow("after merging") << "afterListWidget"
                                   << "append(,)"
                                   << "delAfterButton" << QStringList{"curRight(1)"};
    QTest::newRow("after merging, by the key") << "afterListWidget"
                                               << "curRight(1)"
                                               << "" << QStringList{"append(,)"};
}

void TestRuleDialog::deletesTheCurrentRule()
{
    QFETCH(QString, list);
    QFETCH(QString, rule);
    QFETCH(QString, button);
    QFETCH(QStringList, left);

    const QByteArray name = list.toLatin1();
    clickRule(name, rule);
    if (button.isEmpty())
        QTest::keyClick(find<QListWidget>(name), Qt::Key_Delete);
    else
        click(button.toLatin1());
    QCOMPARE(listed(name), left);
    QCOMPARE(before().size() + after().size(), 4);
}

void TestRuleDialog::withoutACurrentRuleNothingHappens()
{
    find<QListWidget>("beforeListWidget")->setFocus();
    find<QListWidget>("beforeListWidget")->setCurrentRow(-1);
    for (const char *button :
         {"delBeforeButton", "delAfterButton", "moveDownButton", "moveUpButton"})
        click(button);
    QCOMPARE(before().size(), 3);
    QCOMPARE(after().size(), 2);
}

void TestRuleDialog::deletingBeforeFollowsTheFocusOfTheList()
{
    const auto *deleteBefore = find<QPushButton>("delBeforeButton");
    const auto *deleteAfter = find<QPushButton>("delAfterButton");
    QVERIFY(!deleteBefore->isEnabled());
    QVERIFY(deleteAfter->isEnabled());

    clickRule("beforeListWidget", "left(3)");
    QVERIFY(deleteBefore->isEnabled());
    click("delBeforeButton"); // the list keeps the focus
    QVERIFY(find<QListWidget>("beforeListWidget")->hasFocus());
    QVERIFY(deleteBefore->isEnabled());
    click("delBeforeButton");
    QCOMPARE(before().size(), 1);

    clickRule("afterListWidget", "curRight(1)");
    QVERIFY(!deleteBefore->isEnabled());
    QVERIFY(deleteAfter->isEnabled());
    click("delBeforeButton"); // takes no press
    QCOMPARE(before().size(), 1);
    find<QPushButton>("okButton")->setFocus();
    QVERIFY(!deleteBefore->isEnabled());
    QVERIFY(deleteAfter->isEnabled());
    click("delAfterButton");
    QCOMPARE(after(), QStringList{"append(,)"});
}

void TestRuleDialog::movesBetweenTheLists()
{
    clickRule("beforeListWidget", "left(3)");
    click("moveDownButton");
    QCOMPARE(before(), (QStringList{"trim", "newLine(LF)"}));
    QCOMPARE(after(), (QStringList{"append(,)", "curRight(1)", "left(3)"}));

    clickRule("afterListWidget", "append(,)");
    click("moveUpButton");
    QCOMPARE(before(), (QStringList{"trim", "newLine(LF)", "append(,)"}));
    QCOMPARE(after(), (QStringList{"curRight(1)", "left(3)"}));
}

void TestRuleDialog::theOnlyRuleIsMoved()
{
    for (int i = 0; i < 2; ++i) {
        clickRule("beforeListWidget", before().first());
        click("delBeforeButton");
    }
    clickRule("beforeListWidget", "newLine(LF)");
    click("moveDownButton");
    QCOMPARE(before(), QStringList());
    QCOMPARE(after(), (QStringList{"append(,)", "curRight(1)", "newLine(LF)"}));
    click("moveDownButton");
    QCOMPARE(after().size(), 3);
}

void TestRuleDialog::keysMoveWithinAList()
{
    auto *list = find<QListWidget>("beforeListWidget");
    clickRule("beforeListWidget", "trim");
    QTest::keyClick(list, Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(before(), (QStringList{"left(3)", "trim", "newLine(LF)"}));
    QCOMPARE(list->currentItem()->text(), QString("trim"));
    QVERIFY(list->currentItem()->isSelected());
    QCOMPARE(list->selectedItems().size(), 1);
    QTest::keyClick(list, Qt::Key_Down, Qt::AltModifier);
    QTest::keyClick(list, Qt::Key_Down, Qt::AltModifier); // at the end already
    QCOMPARE(before(), (QStringList{"left(3)", "newLine(LF)", "trim"}));
    QTest::keyClick(list, Qt::Key_Up, Qt::AltModifier);
    QTest::keyClick(list, Qt::Key_Up, Qt::AltModifier);
    QTest::keyClick(list, Qt::Key_Up, Qt::AltModifier); // at the top already
    QCOMPARE(before(), (QStringList{"trim", "left(3)", "newLine(LF)"}));
    QCOMPARE(after(), (QStringList{"append(,)", "curRight(1)"}));

    clickRule("afterListWidget", "curRight(1)");
    QTest::keyClick(find<QListWidget>("afterListWidget"), Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(after(), (QStringList{"curRight(1)", "append(,)"}));
    list->setFocus();
    list->setCurrentRow(-1);
    QTest::keyClick(list, Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(before(), (QStringList{"trim", "left(3)", "newLine(LF)"}));
}

void TestRuleDialog::equalRulesAreEachTheirOwn()
{
    openPage(5);
    click("addBeforeButton");
    auto *list = find<QListWidget>("beforeListWidget");
    list->setFocus();
    list->setCurrentRow(3);
    click("delBeforeButton");
    QCOMPARE(before(), (QStringList{"trim", "left(3)", "newLine(LF)"}));
}

// --- storing ----------------------------------------------------------------------------------

void TestRuleDialog::okStoresBothLists()
{
    OutputItem expected = m_model->item(1);
    expected.rules = QStringList{"trim", "newLine(LF)"};
    expected.afterRules = QStringList{"append(,)", "curRight(1)", "left(3)", "trim"};
    openPage(5);
    clickRule("beforeListWidget", "left(3)");
    click("moveDownButton");
    click("addAfterButton");
    QVERIFY(m_model->item(1).rules.contains("left(3)")); // not before OK

    const QSignalSpy changed(m_model.get(), &OutputModeModel::itemChanged);
    click("okButton");
    QVERIFY(m_model->item(1) == expected);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().toModelIndex(), m_model->index(3, 1));
    QVERIFY(m_model->item(0).rules.isEmpty());
    QVERIFY(m_model->item(2).rules.isEmpty());
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QVERIFY(!m_dialog->isVisible());
}

void TestRuleDialog::okWithoutAChangeChangesNothing()
{
    const OutputItem item = m_model->item(1);
    const QSignalSpy changed(m_model.get(), &OutputModeModel::dataChanged);
    click("okButton");
    QVERIFY(m_model->item(1) == item);
    QCOMPARE(changed.count(), 0);
}

void TestRuleDialog::nothingIsStoredOtherwise_data()
{
    QTest::addColumn<QString>("way");

    for (const char *way : {"cancelButton", "Escape", "close"})
        QTest::newRow(way) << way;
}

void TestRuleDialog::nothingIsStoredOtherwise()
{
    QFETCH(QString, way);

    const OutputItem item = m_model->item(1);
    clickRule("beforeListWidget", "left(3)");
    click("delBeforeButton");
    if (way == "close")
        m_dialog->close();
    else if (way == "Escape")
        QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Escape);
    else
        click("cancelButton");
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
    QVERIFY(m_model->item(1) == item);
}

void TestRuleDialog::theItemMayMoveMeanwhile()
{
    clickRule("beforeListWidget", "trim");
    click("delBeforeButton");
    QVERIFY(m_model->moveItemLeft(1));
    click("okButton");
    QCOMPARE(m_model->item(0).name, QString("b"));
    QCOMPARE(m_model->item(0).rules, (QStringList{"left(3)", "newLine(LF)"}));
    QVERIFY(m_model->item(1).rules.isEmpty());
}

void TestRuleDialog::theItemMayGoMeanwhile()
{
    QVERIFY(m_model->removeItem(1));
    click("okButton");
    QCOMPARE(m_model->columnCount(), 2);
    QVERIFY(m_model->item(0).rules.isEmpty());
    QVERIFY(m_model->item(1).rules.isEmpty());
}

// --- drags ------------------------------------------------------------------------------------

// What a table of another program drags has the type of what a list drags.
void TestRuleDialog::foreignDragsAreRefused()
{
    QListWidget source;
    source.addItem("not a rule");
    const std::unique_ptr<QMimeData> data(source.model()->mimeData({source.model()->index(0, 0)}));
    QVERIFY(data->hasFormat("application/x-qabstractitemmodeldatalist"));
    for (const char *name : {"beforeListWidget", "afterListWidget"}) {
        auto *viewport = find<QListWidget>(name)->viewport();
        const QPoint place(10, 10);
        const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter(place, actions, data.get(), Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &enter);
        QVERIFY(!enter.isAccepted());
        QDragMoveEvent move(place, actions, data.get(), Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &move);
        QVERIFY(!move.isAccepted());
        QDropEvent drop(place, actions, data.get(), Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(viewport, &drop);
        QVERIFY(!drop.isAccepted());
    }
    QCOMPARE(before().size(), 3);
    QCOMPARE(after().size(), 2);
}

static bool hasHands()
{
    return QGuiApplication::platformName() == QLatin1String("xcb")
        && !QStandardPaths::findExecutable("xdotool").isEmpty();
}

static QStringList moveMouse(const QPoint &position)
{
    return {"mousemove", QString::number(position.x()), QString::number(position.y()), "sleep",
            "0.1"};
}

// The toolkit's drag runs an event loop of its own, so the hands are another process.
static void useMouse(const QStringList &steps)
{
    QProcess hands;
    hands.start("xdotool", steps);
    QTRY_COMPARE(hands.state(), QProcess::NotRunning);
    QCOMPARE(hands.exitCode(), 0);
}

void TestRuleDialog::drag(const char *fromList, int fromRow, const char *toList, int toRow,
                          bool lowerHalf)
{
    const auto place = [this](const char *name, int row) {
        auto *list = find<QListWidget>(name);
        QRect rect = list->visualItemRect(list->item(row));
        rect.moveTo(list->viewport()->mapToGlobal(rect.topLeft()));
        return rect;
    };
    const QPoint from(place(fromList, fromRow).left() + 12, place(fromList, fromRow).center().y());
    const QRect target = place(toList, toRow);
    const QPoint to(target.left() + 20, lowerHalf ? target.bottom() - 2 : target.top() + 2);
    QStringList steps = moveMouse(from);
    steps += QStringList{"mousedown", "1", "sleep", "0.1"};
    steps += moveMouse(from + QPoint(4, 4));
    steps += moveMouse(from + QPoint(12, 8));
    steps += moveMouse(to + QPoint(1, 0));
    steps += moveMouse(to);
    steps += QStringList{"mouseup", "1"};
    useMouse(steps);
}

void TestRuleDialog::dragsReorderAList()
{
    if (!hasHands())
        QSKIP("needs an X display and xdotool");
    drag("beforeListWidget", 0, "beforeListWidget", 2, true);
    QTRY_COMPARE(before(), (QStringList{"left(3)", "newLine(LF)", "trim"}));
    drag("beforeListWidget", 1, "beforeListWidget", 0, false);
    QTRY_COMPARE(before(), (QStringList{"newLine(LF)", "left(3)", "trim"}));
    drag("afterListWidget", 0, "afterListWidget", 1, true);
    QTRY_COMPARE(after(), (QStringList{"curRight(1)", "append(,)"}));
    click("okButton");
    QCOMPARE(m_model->item(1).rules, (QStringList{"newLine(LF)", "left(3)", "trim"}));
    QCOMPARE(m_model->item(1).afterRules, (QStringList{"curRight(1)", "append(,)"}));
}

void TestRuleDialog::dragsMoveBetweenTheLists()
{
    if (!hasHands())
        QSKIP("needs an X display and xdotool");
    drag("beforeListWidget", 1, "afterListWidget", 1, false);
    QTRY_COMPARE(after(), (QStringList{"append(,)", "left(3)", "curRight(1)"}));
    QTRY_COMPARE(before(), (QStringList{"trim", "newLine(LF)"}));
    drag("afterListWidget", 0, "beforeListWidget", 1, true);
    QTRY_COMPARE(before(), (QStringList{"trim", "newLine(LF)", "append(,)"}));
    QTRY_COMPARE(after(), (QStringList{"left(3)", "curRight(1)"}));
}

void TestRuleDialog::aMethodIsChosenByTheMouse()
{
    if (!hasHands())
        QSKIP("needs an X display and xdotool");
    openPage(3);
    auto *box = find<QComboBox>("replaceBox");
    useMouse(moveMouse(box->mapToGlobal(box->rect().center())) + QStringList{"click", "1"});
    QTRY_VERIFY(box->view()->isVisible());
    QTest::qWait(QApplication::doubleClickInterval()); // or the list takes it for the same click
    const QPoint row = box->view()->visualRect(box->model()->index(2, 0)).center();
    useMouse(moveMouse(box->view()->viewport()->mapToGlobal(row)) + QStringList{"click", "1"});
    QTRY_COMPARE(box->currentIndex(), 2);
    QTRY_VERIFY(find<QLineEdit>("replaceEdit")->hasFocus());
    useMouse({"type", "x"});
    QTRY_COMPARE(find<QLineEdit>("replaceEdit")->text(), QString("x"));
}

QTEST_MAIN(TestRuleDialog)
#include "tst_ruledialog.moc"
