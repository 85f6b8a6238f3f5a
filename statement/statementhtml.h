// The lower part of a statement page as rich text: order, products, amounts.
#pragma once

#include "statement/statementdata.h"

#include <QCoreApplication>
#include <QLocale>
#include <initializer_list>
#include <vector>

class StatementHtml
{
    Q_DECLARE_TR_FUNCTIONS(StatementHtml)

public:
    /// Decides once for all pages which parts appear.
    explicit StatementHtml(const StatementFlags &printed);

    /// The rich text of one record; empty when none of its parts is printed. No character of the
    /// record's texts is taken for markup; runs of blanks and line breaks show as one blank.
    QString html(const StatementRecord &record) const;

    /// The style of the text, in the given font family.
    static QString styleSheet(const QString &fontFamily);

private:
    struct Amount {
        StatementFields::Field field;
        QString label;
        qint32 StatementRecord::*value;
    };

    bool prints(StatementFields::Field field) const { return m_printed[field]; }
    bool printsAny(std::initializer_list<StatementFields::Field> fields) const;

    QString orderBlock(const StatementRecord &record) const;
    QString productHeading() const;
    QString productRow(const StatementRecord &record, int line) const;
    QString productTable(const StatementRecord &record) const;
    QString amountTable(const StatementRecord &record, const std::vector<Amount> &amounts) const;
    QString number(qint32 value) const { return m_locale.toString(value); }
    QString money(qint32 value) const;

    const StatementFlags m_printed;
    const bool m_showsOrder;
    const bool m_showsProductColumn;
    const bool m_showsProducts;
    const bool m_showsSums;
    const bool m_showsPayments;
    const std::vector<Amount> m_sums;
    const std::vector<Amount> m_payments;
    const QLocale m_locale{QLocale::Japanese, QLocale::Japan}; // groups thousands
};
