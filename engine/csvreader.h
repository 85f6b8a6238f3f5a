// The reader of the program's CSV dialect.
//
// The dialect is line-oriented and differs from the usual one on purpose:
// - every comma separates, also one inside quotes;
// - the heading row tells how many fields a record has: a line that gives fewer is continued by the
//   next line (so a quoted field may hold line breaks), one that gives more is dropped without a
//   word;
// - a field that begins and ends with a quote loses these two; doubled quotes inside stay doubled;
// - the heading line is trimmed as a whole, of a record only the last field is.
#pragma once

#include "engine/textrows.h"

#include <QString>

class QFile;
class QIODevice;

/// Reads an open, seekable device from its start to its end. Row 0 is the heading row, always
/// there. A byte-order mark chooses the encoding (UTF-8, UTF-16, UTF-32), otherwise it is that of
/// the system's locale. Nothing about the content is an error; a line that no memory can hold
/// throws std::bad_alloc. The device leaves text mode: line ends are translated here, and only a
/// carriage return directly before a line feed goes.
TextRows readCsv(QIODevice &device);

/// As readCsv(), for the first `maximumRows` rows (the heading row counts).
TextRows readCsv(QIODevice &device, int maximumRows);

/// Opens a file for readCsv(). When that is not possible, `errorText` tells why.
bool openCsvFile(QFile &file, QString *errorText);
