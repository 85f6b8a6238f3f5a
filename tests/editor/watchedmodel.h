// A model under the eyes of Qt's model tester for as long as it lives, with a log of everything it
// announces, one line for each signal in their order.
#pragma once

#include <QAbstractItemModelTester>
#include <QStringList>

template <typename Model> class WatchedModel : public Model
{
public:
    WatchedModel() : m_tester(this, QAbstractItemModelTester::FailureReportingMode::QtTest)
    {
        const auto cell = [](const QModelIndex &index) {
            return QStringLiteral("(%1,%2)").arg(index.row()).arg(index.column());
        };
        const auto log = [this](const QString &line) { m_log.append(line); };
        QObject::connect(this, &Model::dataChanged, this,
                         [=](const QModelIndex &first, const QModelIndex &last) {
                             log("data " + cell(first) + "-" + cell(last));
                         });
        QObject::connect(this, &Model::modelReset, this, [=] { log("reset"); });
        QObject::connect(this, &Model::rowsInserted, this,
                         [=](const QModelIndex &, int first, int last) {
                             log(QStringLiteral("rows inserted %1-%2").arg(first).arg(last));
                         });
        QObject::connect(this, &Model::rowsRemoved, this,
                         [=](const QModelIndex &, int first, int last) {
                             log(QStringLiteral("rows removed %1-%2").arg(first).arg(last));
                         });
        QObject::connect(this, &Model::columnsInserted, this,
                         [=](const QModelIndex &, int first, int last) {
                             log(QStringLiteral("columns inserted %1-%2").arg(first).arg(last));
                         });
        QObject::connect(this, &Model::columnsRemoved, this,
                         [=](const QModelIndex &, int first, int last) {
                             log(QStringLiteral("columns removed %1-%2").arg(first).arg(last));
                         });
        QObject::connect(
            this, &Model::columnsMoved, this,
            [=](const QModelIndex &, int first, int last, const QModelIndex &, int to) {
                log(QStringLiteral("columns %1-%2 moved before %3").arg(first).arg(last).arg(to));
            });
        QObject::connect(this, &Model::layoutChanged, this, [=] { log("layout"); });
        QObject::connect(this, &Model::headerDataChanged, this, [=] { log("header"); });
    }

    void addToLog(const QString &line) { m_log.append(line); }

    /// What was announced since the last call.
    QStringList takeLog()
    {
        const QStringList log = m_log;
        m_log.clear();
        return log;
    }

private:
    QAbstractItemModelTester m_tester;
    QStringList m_log;
};
