#include "rules/functiontext.h"

QString functionName(const QString &text)
{
    return text.left(text.indexOf(QLatin1Char('(')));
}

QString functionArgs(const QString &text)
{
    const int open = text.indexOf(QLatin1Char('('));
    const int close = text.lastIndexOf(QLatin1Char(')'));
    return text.mid(open + 1, close - open - 1);
}

int functionIntArg(const QString &text)
{
    return toInteger(functionArgs(text));
}

int toInteger(QStringView text)
{
    // Almost every number of an order is a few plain digits; the library's parser costs ten times
    // as much.
    if (!text.isEmpty() && text.size() <= 9) {
        int number = 0;
        for (const QChar c : text) {
            const uint digit = uint(c.unicode()) - '0';
            if (digit > 9)
                return QString::fromRawData(text.data(), int(text.size())).toInt();
            number = number * 10 + int(digit);
        }
        return number;
    }
    return QString::fromRawData(text.data(), int(text.size())).toInt();
}
