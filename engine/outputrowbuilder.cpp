#include "engine/outputrowbuilder.h"

#include "rules/workingtext.h"

OutputRowBuilder::OutputRowBuilder(const QList<OutputItem> &items, const CompanyInfo &company)
{
    const auto source = [&company](int kind, int number) {
        const bool isInput = kind == InputSource;
        return Source{isInput, number, kind == CompanySource ? company.value(number) : QString()};
    };
    m_items.reserve(size_t(items.size()));
    for (const OutputItem &stored : items) {
        Item item;
        for (int i = 0; i < stored.mapNums.size(); ++i) {
            const int kind = stored.mapSources.value(i); // one that a damaged setting lacks is 0
            if (kind == InputSource || kind == CompanySource)
                item.sources.push_back(source(kind, stored.mapNums.at(i)));
        }
        item.separator = stored.separator;
        item.isConditional = !stored.conditions.isEmpty();
        item.combination = combinationOf(stored.condCombination);
        for (int i = 0; item.isConditional && i < stored.condNums.size(); ++i) {
            item.tested.push_back({source(stored.condSources.value(i), stored.condNums.at(i)),
                                   Condition(stored.condRules.value(i))});
        }
        item.rules = RuleList(stored.rules);
        m_items.push_back(std::move(item));
    }
}

int OutputRowBuilder::columnLimit(int itemCount) const
{
    int limit = 0;
    const auto reads = [&limit](const Source &source) {
        // No row has a column of the greatest number, and one more could not be told.
        if (source.isInput && source.column < INT_MAX)
            limit = qMax(limit, source.column + 1);
    };
    for (int i = 0; i < itemCount; ++i) {
        for (const Source &source : m_items[size_t(i)].sources)
            reads(source);
        for (const TestedSource &tested : m_items[size_t(i)].tested)
            reads(tested.source);
    }
    return limit;
}

bool OutputRowBuilder::passes(const Item &item, const Table::Row &inputRow)
{
    if (!item.isConditional)
        return true;
    // Conditions that are shown to the user but have lost their sources pass nothing.
    if (item.tested.empty())
        return false;
    return combinedConditionsHold(int(item.tested.size()), item.combination, [&](int i) {
        const TestedSource &tested = item.tested[size_t(i)];
        return tested.condition.holds(tested.source.value(inputRow));
    });
}

void OutputRowBuilder::buildValue(int item, const Table::Row &inputRow, WorkingText &value) const
{
    const Item &from = m_items[size_t(item)];
    value.clear();
    if (!passes(from, inputRow))
        return;
    for (const Source &source : from.sources) {
        if (&source == &from.sources.front()) {
            value.set(source.value(inputRow));
            continue;
        }
        value.append(from.separator);
        value.append(source.value(inputRow));
    }
    from.rules.apply(value);
}

QStringList OutputRowBuilder::buildOutputRow(const Table::Row &inputRow) const
{
    QStringList row;
    WorkingText value;
    for (int item = 0; item < itemCount(); ++item) {
        buildValue(item, inputRow, value);
        row.append(value.toString());
    }
    return row;
}
