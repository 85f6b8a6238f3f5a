#include "settings/settingsgroups.h"

namespace {

const int greatestArraySize = 100000;

const QChar slash = QLatin1Char('/');
const QChar nul = QLatin1Char('\0');

bool isOnlyNuls(const QString &text)
{
    return text.count(nul) == text.size();
}

} // namespace

QString settingInfoGroup()
{
    return QStringLiteral("SettingInfo");
}

// An empty step becomes one NUL. A step of NULs becomes longer by one, lest it be taken for it.
QString settingPath(const QString &settingName)
{
    QStringList steps = settingName.split(slash);
    for (QString &step : steps) {
        if (isOnlyNuls(step))
            step.append(nul);
    }
    return steps.join(slash);
}

QString settingNameOfPath(const QString &path)
{
    QStringList steps = path.split(slash);
    for (QString &step : steps) {
        if (isOnlyNuls(step))
            step.chop(1);
    }
    return steps.join(slash);
}

QString settingGroup(const QString &settingName)
{
    return settingInfoGroup() + slash + settingPath(settingName);
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
