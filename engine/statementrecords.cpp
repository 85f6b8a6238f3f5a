#include "engine/statementrecords.h"

#include "engine/outputrowbuilder.h"
#include "engine/outputrows.h"
#include "engine/table.h"

namespace {

// A statement field is filled as an output item is, from input columns only.
QList<OutputItem> itemsOf(const StatementFieldList &fields)
{
    QList<OutputItem> items;
    for (const StatementField &field : fields) {
        OutputItem item;
        for (int i = 0; field.toPrint && i < field.mapNums.size(); ++i)
            item.appendMapping(InputSource, field.mapNums.at(i), field.mappings.value(i));
        item.separator = field.separator;
        item.rules = field.rules;
        items.append(item);
    }
    return items;
}

} // namespace

StatementData buildStatementRecords(const StatementSetting &setting, const Table &table,
                                    const OutputRows &rows)
{
    const OutputRowBuilder builder(itemsOf(setting.fields), CompanyInfo());
    Table::Row cursor(table, 0, builder.columnLimit(builder.itemCount()));
    StatementData data(setting);
    WorkingText value;
    const auto addRecord = [&](quint32 inputRow) {
        cursor.moveTo(int(inputRow));
        StatementTexts texts;
        for (int field = 0; field < StatementFields::Count; ++field) {
            if (!data.prints(StatementFields::Field(field)))
                continue;
            builder.buildValue(field, cursor, value);
            texts[size_t(field)] = value.toString();
        }
        data.addRecord(texts);
    };

    for (int row = 0; row < rows.count(); ++row) {
        const quint32 kept = rows.firstInputRow(row);
        addRecord(kept);
        for (quint32 removed = rows.nextInputRow(kept); removed != RowGroups::none;
             removed = rows.nextInputRow(removed)) {
            // At once, so that only the last record ever goes: merging takes no longer the more
            // records there are.
            addRecord(removed);
            data.mergeRecords(row, row + 1);
        }
    }
    data.computeAmounts();
    return data;
}
