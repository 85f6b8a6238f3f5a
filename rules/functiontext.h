// Conditions and rules are texts of the form keyword(argument). These functions take such a text
// apart. There is no escaping and no quoting: the argument runs from the first "(" to the last ")".
#pragma once

#include <QString>
#include <QStringView>

/// What stands before the first "("; the whole text where there is none.
QString functionName(const QString &text);

/// What stands between the first "(" and the last ")". A text without them gives what
/// QString::mid() makes of the missing positions: without "(" it begins at the start, without ")"
/// it runs to the end.
QString functionArgs(const QString &text);

/// functionArgs() read as a number, see toInteger().
int functionIntArg(const QString &text);

/// A text read as a base-10 32-bit integer. Blanks around the digits are allowed; a text that is
/// not wholly a number, or a number beyond 32 bits, is 0.
int toInteger(QStringView text);
