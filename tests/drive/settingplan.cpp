#include "tests/drive/settingplan.h"

#include "settings/convertsettings.h"

namespace {

ConvertSetting loadSetting(const QString &name)
{
    return {loadInputSetting(name), loadOutputItems(name), loadStatementSetting(name)};
}

/// An item with one word for each meaning: a flag that nobody has touched is empty, and an empty
/// flag means "no".
OutputItem inOneSpelling(OutputItem item)
{
    item.distinct = item.isDistinct() ? QStringLiteral("YES") : QStringLiteral("NO");
    if (!item.merges())
        item.merge = QStringLiteral("NO");
    return item;
}

QString numbers(const QList<int> &list)
{
    QStringList texts;
    for (const int number : list)
        texts.append(QString::number(number));
    return texts.join(QLatin1Char(' '));
}

QString itemText(const OutputItem &item)
{
    const QString bar = QStringLiteral(" | ");
    return QStringList{item.name,
                       numbers(item.mapSources),
                       numbers(item.mapNums),
                       item.mappings.join(bar),
                       item.separator,
                       numbers(item.condSources),
                       numbers(item.condNums),
                       item.conditions.join(bar),
                       item.condRules.join(bar),
                       item.condCombination,
                       item.rules.join(bar),
                       item.afterRules.join(bar),
                       item.distinct,
                       item.merge,
                       item.mergeSeparator}
        .join(QLatin1String("; "));
}

QString fieldText(const StatementField &field)
{
    const QString bar = QStringLiteral(" | ");
    return QStringList{field.toPrint ? QStringLiteral("printed") : QStringLiteral("not printed"),
                       field.mappings.join(bar), numbers(field.mapNums), field.separator,
                       field.rules.join(bar)}
        .join(QLatin1String("; "));
}

QString inputDifference(const InputSetting &planned, const InputSetting &built)
{
    if (built == planned)
        return QString();
    if (built.heads != planned.heads)
        return QStringLiteral("its input items are %1").arg(built.heads.join(QLatin1Char(' ')));
    return built.files == planned.files ? QStringLiteral("its examples are others")
                                        : QStringLiteral("its input forms are others");
}

QString outputDifference(const QList<OutputItem> &planned, const QList<OutputItem> &built)
{
    if (built.size() != planned.size())
        return QStringLiteral("it has %1 output items").arg(built.size());
    for (int i = 0; i < planned.size(); ++i) {
        const OutputItem wanted = inOneSpelling(planned.at(i));
        const OutputItem got = inOneSpelling(built.at(i));
        if (!(got == wanted))
            return QStringLiteral("output item %1 is\n  %2\nfor\n  %3")
                .arg(i + 1)
                .arg(itemText(got), itemText(wanted));
    }
    return QString();
}

QString statementDifference(const StatementSetting &planned, StatementSetting built)
{
    for (int i = 0; i < StatementFields::Count; ++i) {
        if (!(built.fields.at(size_t(i)) == planned.fields.at(size_t(i))))
            return QStringLiteral("statement field %1 is\n  %2\nfor\n  %3")
                .arg(StatementFields::key(i), fieldText(built.fields.at(size_t(i))),
                     fieldText(planned.fields.at(size_t(i))));
    }
    // The form always names a font, also where the program's own is meant.
    built.font = planned.font;
    return built == planned ? QString()
                            : QStringLiteral("the texts or flags of its statement are others");
}

} // namespace

RebuildPlan loadPlan()
{
    RebuildPlan plan;
    plan.company = loadCompanyInfo();
    for (const QString &name : settingNames())
        plan.settings.append({name, loadSetting(name)});
    return plan;
}

QString difference(const SettingPlan &plan)
{
    const ConvertSetting built = loadSetting(plan.name);
    QString found = inputDifference(plan.setting.input, built.input);
    if (found.isEmpty())
        found = outputDifference(plan.setting.output, built.output);
    if (found.isEmpty())
        found = statementDifference(plan.setting.statement, built.statement);
    return found;
}
