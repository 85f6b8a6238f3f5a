// Words in which a golden case is described: its columns, its input forms, its files.
#pragma once

#include "settings/companyinfo.h"
#include "settings/inputsetting.h"
#include "settings/outputitem.h"

/// One output column.
class Column
{
public:
    explicit Column(const QString &name)
    {
        m_item.name = name;
        m_item.distinct = "NO";
    }
    /// Takes these columns of the joined input table, with `separator` between them.
    Column &from(const QList<int> &columns, const QString &separator = QString())
    {
        for (const int column : columns)
            m_item.appendMapping(InputSource, column, QString("column %1").arg(column));
        m_item.separator = separator;
        return *this;
    }
    Column &company(int field)
    {
        m_item.appendMapping(CompanySource, field, QString("[field %1]").arg(field));
        return *this;
    }
    Column &separator(const QString &separator)
    {
        m_item.separator = separator;
        return *this;
    }
    /// One more tested column of the input table.
    Column &onlyIf(int column, const QString &condition)
    {
        m_item.appendCondition(InputSource, column, QString("column %1").arg(column));
        m_item.condRules.last() = condition;
        return *this;
    }
    Column &combine(const QString &word)
    {
        m_item.condCombination = word;
        return *this;
    }
    Column &rules(const QStringList &rules)
    {
        m_item.rules = rules;
        return *this;
    }
    Column &afterRules(const QStringList &rules)
    {
        m_item.afterRules = rules;
        return *this;
    }
    Column &distinct()
    {
        m_item.distinct = "YES";
        return *this;
    }
    Column &mergeTexts(const QString &separator)
    {
        m_item.merge = "STRING";
        m_item.mergeSeparator = separator;
        return *this;
    }
    Column &mergeNumbers()
    {
        m_item.merge = "NUMBER";
        return *this;
    }
    /// For what no editor would store.
    OutputItem &record() { return m_item; }
    const OutputItem &record() const { return m_item; }

private:
    OutputItem m_item;
};

/// One folder: a setting, the input files and in which order the user gives them.
struct Case {
    explicit Case(const QString &folder) : folder(folder) {}

    /// An input form. The keys are meant as they are stored: `key` becomes the column of the table
    /// that is compared with column `targetKey` of the file.
    Case &form(const QString &headings, int key = -1, int targetKey = -1)
    {
        const QString name = QString("form %1").arg(forms.size() + 1);
        forms.append({name, headings.split(','), targetKey, key});
        return *this;
    }
    Case &file(const QString &name, const QByteArray &text)
    {
        files.append({name, text});
        requested.append(name);
        return *this;
    }
    /// A file that is asked for and not there.
    Case &missingFile(const QString &name)
    {
        requested.append(name);
        return *this;
    }
    Case &column(const Column &column)
    {
        items.append(column.record());
        return *this;
    }
    Case &companyField(int field, const QString &text)
    {
        company.fields[size_t(field)] = text;
        return *this;
    }

    QString folder;
    QList<InputForm> forms;
    QList<OutputItem> items;
    CompanyInfo company;
    QList<QPair<QString, QByteArray>> files;
    QStringList requested;
};
