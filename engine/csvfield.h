// One field of a CSV line: its quotes.
#pragma once

#include <QString>
#include <QStringView>

/// Takes the first and the last character away when both are quotes (a single quote alone gives an
/// empty text). Doubled quotes inside stay doubled. The result is a part of `text`.
QStringView unquoteField(QStringView text);

/// Puts quotes around a text that does not begin and end with one already. Quotes inside are not
/// doubled.
QString quoteField(QStringView text);
