#include "editor/ruledialog.h"

#include "editor/outputmodemodel.h"
#include "ui_ruledialog.h"

#include <QDropEvent>
#include <QShortcut>

// Moves the current rule to the end of the other list.
static void handOver(QListWidget *from, QListWidget *to)
{
    if (from->currentItem() == nullptr)
        return;
    to->addItem(from->takeItem(from->currentRow()));
    to->scrollToBottom();
}

static void moveCurrentRule(QListWidget *list, int steps)
{
    const int from = list->currentRow();
    const int to = from + steps;
    if (from < 0 || to < 0 || to >= list->count())
        return;
    list->insertItem(to, list->takeItem(from));
    list->setCurrentRow(to);
}

RuleDialog::RuleDialog(OutputModeModel *model, const QModelIndex &index, QWidget *parent)
    : AbstractRuleDialog(parent), ui(std::make_unique<Ui::RuleDialog>()), m_model(model),
      m_index(index)
{
    ui->setupUi(this);
    addStatusBar();
    setPages(ui->rulePages);
    connect(ui->cancelButton, &QPushButton::clicked, this, &RuleDialog::reject);

    const OutputItem item = model->item(index.column());
    setUpList(ui->beforeListWidget, item.rules);
    setUpList(ui->afterListWidget, item.afterRules);
    for (QListWidget *list : {ui->beforeListWidget, ui->afterListWidget}) {
        list->viewport()->installEventFilter(this);
        for (const auto &[key, steps] :
             {std::pair(Qt::ALT + Qt::Key_Up, -1), std::pair(Qt::ALT + Qt::Key_Down, 1)}) {
            auto *moveKey = new QShortcut(key, list);
            moveKey->setContext(Qt::WidgetShortcut);
            connect(moveKey, &QShortcut::activated, this,
                    [list, steps = steps] { moveCurrentRule(list, steps); });
        }
    }
    ui->beforeListWidget->installEventFilter(this);
}

RuleDialog::~RuleDialog() = default;

// Drags of other views carry data of the same type, which the list would take for rules.
bool RuleDialog::isOwnDrag(const QObject *source) const
{
    return source != nullptr && (source == ui->beforeListWidget || source == ui->afterListWidget);
}

bool RuleDialog::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        // The button itself takes no focus, so that the list keeps it when the button is pressed.
        if (watched == ui->beforeListWidget)
            ui->delBeforeButton->setEnabled(event->type() == QEvent::FocusIn);
        break;
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        if (!isOwnDrag(static_cast<QDropEvent *>(event)->source())) {
            event->ignore();
            return true;
        }
        break;
    default:
        break;
    }
    return AbstractRuleDialog::eventFilter(watched, event);
}

void RuleDialog::on_addBeforeButton_clicked()
{
    addRule(ui->beforeListWidget);
}

void RuleDialog::on_delBeforeButton_clicked()
{
    deleteRule(ui->beforeListWidget);
}

void RuleDialog::on_addAfterButton_clicked()
{
    addRule(ui->afterListWidget);
}

void RuleDialog::on_delAfterButton_clicked()
{
    deleteRule(ui->afterListWidget);
}

void RuleDialog::on_moveDownButton_clicked()
{
    handOver(ui->beforeListWidget, ui->afterListWidget);
}

void RuleDialog::on_moveUpButton_clicked()
{
    handOver(ui->afterListWidget, ui->beforeListWidget);
}

void RuleDialog::on_okButton_clicked()
{
    OutputItem item = m_model->item(m_index.column());
    item.rules = rules(ui->beforeListWidget);
    item.afterRules = rules(ui->afterListWidget);
    m_model->setItem(m_index.column(), item);
    accept();
}
