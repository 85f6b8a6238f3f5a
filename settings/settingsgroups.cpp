#include "settings/settingsgroups.h"

namespace {

const int greatestArraySize = 100000;

} // namespace

QString settingInfoGroup()
{
    return QStringLiteral("SettingInfo");
}

int beginBoundedReadArray(QSettings &settings, const QString &array)
{
    const int size = settings.beginReadArray(array);
    return qBound(0, size, greatestArraySize);
}

bool readBool(const QSettings &settings, const QString &key, bool defaultValue)
{
    const QString text = settings.value(key).toString();
    const auto is = [&text](const char *word) {
        return text.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
    };
    if (is("true") || is("1"))
        return true;
    if (is("false") || is("0"))
        return false;
    return defaultValue;
}

QStringList numbersToTexts(const QList<int> &numbers)
{
    QStringList texts;
    texts.reserve(numbers.size());
    for (const int number : numbers)
        texts.append(QString::number(number));
    return texts;
}

QList<int> textsToNumbers(const QStringList &texts)
{
    QList<int> numbers;
    numbers.reserve(texts.size());
    for (const QString &text : texts)
        numbers.append(text.toInt());
    return numbers;
}
