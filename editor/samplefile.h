// The beginning of a sample file, from which an input form is made.
#pragma once

#include <QList>
#include <QStringList>

class QIODevice;

struct SampleFile {
    QString formName;           ///< of the form that is made from it
    QList<QStringList> records; ///< the headings, then at most two example rows

    QStringList heads() const { return records.value(0); }
};

/// Reads an open device from its start; the form takes its name from the file's path.
SampleFile readSampleFile(QIODevice &device, const QString &filePath);
