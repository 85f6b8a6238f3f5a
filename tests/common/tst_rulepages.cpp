// The pages on which a rule is composed, in a dialog with one list: what each page writes, what it
// refuses, what its choices do to its other fields, and that all of it can be reached by keys.
#include "tests/common/ruledialogtest.h"

#include "common/abstractruledialog.h"
#include "common/rulepages.h"

#include <QScrollArea>
#include <QVBoxLayout>

namespace {

class OneList : public AbstractRuleDialog
{
public:
    OneList() : AbstractRuleDialog(nullptr), m_list(new QListWidget)
    {
        auto *pages = new RulePages;
        auto *form = new QVBoxLayout(this);
        form->addWidget(pages);
        form->addWidget(m_list);
        m_list->setObjectName(QStringLiteral("list"));
        m_list->setAccessibleName(QStringLiteral("list"));
        addStatusBar();
        setPages(pages);
        setUpList(m_list, {});
        QMetaObject::connectSlotsByName(this);
    }

    void add() { addRule(m_list); }
    QStringList result() const { return rules(m_list); }

private:
    QListWidget *const m_list;
};

enum Page { Length, LineBreak, Insert, Find, CharacterKind, Blank };

} // namespace

class TestRulePages : public RuleDialogTest
{
    Q_OBJECT

private slots:
    void init();

    void texts();
    void choices_data();
    void choices();
    void tips_data();
    void tips();
    void everyPageBeginsWithOneRadioButtonChecked();

    void rules_data();
    void rules();
    void anEmptyPageAddsNothing_data();
    void anEmptyPageAddsNothing();
    void commasAreRefused_data();
    void commasAreRefused();
    void aCommaInAFieldThatIsNotUsedIsNoMatter();
    void onlyTheOpenPageCounts();

    void onlyAReplacementHasAText();
    void aLineBreakHasNoPosition();
    void choicesAreHeardOnce_data();
    void choicesAreHeardOnce();

    void returnDoesNotCloseTheDialog_data();
    void returnDoesNotCloseTheDialog();
    void escapeClosesTheDialog();
    void everyPageIsReachedByKeys();
    void everyPageIsSeenWhole();
    void everyWidgetHasAName();
    void theListShowsWhatIsCurrent();
    void deleteKey();

private:
    OneList *dialog() const { return static_cast<OneList *>(m_dialog.get()); }
};

void TestRulePages::init()
{
    RuleDialogTest::init();
    open(std::make_unique<OneList>());
}

// --- what the pages show ----------------------------------------------------------------------

void TestRulePages::texts()
{
    const auto *toolBox = find<QToolBox>("toolBox");
    const QList<QPair<QString, QString>> pages = {
        {"lengthPage", "문자열 길이수정"},     {"crlfPage", "개행코드 처리"},
        {"insertPage", "문자 삽입"},           {"replacePage", "문자 추출/치환"},
        {"chracterTypePage", "문자종류 변환"}, {"spaceTrimPage", "공백제거"}};
    QCOMPARE(toolBox->count(), pages.size());
    QCOMPARE(toolBox->currentIndex(), 0);
    for (int page = 0; page < pages.size(); ++page) {
        QCOMPARE(toolBox->widget(page)->objectName(), pages.at(page).first);
        QCOMPARE(toolBox->itemText(page), pages.at(page).second);
    }
    QCOMPARE(find<QRadioButton>("lfRadioButton")->text(), QString("LF(\\n)"));
    QCOMPARE(find<QRadioButton>("crlfRadioButton")->text(), QString("CRLF(\\r\\n)"));
    QCOMPARE(find<QRadioButton>("removeCrlfRradioButton")->text(), QString("없애기(한줄로)"));
    QCOMPARE(find<QRadioButton>("fullWidthRadioButton")->text(), QString("전각문자"));
    QCOMPARE(find<QRadioButton>("halfWidthRadioButton")->text(), QString("반각문자"));
    QCOMPARE(find<QRadioButton>("hirakanaRadioButton")->text(), QString("히라가나"));
    QCOMPARE(find<QRadioButton>("katakanaRadioButton")->text(), QString("카타가나"));
    QCOMPARE(find<QRadioButton>("trimRadioButton")->text(), QString("처음과 끝"));
    QCOMPARE(find<QRadioButton>("simplifiedRadioButton")->text(), QString("모든 공백"));
}

void TestRulePages::choices_data()
{
    QTest::addColumn<QStringList>("texts");

    QTest::newRow("lengthComboBox") << QStringList{"처음부터", "끝에서"};
    QTest::newRow("lengthComboBox2") << QStringList{"남기기", "잘라내기", "개행"};
    QTest::newRow("insertComboBox") << QStringList{"처음", "끝"};
    QTest::newRow("findBox") << QStringList{"과 일치",   "과 불일치",       "을 포함",
                                            "을 미포함", "으로 시작",       "으로 시작하지 않음",
                                            "으로 끝",   "으로 끝나지 않음"};
    QTest::newRow("scopeComboBox") << QStringList{"전체열", "일치문자만"};
    QTest::newRow("replaceBox") << QStringList{"추출", "제외", "치환"};
}

void TestRulePages::choices()
{
    QFETCH(QStringList, texts);

    const auto *box = find<QComboBox>(QTest::currentDataTag());
    QStringList shown;
    for (int i = 0; i < box->count(); ++i)
        shown.append(box->itemText(i));
    QCOMPARE(shown, texts);
    QCOMPARE(box->currentIndex(), 0);
}

void TestRulePages::tips_data()
{
    QTest::addColumn<QString>("tip");

    QTest::newRow("lengthComboBox") << "길이변경을 시작할 위치를 선택합니다";
    QTest::newRow("lengthSpinBox") << "변경할 길이를 지정합니다";
    QTest::newRow("lengthComboBox2") << "설정된 길이를 처리할 방법을 선택합니다";
    QTest::newRow("lfRadioButton") << "모든 개행코드를 LF개행코드로 치환합니다";
    QTest::newRow("crlfRadioButton") << "모든 개행코드를 CRLF개행코드로 치환합니다";
    QTest::newRow("removeCrlfRradioButton") << "모든 개행코드를 없애고 한줄로 만듭니다";
    QTest::newRow("insertComboBox") << "문자가 삽입될 위치를 선택합니다";
    QTest::newRow("insertLineEdit") << "삽입 될 문자를 지정합니다";
    QTest::newRow("findEdit") << "검색 할 문자를 지정합니다";
    QTest::newRow("findBox") << "검색 방법을 선택합니다";
    QTest::newRow("scopeComboBox") << "처리 범위를 선택합니다";
    QTest::newRow("replaceBox") << "처리 방법을 선택합니다";
    QTest::newRow("replaceEdit") << "치환 할 문자열을 지정합니다";
    QTest::newRow("lowercaseRadioButton") << "모든 영문자를 소문자로 치환합니다";
    QTest::newRow("uppercaseRadioButton") << "모든 영문자를 대문자로 치환합니다";
    QTest::newRow("fullWidthRadioButton") << "모든 반각문자를 대응되는 전각문자로 치환합니다";
    QTest::newRow("halfWidthRadioButton") << "모든 전각문자를 대응되는 반각문자로 치환합니다";
    QTest::newRow("hirakanaRadioButton") << "모든 카타가나문자를 히라가나문자로 치환합니다";
    QTest::newRow("katakanaRadioButton") << "모든 히라가나문자를 카타가나문자로 치환합니다";
    QTest::newRow("trimRadioButton") << "문자열의 시작과 끝 부분의 공백을 제거합니다";
    QTest::newRow("simplifiedRadioButton") << "문자열 내의 모든 공백을 제거합니다";
}

void TestRulePages::tips()
{
    QFETCH(QString, tip);

    const auto *widget = find<QWidget>(QTest::currentDataTag());
    QVERIFY(widget != nullptr);
    QCOMPARE(widget->toolTip(), tip);
    QCOMPARE(widget->statusTip(), tip);
}

void TestRulePages::everyPageBeginsWithOneRadioButtonChecked()
{
    QStringList checked;
    const auto buttons = m_dialog->findChildren<QRadioButton *>();
    for (const QRadioButton *button : buttons) {
        if (button->isChecked())
            checked.append(button->objectName());
    }
    QCOMPARE(checked, (QStringList{"lfRadioButton", "lowercaseRadioButton", "trimRadioButton"}));
}

// --- the rules --------------------------------------------------------------------------------

void TestRulePages::rules_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<Entries>("entries");
    QTest::addColumn<QString>("rule");

    const auto length = [](int position, const char *number, int method) {
        return Entries{
            {"lengthSpinBox", number}, {"lengthComboBox", position}, {"lengthComboBox2", method}};
    };
    QTest::newRow("keep from the start") << int(Length) << length(0, "3", 0) << "left(3)";
    QTest::newRow("keep from the end") << int(Length) << length(1, "3", 0) << "right(3)";
    QTest::newRow("cut from the start") << int(Length) << length(0, "12", 1) << "cutLeft(12)";
    QTest::newRow("cut from the end keeps its old word")
        << int(Length) << length(1, "12", 1) << "curRight(12)";
    QTest::newRow("break lines") << int(Length) << length(0, "40", 2) << "breakLine(40)";
    QTest::newRow("break lines, whatever the position")
        << int(Length) << length(1, "40", 2) << "breakLine(40)";
    QTest::newRow("a long length") << int(Length) << length(0, "99999", 0) << "left(99999)";

    QTest::newRow("LF") << int(LineBreak) << Entries{{"lfRadioButton", 1}} << "newLine(LF)";
    QTest::newRow("CRLF") << int(LineBreak) << Entries{{"crlfRadioButton", 1}} << "newLine(CRLF)";
    QTest::newRow("one line") << int(LineBreak) << Entries{{"removeCrlfRradioButton", 1}}
                              << "newLine(REMOVE)";

    QTest::newRow("prepend") << int(Insert)
                             << Entries{{"insertComboBox", 0}, {"insertLineEdit", "No."}}
                             << "prepend(No.)";
    QTest::newRow("append") << int(Insert)
                            << Entries{{"insertComboBox", 1}, {"insertLineEdit", " ea"}}
                            << "append( ea)";
    QTest::newRow("a text of blanks is a text")
        << int(Insert) << Entries{{"insertLineEdit", "  "}} << "prepend(  )";
    QTest::newRow("brackets are texts")
        << int(Insert) << Entries{{"insertLineEdit", "(a)b)"}} << "prepend((a)b))";

    const QStringList words{"equalTo",    "notEqualTo",    "contains", "notContains",
                            "startsWith", "notStartsWith", "endsWith", "notEndsWith"};
    const QList<QPair<QString, QString>> actions = {
        {"print", ""}, {"delete", ""}, {"replace(y)", "y"}, {"replace()", ""}};
    for (int word = 0; word < words.size(); ++word) {
        for (int scope = 0; scope < 2; ++scope) {
            for (int action = 0; action < actions.size(); ++action) {
                Entries entries{{"findEdit", "x"},
                                {"findBox", word},
                                {"scopeComboBox", scope},
                                {"replaceBox", qMin(action, 2)}};
                if (action >= 2)
                    entries.append({"replaceEdit", actions.at(action).second});
                const QString rule =
                    QStringLiteral("find(%1(x),%2,%3)")
                        .arg(words.at(word), scope == 0 ? "fullString" : "matchedString",
                             actions.at(action).first);
                QTest::newRow(qPrintable(rule)) << int(Find) << entries << rule;
            }
        }
    }
    QTest::newRow("a search for a blank")
        << int(Find) << Entries{{"findEdit", " "}} << "find(equalTo( ),fullString,print)";

    const QStringList kinds{"lowerCase", "upperCase", "fullWidth",
                            "halfWidth", "hirakana",  "katakana"};
    const QStringList kindButtons{"lowercaseRadioButton", "uppercaseRadioButton",
                                  "fullWidthRadioButton", "halfWidthRadioButton",
                                  "hirakanaRadioButton",  "katakanaRadioButton"};
    for (int kind = 0; kind < kinds.size(); ++kind)
        QTest::newRow(qPrintable(kinds.at(kind)))
            << int(CharacterKind) << Entries{{kindButtons.at(kind), 1}}
            << QStringLiteral("charType(%1)").arg(kinds.at(kind));

    QTest::newRow("trim") << int(Blank) << Entries{{"trimRadioButton", 1}} << "trim";
    QTest::newRow("simplified") << int(Blank) << Entries{{"simplifiedRadioButton", 1}}
                                << "simplified";

    QTest::newRow("line breaks as the page begins") << int(LineBreak) << Entries() << "newLine(LF)";
    QTest::newRow("characters as the page begins")
        << int(CharacterKind) << Entries() << "charType(lowerCase)";
    QTest::newRow("blanks as the page begins") << int(Blank) << Entries() << "trim";
}

void TestRulePages::rules()
{
    QFETCH(int, page);
    QFETCH(Entries, entries);
    QFETCH(QString, rule);

    openPage(page);
    enter(entries);
    dialog()->add();
    QCOMPARE(dialog()->result(), QStringList{rule});
    dialog()->add();
    QCOMPARE(dialog()->result(), (QStringList{rule, rule}));
}

void TestRulePages::anEmptyPageAddsNothing_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<Entries>("entries");

    QTest::newRow("a length of 0") << int(Length) << Entries{{"lengthSpinBox", "0"}};
    QTest::newRow("a length of 0 from the end")
        << int(Length) << Entries{{"lengthComboBox", 1}, {"lengthComboBox2", 1}};
    QTest::newRow("lines of length 0") << int(Length) << Entries{{"lengthComboBox2", 2}};
    QTest::newRow("no text to insert") << int(Insert) << Entries{{"insertComboBox", 1}};
    QTest::newRow("no text to search") << int(Find) << Entries{{"findBox", 2}};
    QTest::newRow("only a text to replace it with")
        << int(Find) << Entries{{"replaceBox", 2}, {"replaceEdit", "x"}};
    QTest::newRow("only a text that would be refused")
        << int(Find) << Entries{{"replaceBox", 2}, {"replaceEdit", ","}};
}

void TestRulePages::anEmptyPageAddsNothing()
{
    QFETCH(int, page);
    QFETCH(Entries, entries);

    openPage(page);
    enter(entries);
    dialog()->add();
    QCOMPARE(dialog()->result(), QStringList());
}

void TestRulePages::commasAreRefused_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<Entries>("entries");
    QTest::addColumn<QString>("field");

    QTest::newRow("in the inserted text")
        << int(Insert) << Entries{{"insertLineEdit", "a,b"}} << "insertLineEdit";
    QTest::newRow("as the inserted text")
        << int(Insert) << Entries{{"insertLineEdit", ","}} << "insertLineEdit";
    QTest::newRow("in the search") << int(Find) << Entries{{"findEdit", "a,b"}} << "findEdit";
    QTest::newRow("in the replacement")
        << int(Find) << Entries{{"findEdit", "a"}, {"replaceBox", 2}, {"replaceEdit", "x,"}}
        << "replaceEdit";
    QTest::newRow("in both: the first field is named")
        << int(Find) << Entries{{"findEdit", ","}, {"replaceBox", 2}, {"replaceEdit", ","}}
        << "findEdit";
}

void TestRulePages::commasAreRefused()
{
    QFETCH(int, page);
    QFETCH(Entries, entries);
    QFETCH(QString, field);

    openPage(page);
    enter(entries);
    find<QListWidget>("list")->setFocus();
    AnswerMessageBox box(Qt::Key_Return);
    dialog()->add();
    QCOMPARE(box.title, QString("Error"));
    QCOMPARE(box.text, QString("Character ',' cannot be included."));
    QCOMPARE(box.icon, QMessageBox::Warning);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(dialog()->result(), QStringList());
    QCOMPARE(m_dialog->focusWidget()->objectName(), field);

    // The user mends it and goes on.
    activate();
    for (const char *name : {"insertLineEdit", "findEdit", "replaceEdit"}) {
        if (find<QLineEdit>(name)->text().contains(','))
            find<QLineEdit>(name)->setText("z");
    }
    dialog()->add();
    QCOMPARE(dialog()->result().size(), 1);
}

void TestRulePages::aCommaInAFieldThatIsNotUsedIsNoMatter()
{
    openPage(Find);
    enter({{"findEdit", "a"}, {"replaceBox", 2}, {"replaceEdit", ","}, {"replaceBox", 1}});
    dialog()->add();
    QCOMPARE(dialog()->result(), QStringList{"find(equalTo(a),fullString,delete)"});
}

void TestRulePages::onlyTheOpenPageCounts()
{
    openPage(Insert);
    enter("insertLineEdit", "a,b");
    openPage(Length);
    enter("lengthSpinBox", "7");
    openPage(Blank);
    dialog()->add();
    openPage(Length);
    dialog()->add();
    QCOMPARE(dialog()->result(), (QStringList{"trim", "left(7)"}));
}

// --- fields that depend on a choice ------------------------------------------------------------

void TestRulePages::onlyAReplacementHasAText()
{
    openPage(Find);
    auto *box = find<QComboBox>("replaceBox");
    const auto *label = find<QLabel>("replaceLabel");
    auto *edit = find<QLineEdit>("replaceEdit");
    QVERIFY(!label->isEnabled());
    QVERIFY(!edit->isEnabled());

    box->setFocus();
    QTest::keyClick(box, Qt::Key_Down);
    QVERIFY(!edit->isEnabled());
    QVERIFY(box->hasFocus());

    QTest::keyClick(box, Qt::Key_Down);
    QVERIFY(label->isEnabled());
    QVERIFY(edit->isEnabled());
    QVERIFY(edit->hasFocus());
    QTest::keyClicks(m_dialog->focusWidget(), "x");
    QCOMPARE(edit->text(), QString("x"));

    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Home}) {
        QTest::keyClick(box, key);
        QVERIFY(!label->isEnabled());
        QVERIFY(!edit->isEnabled());
        QCOMPARE(edit->text(), QString("x")); // for a user who only tries
    }
}

void TestRulePages::aLineBreakHasNoPosition()
{
    const auto *position = find<QComboBox>("lengthComboBox");
    for (int method : {2, 0, 2, 1}) {
        enter("lengthComboBox2", method);
        QCOMPARE(position->isEnabled(), method != 2);
        QVERIFY(find<QSpinBox>("lengthSpinBox")->isEnabled());
    }
}

void TestRulePages::choicesAreHeardOnce_data()
{
    QTest::addColumn<int>("count");

    QTest::newRow("replaceBox") << 1;
    QTest::newRow("lengthComboBox2") << 1;
    QTest::newRow("scopeComboBox") << 0;
}

void TestRulePages::choicesAreHeardOnce()
{
    QFETCH(int, count);

    QCOMPARE(listeners(find<QComboBox>(QTest::currentDataTag())), count);
}

// --- keys, sizes, names -------------------------------------------------------------------------

void TestRulePages::returnDoesNotCloseTheDialog_data()
{
    QTest::addColumn<int>("page");

    QTest::newRow("lengthSpinBox") << int(Length);
    QTest::newRow("lengthComboBox") << int(Length);
    QTest::newRow("crlfRadioButton") << int(LineBreak);
    QTest::newRow("insertLineEdit") << int(Insert);
    QTest::newRow("findEdit") << int(Find);
}

void TestRulePages::returnDoesNotCloseTheDialog()
{
    QFETCH(int, page);

    auto *ok = new QPushButton(m_dialog.get());
    ok->setDefault(true);
    ok->show();
    const QSignalSpy pressed(ok, &QPushButton::clicked);
    openPage(page);
    auto *widget = find<QWidget>(QTest::currentDataTag());
    widget->setFocus();
    QTest::keyClick(widget, Qt::Key_Return);
    QTest::keyClick(widget, Qt::Key_Enter);
    QCOMPARE(pressed.count(), 0);
    QTest::keyClick(m_dialog.get(), Qt::Key_Return);
    QCOMPARE(pressed.count(), 1);
}

void TestRulePages::escapeClosesTheDialog()
{
    openPage(Insert);
    find<QLineEdit>("insertLineEdit")->setFocus();
    QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Escape);
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
}

// From the first heading by Tab through each page, opening the next with Space.
void TestRulePages::everyPageIsReachedByKeys()
{
    const QList<QStringList> stops = {{"lengthComboBox", "lengthSpinBox", "lengthComboBox2"},
                                      {"lfRadioButton"}, // arrows choose among radio buttons
                                      {"insertComboBox", "insertLineEdit"},
                                      {"findEdit", "findBox", "scopeComboBox", "replaceBox"},
                                      {"lowercaseRadioButton"},
                                      {"trimRadioButton"}};
    const auto headings = this->headings();
    headings.first()->setFocus();
    for (int page = 0; page < stops.size(); ++page) {
        QCOMPARE(m_dialog->focusWidget(), headings.at(page));
        QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Space);
        QCOMPARE(find<QToolBox>("toolBox")->currentIndex(), page);
        for (const QString &stop : stops.at(page)) {
            QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Tab);
            QCOMPARE(m_dialog->focusWidget()->objectName(), stop);
        }
        QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(m_dialog->focusWidget()->objectName(), QString("list"));
}

void TestRulePages::everyPageIsSeenWhole()
{
    m_dialog->resize(m_dialog->minimumSizeHint());
    const QSize size = m_dialog->size();
    const auto areas = find<QToolBox>("toolBox")->findChildren<QScrollArea *>();
    QCOMPARE(areas.size(), 6);
    for (int page = 0; page < areas.size(); ++page) {
        openPage(page);
        QTest::qWait(1); // the page is laid out
        QCOMPARE(m_dialog->size(), size);
        const QWidget *shown = find<QToolBox>("toolBox")->currentWidget();
        const auto widgets = shown->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        QVERIFY(!widgets.isEmpty());
        for (const QWidget *widget : widgets) {
            const QRect place(widget->mapTo(shown, QPoint()), widget->size());
            QVERIFY2(shown->visibleRegion().boundingRect().contains(place)
                         && widget->width() >= widget->sizeHint().width(),
                     qPrintable(widget->objectName()));
        }
    }
}

void TestRulePages::everyWidgetHasAName()
{
    for (int page = Length; page <= Blank; ++page) {
        openPage(page);
        QCOMPARE(namelessWidgets(), QStringList());
    }
}

// --- the list -----------------------------------------------------------------------------------

void TestRulePages::theListShowsWhatIsCurrent()
{
    openPage(Blank);
    dialog()->add();
    dialog()->add();
    auto *list = find<QListWidget>("list");
    list->setFocus();
    QVERIFY(list->currentItem() != nullptr);
    QVERIFY(list->currentItem()->isSelected());
    QTest::keyClick(list, Qt::Key_Down);
    QCOMPARE(list->currentRow(), 1);
    QVERIFY(list->currentItem()->isSelected());
}

void TestRulePages::deleteKey()
{
    openPage(Insert);
    for (const char *text : {"a", "b", "c"}) {
        enter("insertLineEdit", text);
        dialog()->add();
    }
    clickRule("list", "prepend(b)");
    auto *list = find<QListWidget>("list");
    QTest::keyClick(list, Qt::Key_Delete);
    QCOMPARE(dialog()->result(), (QStringList{"prepend(a)", "prepend(c)"}));
    QVERIFY(list->currentItem()->isSelected()); // what the next press takes
    QTest::keyClick(list, Qt::Key_Delete);
    QTest::keyClick(list, Qt::Key_Delete);
    QCOMPARE(dialog()->result(), QStringList());
    QTest::keyClick(list, Qt::Key_Delete);

    // In a field the key belongs to the text.
    dialog()->add();
    list->setCurrentRow(0);
    auto *edit = find<QLineEdit>("insertLineEdit");
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Home);
    QTest::keyClick(edit, Qt::Key_Delete);
    QCOMPARE(edit->text(), QString());
    QCOMPARE(dialog()->result(), QStringList{"prepend(c)"});
}

QTEST_MAIN(TestRulePages)
#include "tst_rulepages.moc"
