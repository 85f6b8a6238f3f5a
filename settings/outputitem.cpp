#include "settings/outputitem.h"

#include "settings/settings.h"
#include "settings/settingsgroups.h"

namespace {

// A damaged settings file may hold lists of different lengths: each list is treated by itself.
template <typename List> void removeFrom(List &list, int index)
{
    if (index >= 0 && index < list.size())
        list.removeAt(index);
}

} // namespace

bool OutputItem::operator==(const OutputItem &other) const
{
    return name == other.name && mapSources == other.mapSources && mapNums == other.mapNums
        && mappings == other.mappings && separator == other.separator
        && condSources == other.condSources && condNums == other.condNums
        && conditions == other.conditions && condRules == other.condRules
        && condCombination == other.condCombination && rules == other.rules
        && afterRules == other.afterRules && distinct == other.distinct && merge == other.merge
        && mergeSeparator == other.mergeSeparator;
}

void OutputItem::appendMapping(int source, int number, const QString &text)
{
    mapSources.append(source);
    mapNums.append(number);
    mappings.append(text);
}

void OutputItem::removeMapping(int index)
{
    removeFrom(mapSources, index);
    removeFrom(mapNums, index);
    removeFrom(mappings, index);
}

void OutputItem::appendCondition(int source, int number, const QString &text)
{
    condSources.append(source);
    condNums.append(number);
    conditions.append(text);
    condRules.append(QString());
    if (condCombination.isEmpty())
        condCombination = QStringLiteral("AND");
}

void OutputItem::removeCondition(int index)
{
    removeFrom(condSources, index);
    removeFrom(condNums, index);
    removeFrom(conditions, index);
    removeFrom(condRules, index);
}

static QList<OutputItem> readOutputItems(const QString &settingName)
{
    Settings settings(nullptr);
    const GroupScope setting(settings, settingGroup(settingName));

    const auto text = [&settings](const char *key) {
        return settings.value(QLatin1String(key)).toString();
    };
    const auto texts = [&settings](const char *key) {
        return settings.value(QLatin1String(key)).toStringList();
    };
    QList<OutputItem> items;
    const int count = beginBoundedReadArray(settings, QStringLiteral("output"));
    for (int i = 0; i < count; ++i) {
        settings.setArrayIndex(i);
        OutputItem item;
        item.name = text("name");
        item.mapSources = textsToNumbers(texts("mapSources"));
        item.mapNums = textsToNumbers(texts("mapNums"));
        item.mappings = texts("mappings");
        item.separator = text("separator");
        item.condSources = textsToNumbers(texts("condSources"));
        item.condNums = textsToNumbers(texts("condNums"));
        item.conditions = texts("conditions");
        item.condRules = texts("condRules");
        item.condCombination = text("condCombination");
        item.rules = texts("rules");
        item.afterRules = texts("afterRules");
        item.distinct = settings.value(QStringLiteral("distinct"), QStringLiteral("NO")).toString();
        item.merge = text("merge");
        item.mergeSeparator = text("mergeSeparator");
        items.append(item);
    }
    settings.endArray();
    return items;
}

QList<OutputItem> loadOutputItems(const QString &settingName)
{
    return tolerantly([&] { return readOutputItems(settingName); });
}

void saveOutputItems(const QString &settingName, const QList<OutputItem> &items)
{
    Settings settings(nullptr);
    saveOutputItems(settings, settingName, items);
}

void saveOutputItems(QSettings &settings, const QString &settingName,
                     const QList<OutputItem> &items)
{
    const GroupScope setting(settings, settingGroup(settingName));

    settings.beginWriteArray(QStringLiteral("output"), items.size());
    for (int i = 0; i < items.size(); ++i) {
        const OutputItem &item = items.at(i);
        settings.setArrayIndex(i);
        settings.setValue(QStringLiteral("name"), item.name);
        settings.setValue(QStringLiteral("mapSources"), numbersToTexts(item.mapSources));
        settings.setValue(QStringLiteral("mapNums"), numbersToTexts(item.mapNums));
        settings.setValue(QStringLiteral("mappings"), item.mappings);
        settings.setValue(QStringLiteral("separator"), item.separator);
        settings.setValue(QStringLiteral("condSources"), numbersToTexts(item.condSources));
        settings.setValue(QStringLiteral("condNums"), numbersToTexts(item.condNums));
        settings.setValue(QStringLiteral("conditions"), item.conditions);
        settings.setValue(QStringLiteral("condRules"), item.condRules);
        settings.setValue(QStringLiteral("condCombination"), item.condCombination);
        settings.setValue(QStringLiteral("rules"), item.rules);
        settings.setValue(QStringLiteral("afterRules"), item.afterRules);
        settings.setValue(QStringLiteral("distinct"), item.distinct);
        settings.setValue(QStringLiteral("merge"), item.merge);
        settings.setValue(QStringLiteral("mergeSeparator"), item.mergeSeparator);
    }
    settings.endArray();
}
