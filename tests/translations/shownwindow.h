// What a user can read in a window, and whether there is room for it.
#pragma once

#include <QStringList>
#include <QWidget>
#include <functional>

/// Opens each page of the window's tabs, tool boxes and stacks in turn and looks at it.
void forEachPage(QWidget &window, const std::function<void()> &look);

/// Texts on the pages that are open now for which there is less room than they need, as lines that
/// begin with the name of their widget.
QStringList cutTexts(QWidget &window);

struct ShownText {
    QString where; ///< the widget's name and which of its texts
    QString text;
};

/// Every text that a window has in store for its user, on all of its pages, tips and menus
/// included; but not what the user's own data say: the names of settings, the cells of the tables,
/// the fields.
QList<ShownText> shownTexts(QWidget &window);
