// What a conversion run says while it works. The main window shows it, tests record it.
#pragma once

#include <QString>

struct RunReporter {
    virtual ~RunReporter() = default;
    /// The step that begins now; stays true until the next status.
    virtual void status(const QString &text) = 0;
    /// The one failure that ends the run. Nothing follows it.
    virtual void error(const QString &text) = 0;
    /// How far the run is: `value` of 0 to `maximum` steps. Called at most about a thousand times
    /// in each stage (building, then writing and painting), always with the exact last value of the
    /// stage.
    virtual void progress(int value, int maximum) = 0;
    /// The statements of the run were made into this file, or could not be: then it is not there.
    /// Without a name: an old file stands in its place that must not be taken for it.
    virtual void statementFinished(const QString &pdfFile) = 0;
    /// The output file is complete. Called last, only after success.
    virtual void finished() = 0;
};
