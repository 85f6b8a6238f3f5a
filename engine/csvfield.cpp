#include "engine/csvfield.h"

namespace {

const QChar quote = QLatin1Char('"');

bool isQuoted(QStringView text)
{
    return !text.isEmpty() && text.front() == quote && text.back() == quote;
}

} // namespace

QStringView unquoteField(QStringView text)
{
    if (!isQuoted(text))
        return text;
    return text.mid(1, qMax<qsizetype>(0, text.size() - 2));
}

QString quoteField(QStringView text)
{
    QString quoted;
    if (isQuoted(text)) {
        quoted = text.toString();
    } else {
        quoted.reserve(int(text.size()) + 2);
        quoted.append(quote).append(text.data(), int(text.size())).append(quote);
    }
    return quoted;
}
