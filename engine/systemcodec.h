// The text encoding of CSV files that carry no byte-order mark.
#pragma once

class QTextCodec;

/// The code page of the system's locale; never null. The C and POSIX locales count as UTF-8.
/// Only CSV files are read and written with it: file names keep the toolkit's own encoding.
QTextCodec *systemLocaleCodec();
