// The shop that the pictures of one language show: what it calls itself, which of the sample
// settings it uses, and what stands in the dialogs that no sample fills.
#pragma once

#include "settings/companyinfo.h"
#include "settings/outputitem.h"

#include <QStringList>

struct Shop {
    QString languageName; ///< as the program's start knows it
    QString fontFamily;   ///< with the shapes that readers of this language expect
    QString settingName;
    QString inputFile; ///< in the folder of the samples
    CompanyInfo company;
    /// Two forms that are joined: the headings of each, and the same column in both.
    QStringList firstHeads;
    QStringList secondHeads;
    int firstKey;
    int secondKey;
    OutputItem itemWithConditions;
};

/// The shop for "ko" or "ja".
Shop shopOfLanguage(const QString &language);
