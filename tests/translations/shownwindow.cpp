#include "tests/translations/shownwindow.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QStackedWidget>
#include <QStatusBar>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTabWidget>
#include <QTableView>
#include <QToolBox>
#include <memory>

namespace {

/// Combo boxes whose entries are the names of settings, files, folders or fonts.
bool showsData(const QComboBox &box)
{
    static const QStringList names{"convertSetting", "inputFileComboBox", "fontComboBox",
                                   "lookInCombo"};
    return names.contains(box.objectName());
}

int textWidth(const QWidget &widget, const QString &text)
{
    int width = 0;
    const QStringList lines = text.split('\n');
    for (const QString &line : lines)
        width = qMax(width, widget.fontMetrics().horizontalAdvance(line));
    return width;
}

/// Collects what does not fit.
class FitCheck
{
public:
    QStringList cut;

    void look(const QWidget &widget)
    {
        if (const auto *label = qobject_cast<const QLabel *>(&widget))
            lookAtLabel(*label);
        else if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
            lookAtButton(*button);
        else if (const auto *box = qobject_cast<const QComboBox *>(&widget))
            lookAtComboBox(*box);
        else if (const auto *spinBox = qobject_cast<const QSpinBox *>(&widget))
            need(widget, spinBox->minimumSizeHint(), widget.size(), spinBox->text());
        else if (const auto *group = qobject_cast<const QGroupBox *>(&widget))
            needWidth(widget, textWidth(widget, group->title()) + 16, widget.width(),
                      group->title());
        else if (const auto *tabs = qobject_cast<const QTabBar *>(&widget))
            needWidth(widget, tabs->sizeHint().width(), widget.width(), tabs->tabText(0) + " ...");
        else if (const auto *header = qobject_cast<const QHeaderView *>(&widget))
            lookAtHeader(*header);
        else if (const auto *menuBar = qobject_cast<const QMenuBar *>(&widget))
            needWidth(widget, menuBar->sizeHint().width(), widget.width(), "the menus");
        else if (const auto *edit = qobject_cast<const QLineEdit *>(&widget))
            needWidth(widget, textWidth(widget, edit->placeholderText()) + 12, widget.width(),
                      edit->placeholderText());
    }
    void lookAtStatusTip(const QStatusBar &statusBar, const QObject &from, const QString &tip)
    {
        if (textWidth(statusBar, tip) + 12 > statusBar.width())
            cut.append(from.objectName() + ", status tip: " + tip);
    }

private:
    void need(const QWidget &widget, QSize needed, QSize given, const QString &text)
    {
        if (needed.width() <= given.width() && needed.height() <= given.height())
            return;
        cut.append(QStringLiteral("%1 has %2x%3, needs %4x%5: %6")
                       .arg(widget.objectName())
                       .arg(given.width())
                       .arg(given.height())
                       .arg(needed.width())
                       .arg(needed.height())
                       .arg(text));
    }
    void needWidth(const QWidget &widget, int needed, int given, const QString &text)
    {
        need(widget, QSize(needed, 0), QSize(given, 0), text);
    }
    /// What lies beyond the edge of a parent is not seen either.
    void needAllOf(const QWidget &widget, const QString &text)
    {
        need(widget, widget.size(), widget.visibleRegion().boundingRect().size(), text);
    }
    void lookAtLabel(const QLabel &label)
    {
        if (label.text().isEmpty())
            return;
        const QSize needed = label.wordWrap()
            ? QSize(label.width(), label.heightForWidth(label.width()))
            : label.sizeHint();
        need(label, needed, label.size(), label.text());
        needAllOf(label, label.text());
    }
    void lookAtButton(const QAbstractButton &button)
    {
        if (button.text().isEmpty())
            return;
        need(button, button.sizeHint(), button.size(), button.text());
        needAllOf(button, button.text());
    }
    void lookAtComboBox(const QComboBox &box)
    {
        if (showsData(box))
            return;
        QStyleOptionComboBox option;
        option.initFrom(&box);
        option.editable = box.isEditable();
        const int room =
            box.style()
                ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box)
                .width();
        for (int i = 0; i < box.count(); ++i)
            needWidth(box, textWidth(box, box.itemText(i)), room, box.itemText(i));
    }
    void lookAtHeader(const QHeaderView &header)
    {
        if (header.orientation() == Qt::Vertical) {
            needWidth(header, header.sizeHint().width(), header.width(), "the headings");
            return;
        }
        for (int section = 0; section < header.count(); ++section) {
            const QString heading = header.model()->headerData(section, Qt::Horizontal).toString();
            if (!header.isSectionHidden(section))
                needWidth(header, header.sectionSizeHint(section), header.sectionSize(section),
                          heading);
        }
    }
};

/// Collects what can be read.
class Reader
{
public:
    QList<ShownText> texts;

    void read(QWidget &widget)
    {
        add(widget, "title", widget.windowTitle());
        add(widget, "tip", widget.toolTip());
        add(widget, "status tip", widget.statusTip());
        add(widget, "help", widget.whatsThis());
        add(widget, "name for screen readers", widget.accessibleName());
        add(widget, "description for screen readers", widget.accessibleDescription());
        if (const auto *label = qobject_cast<QLabel *>(&widget))
            add(widget, "text", label->text());
        else if (const auto *button = qobject_cast<QAbstractButton *>(&widget))
            add(widget, "text", button->text());
        else if (const auto *group = qobject_cast<QGroupBox *>(&widget))
            add(widget, "title", group->title());
        else if (const auto *box = qobject_cast<QComboBox *>(&widget))
            readComboBox(*box);
        else if (const auto *tabs = qobject_cast<QTabBar *>(&widget))
            readTabs(*tabs);
        else if (const auto *header = qobject_cast<QHeaderView *>(&widget))
            readHeader(*header);
        else if (const auto *table = qobject_cast<QTableView *>(&widget))
            readTips(*table);
        else if (auto *edit = qobject_cast<QLineEdit *>(&widget))
            readLineEdit(*edit);
        else if (auto *text = qobject_cast<QPlainTextEdit *>(&widget))
            readPlainText(*text);
    }
    void read(const QAction &action)
    {
        // Behind the tabulator stands the key.
        add(action, "text", action.text().section('\t', 0, 0));
        add(action, "tip", action.toolTip());
        add(action, "status tip", action.statusTip());
    }

private:
    void add(const QObject &from, const char *which, const QString &text)
    {
        if (!text.isEmpty())
            texts.append({from.objectName() + ", " + QLatin1String(which), text});
    }
    void readComboBox(const QComboBox &box)
    {
        for (int i = 0; i < box.count() && !showsData(box); ++i)
            add(box, "entry", box.itemText(i));
    }
    void readTabs(const QTabBar &tabs)
    {
        for (int i = 0; i < tabs.count(); ++i) {
            add(tabs, "tab", tabs.tabText(i));
            add(tabs, "tip of a tab", tabs.tabToolTip(i));
        }
    }
    void readHeader(const QHeaderView &header)
    {
        for (int section = 0; section < header.count(); ++section) {
            const QString heading =
                header.model()->headerData(section, header.orientation()).toString();
            // The columns of the input are called A to Z and so on.
            const bool isLetters = heading.size() < 3 && heading == heading.toUpper();
            if (!isLetters || header.orientation() == Qt::Vertical)
                add(header, "heading", heading);
        }
    }
    void readTips(const QTableView &table)
    {
        const QAbstractItemModel &model = *table.model();
        for (int row = 0; row < model.rowCount(); ++row) {
            for (int column = 0; column < model.columnCount(); ++column) {
                const QModelIndex cell = model.index(row, column);
                add(table, "tip of a cell", cell.data(Qt::ToolTipRole).toString());
                add(table, "status tip of a cell", cell.data(Qt::StatusTipRole).toString());
            }
        }
    }
    void readLineEdit(QLineEdit &edit)
    {
        add(edit, "placeholder", edit.placeholderText());
        readMenu(edit.createStandardContextMenu());
    }
    void readPlainText(QPlainTextEdit &text)
    {
        add(text, "placeholder", text.placeholderText());
        if (text.isReadOnly())
            add(text, "text", text.toPlainText());
        readMenu(text.createStandardContextMenu());
    }
    void readMenu(QMenu *created)
    {
        const std::unique_ptr<QMenu> menu(created);
        const QList<QAction *> actions = menu->actions();
        for (const QAction *action : actions)
            read(*action);
    }
};

QList<QWidget *> widgetsOf(QWidget &window)
{
    return QList<QWidget *>{&window} + window.findChildren<QWidget *>();
}

} // namespace

void forEachPage(QWidget &window, const std::function<void()> &look)
{
    const auto open = [&look](auto *pages) {
        const int before = pages->currentIndex();
        for (int page = 0; page < pages->count(); ++page) {
            pages->setCurrentIndex(page);
            QCoreApplication::processEvents();
            look();
        }
        pages->setCurrentIndex(before);
    };
    look();
    const QList<QTabWidget *> tabs = window.findChildren<QTabWidget *>();
    for (QTabWidget *pages : tabs)
        open(pages);
    const QList<QToolBox *> boxes = window.findChildren<QToolBox *>();
    for (QToolBox *pages : boxes)
        open(pages);
    const QList<QStackedWidget *> stacks = window.findChildren<QStackedWidget *>();
    for (QStackedWidget *pages : stacks) {
        if (qobject_cast<QTabWidget *>(pages->parent()) == nullptr)
            open(pages);
    }
}

QStringList cutTexts(QWidget &window)
{
    FitCheck check;
    const QStatusBar *statusBar = window.findChild<QStatusBar *>();
    const QList<QWidget *> widgets = widgetsOf(window);
    for (const QWidget *widget : widgets) {
        if (!widget->isVisible())
            continue;
        check.look(*widget);
        if (statusBar != nullptr)
            check.lookAtStatusTip(*statusBar, *widget, widget->statusTip());
    }
    const QList<QAction *> actions = window.findChildren<QAction *>();
    for (const QAction *action : actions) {
        if (statusBar != nullptr)
            check.lookAtStatusTip(*statusBar, *action, action->statusTip());
    }
    const QList<QTableView *> tables = window.findChildren<QTableView *>();
    for (const QTableView *table : tables) {
        const QAbstractItemModel &model = *table->model();
        for (int row = 0; row < model.rowCount() && statusBar != nullptr; ++row) {
            for (int column = 0; column < model.columnCount(); ++column)
                check.lookAtStatusTip(*statusBar, *table,
                                      model.index(row, column).data(Qt::StatusTipRole).toString());
        }
    }
    check.cut.removeDuplicates();
    return check.cut;
}

QList<ShownText> shownTexts(QWidget &window)
{
    Reader reader;
    const QList<QWidget *> widgets = widgetsOf(window);
    for (QWidget *widget : widgets)
        reader.read(*widget);
    const QList<QAction *> actions = window.findChildren<QAction *>();
    for (const QAction *action : actions)
        reader.read(*action);
    return reader.texts;
}
