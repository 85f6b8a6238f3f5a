#include "settings/settingsgroups.h"

namespace {

const int trustedArraySize = 100000;

int highestArrayEntry(const QSettings &settings)
{
    int highest = 0;
    const QStringList groups = settings.childGroups();
    for (const QString &group : groups)
        highest = qMax(highest, group.toInt());
    return highest;
}

} // namespace

QString settingInfoGroup()
{
    return QStringLiteral("SettingInfo");
}

int beginBoundedReadArray(QSettings &settings, const QString &array)
{
    int size = qMax(0, settings.value(array + QStringLiteral("/size")).toInt());
    if (size > trustedArraySize) {
        const GroupScope scope(settings, array);
        size = qMin(size, qMax(trustedArraySize, highestArrayEntry(settings)));
    }
    settings.beginReadArray(array);
    return size;
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
