// The small editors that output items and statement fields share, filled and left by the user.
#pragma once

#include <QStringList>

class Walk;

/// Composes each rule on the pages of the rule editor in front and adds it to a list.
bool composeRules(Walk &walk, const QStringList &rules, const QString &addButton,
                  const QString &list);

/// Sets what is put between mapped values in the item editor that is opening, and leaves it.
bool fillSeparator(Walk &walk, const QString &separator);
