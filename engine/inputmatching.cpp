#include "engine/inputmatching.h"

#include "engine/csvreader.h"
#include "engine/runreporter.h"
#include "engine/runtexts.h"
#include "engine/table.h"

#include <QFile>

namespace {

void reportUnreadable(const QString &reason, RunReporter &reporter)
{
    reporter.error(RunTexts::cannotOpenInput().arg(reason));
}

// A file that breaks off halfway must not pass as a short one.
bool checkRead(const QFile &file, RunReporter &reporter)
{
    if (file.error() == QFileDevice::NoError)
        return true;
    reportUnreadable(file.errorString(), reporter);
    return false;
}

// Opens a file and compares its headings. Returns false after an error was reported.
bool openAndCompare(QFile &file, const InputForm &form, bool *matches, RunReporter &reporter)
{
    QString reason;
    if (!openCsvFile(file, &reason)) {
        reportUnreadable(reason, reporter);
        return false;
    }
    *matches = readCsv(file, 1).row(0) == form.heads;
    return checkRead(file, reporter);
}

// Reads the rows of an open file. Returns false after an error was reported.
bool readRows(QFile &file, TextRows *rows, RunReporter &reporter)
{
    *rows = readCsv(file);
    return checkRead(file, reporter);
}

} // namespace

bool loadSingleForm(const InputForm &form, const QStringList &files, Table &table,
                    RunReporter &reporter)
{
    table.clear();
    for (const QString &path : files) {
        QFile file(path);
        bool matches = false;
        if (!openAndCompare(file, form, &matches, reporter))
            return false;
        if (!matches) {
            reporter.error(RunTexts::inputDoesNotMatch());
            return false;
        }
        TextRows rows;
        if (!readRows(file, &rows, reporter))
            return false;
        if (table.isEmpty())
            table.setRows(std::move(rows));
        else
            table.appendDataRows(std::move(rows));
    }
    return true;
}

bool loadMultipleForms(const QList<InputForm> &forms, const QStringList &files, Table &table,
                       RunReporter &reporter)
{
    if (files.size() != forms.size()) {
        reporter.error(RunTexts::wrongNumberOfInputs());
        return false;
    }
    table.clear();
    QStringList remaining = files;
    for (const InputForm &form : forms) {
        bool found = false;
        for (int i = 0; i < remaining.size() && !found; ++i) {
            QFile file(remaining.at(i));
            if (!openAndCompare(file, form, &found, reporter))
                return false;
            if (!found)
                continue;
            TextRows rows;
            if (!readRows(file, &rows, reporter))
                return false;
            // The stored pair is handed over crosswise, as existing settings rely on. A pair that
            // the join refuses leaves the table as it is; the file counts as used all the same.
            if (table.isEmpty())
                table.setRows(std::move(rows));
            else
                table.join(std::move(rows), form.key, form.targetKey);
            remaining.removeAt(i);
        }
        if (!found) {
            reporter.error(RunTexts::noProperInput());
            return false;
        }
    }
    return true;
}
