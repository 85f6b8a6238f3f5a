// Everything that the pages of one run show, ready to be painted, and who is told about the work.
#pragma once

#include "statement/statementdata.h"

struct StatementDocument {
    QString title;
    QString message; ///< below the customer's address
    QString comment; ///< at the foot of the page
    QString fontFamily;
    QString companyText; ///< the shop's own block, the same on all pages
    StatementData data;  ///< a page for each record
};

/// Is told how far the painting is.
struct StatementProgress {
    virtual ~StatementProgress() = default;
    virtual void pagePainted() = 0;
    /// All pages are painted; the file is written now.
    virtual void saving() = 0;
};

/// Makes the document into a file and returns whether that is there, whole. Whoever converts is
/// given one, so that converting needs no fonts and no printer.
using StatementGenerator = bool (*)(const StatementDocument &document, const QString &fileName,
                                    StatementProgress &progress);
