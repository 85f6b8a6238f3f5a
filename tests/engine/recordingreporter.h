// Writes down, line by line, everything that a run says, so that a test can compare the whole of
// it.
#pragma once

#include "engine/runreporter.h"

#include <QStringList>

struct RecordingReporter : RunReporter {
    void status(const QString &text) override
    {
        statuses.append(text);
        log.append("status: " + text);
    }
    void error(const QString &text) override
    {
        errors.append(text);
        log.append("error: " + text);
    }
    void progress(int value, int maximum) override
    {
        progresses.append(QPair<int, int>(value, maximum));
        log.append(QStringLiteral("progress: %1 of %2").arg(value).arg(maximum));
    }
    void statementFinished(const QString &pdfFile) override { log.append("statement: " + pdfFile); }
    void finished() override { log.append("finished"); }

    QStringList log;
    QStringList statuses;
    QStringList errors;
    QList<QPair<int, int>> progresses;
};
