// The conversions to drive: a plain text file with one of them in each line,
//     setting name <TAB> output file <TAB> input file[;input file...]
// in UTF-8. Empty lines and lines that begin with "#" are skipped; paths are relative to the
// working folder.
#pragma once

#include <QList>
#include <QStringList>

struct Conversion {
    QString settingName;
    QString outputFile;     ///< absolute path
    QStringList inputFiles; ///< absolute paths
};

/// Reads the file. What is wrong with it goes to `problem`; then the list is empty.
QList<Conversion> readConversions(const QString &fileName, QString *problem);
