#include "common/rulepages.h"

#include "ui_rulepages.h"

#include <QKeyEvent>
#include <QLayout>
#include <QScrollArea>

namespace {

enum LengthMethod { Keep, Cut, BreakLines };
enum ReplaceMethod { Print, Delete, Replace };
enum Position { Start, End };
enum Scope { WholeValue, MatchedText };

// In the order of findBox.
const char *const conditionWords[] = {"equalTo",    "notEqualTo",    "contains", "notContains",
                                      "startsWith", "notStartsWith", "endsWith", "notEndsWith"};

QString call(const char *keyword, const QString &argument)
{
    return QLatin1String(keyword) + QLatin1Char('(') + argument + QLatin1Char(')');
}

} // namespace

RulePages::RulePages(QWidget *parent) : QWidget(parent), ui(std::make_unique<Ui::RulePages>())
{
    ui->setupUi(this);
    makeRoomForEveryPage();
    openToTheKeyboard();
}

RulePages::~RulePages() = default;

// The tool box puts each page into a scroll area, which would be content with a strip of it. All
// get the same size, so that a dialog keeps its own when the page changes.
void RulePages::makeRoomForEveryPage()
{
    const auto areas = ui->toolBox->findChildren<QScrollArea *>();
    QSize room;
    for (const QScrollArea *area : areas) {
        area->widget()->layout()->activate(); // its sizes are of a time before the texts came
        room = room.expandedTo(area->widget()->sizeHint());
    }
    for (QScrollArea *area : areas)
        area->setMinimumSize(room);
}

// The tool box is made for the mouse: its headings take no focus, its scroll areas do without
// showing it.
void RulePages::openToTheKeyboard()
{
    const auto areas = ui->toolBox->findChildren<QScrollArea *>();
    for (QScrollArea *area : areas)
        area->setFocusPolicy(Qt::NoFocus);
    const auto headings =
        ui->toolBox->findChildren<QAbstractButton *>(QString(), Qt::FindDirectChildrenOnly);
    QWidget *last = nullptr;
    for (int page = 0; page < headings.size(); ++page) {
        headings.at(page)->setFocusPolicy(Qt::StrongFocus);
        QWidgetList stops{headings.at(page)};
        stops += ui->toolBox->widget(page)->findChildren<QWidget *>(QString(),
                                                                    Qt::FindDirectChildrenOnly);
        for (QWidget *stop : qAsConst(stops)) {
            if (stop->focusPolicy() == Qt::NoFocus)
                continue;
            if (last != nullptr)
                setTabOrder(last, stop);
            last = stop;
        }
    }
}

// Return is about to press the dialog's default button; the rule that is being composed stands in
// no list yet and would be lost.
void RulePages::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        QWidget::keyPressEvent(event);
}

QString RulePages::ruleText()
{
    const QWidget *page = ui->toolBox->currentWidget();
    if (page == ui->lengthPage)
        return lengthRule();
    if (page == ui->crlfPage)
        return lineBreakRule();
    if (page == ui->insertPage)
        return insertRule();
    if (page == ui->replacePage)
        return findRule();
    if (page == ui->chracterTypePage)
        return characterKindRule();
    return blankRule();
}

QString RulePages::lengthRule() const
{
    const int length = ui->lengthSpinBox->value();
    if (length == 0)
        return QString();
    const bool fromStart = ui->lengthComboBox->currentIndex() == Start;
    const QString argument = QString::number(length);
    switch (ui->lengthComboBox2->currentIndex()) {
    case Keep:
        return call(fromStart ? "left" : "right", argument);
    case Cut:
        // Not "cutRight": every stored setting has this word. It cuts nothing, and the user's
        // settings must go on converting as they always have.
        return call(fromStart ? "cutLeft" : "curRight", argument);
    default:
        return call("breakLine", argument);
    }
}

QString RulePages::lineBreakRule() const
{
    if (ui->lfRadioButton->isChecked())
        return QStringLiteral("newLine(LF)");
    if (ui->crlfRadioButton->isChecked())
        return QStringLiteral("newLine(CRLF)");
    return QStringLiteral("newLine(REMOVE)");
}

// A comma parts the arguments of a rule, and nothing can take that meaning from it.
bool RulePages::accepts(QLineEdit *edit)
{
    if (!edit->text().contains(QLatin1Char(',')))
        return true;
    emit refused(tr("Character ',' cannot be included."));
    edit->setFocus();
    return false;
}

QString RulePages::insertRule()
{
    const QString text = ui->insertLineEdit->text();
    if (text.isEmpty() || !accepts(ui->insertLineEdit))
        return QString();
    return call(ui->insertComboBox->currentIndex() == Start ? "prepend" : "append", text);
}

QString RulePages::findRule()
{
    const QString search = ui->findEdit->text();
    if (search.isEmpty() || !accepts(ui->findEdit))
        return QString();
    QString action;
    switch (ui->replaceBox->currentIndex()) {
    case Print:
        action = QStringLiteral("print");
        break;
    case Delete:
        action = QStringLiteral("delete");
        break;
    default:
        if (!accepts(ui->replaceEdit))
            return QString();
        action = call("replace", ui->replaceEdit->text());
    }
    const char *scope =
        ui->scopeComboBox->currentIndex() == WholeValue ? "fullString" : "matchedString";
    return call("find",
                call(conditionWords[ui->findBox->currentIndex()], search) + QLatin1Char(',')
                    + QLatin1String(scope) + QLatin1Char(',') + action);
}

QString RulePages::characterKindRule() const
{
    const QPair<QRadioButton *, const char *> kinds[] = {
        {ui->lowercaseRadioButton, "lowerCase"}, {ui->uppercaseRadioButton, "upperCase"},
        {ui->fullWidthRadioButton, "fullWidth"}, {ui->halfWidthRadioButton, "halfWidth"},
        {ui->hirakanaRadioButton, "hirakana"},   {ui->katakanaRadioButton, "katakana"}};
    for (const auto &kind : kinds) {
        if (kind.first->isChecked())
            return call("charType", QLatin1String(kind.second));
    }
    return QString();
}

QString RulePages::blankRule() const
{
    return ui->trimRadioButton->isChecked() ? QStringLiteral("trim") : QStringLiteral("simplified");
}

void RulePages::setReplaceMethod(int index)
{
    const bool replaces = index == Replace;
    ui->replaceLabel->setEnabled(replaces);
    ui->replaceEdit->setEnabled(replaces);
    if (replaces)
        ui->replaceEdit->setFocus();
}

void RulePages::setLengthMethod(int index)
{
    ui->lengthComboBox->setEnabled(index != BreakLines);
}
