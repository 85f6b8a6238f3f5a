// Tables as text lines, one for each row, so that a failing comparison shows the row that differs.
#pragma once

#include "engine/table.h"
#include "engine/textrows.h"

#include <QStringList>

/// The fields of a row between bars; what could not be seen, or be taken for a bar, is escaped.
inline QString rowLine(const QStringList &fields)
{
    QString line = "|";
    for (const QString &field : fields) {
        for (const QChar unit : field) {
            if (unit == '\n')
                line += "\\n";
            else if (unit == '\r')
                line += "\\r";
            else if (unit == '|' || unit == '\\')
                line += QString("\\") + unit;
            else if (unit < ' ' || unit.isSurrogate() || unit >= QChar(0xFFF0)
                     || unit == QChar(0xFEFF))
                line += QStringLiteral("\\x%1;").arg(unit.unicode(), 0, 16);
            else
                line += unit;
        }
        line += '|';
    }
    return line;
}

inline QStringList tableLines(const QList<QStringList> &rows)
{
    QStringList lines;
    for (const QStringList &row : rows)
        lines.append(rowLine(row));
    return lines;
}

inline QStringList tableLines(const TextRows &rows)
{
    QStringList lines;
    for (int row = 0; row < rows.rowCount(); ++row)
        lines.append(rowLine(rows.row(row)));
    return lines;
}

inline QStringList tableLines(const Table &table)
{
    QStringList lines;
    for (int row = 0; row < table.rowCount(); ++row)
        lines.append(rowLine(table.rowTexts(row)));
    return lines;
}

/// A table written the short way: rows between blanks, fields between commas. "no,name 1,Kim"
inline QList<QStringList> rowsOf(const QString &text)
{
    QList<QStringList> rows;
    for (const QString &row : text.split(' '))
        rows.append(row.split(','));
    return rows;
}
