// The contents tree, the index and the project file that the help compiler reads.
//
// An entry whose letters do not all stand in code page 949 has two names: the first one is what
// viewers show that know no number references, the last one what the others show. Which of several
// names a viewer takes has been tried in those of Debian (xCHM: the first, KchmViewer: the last).
#pragma once

#include "help/maker/helppage.h"

/// One book for each language, its pages, and the sections (h2) of each page.
QByteArray contentsFile(const QList<HelpPage> &pages);

struct IndexEntry {
    QString word;    ///< as the index shows it
    QString heading; ///< of the section that it leads to
    QString target;
};

/// What the index words of the headings say, in the order of the words. A word with several targets
/// is an entry for each, together with its heading: not every viewer can ask which one is meant.
QList<IndexEntry> indexEntries(const QList<HelpPage> &pages);
QByteArray indexFile(const QList<IndexEntry> &entries);

/// The names without folder and extension of the files that the compiler reads and writes.
QString helpFileName();
QByteArray projectFile(const QList<HelpPage> &pages);
