// The output part of a convert setting: one record for each column of the output file.
#pragma once

#include <QList>
#include <QStringList>

class QSettings;

/// Where a value of an output item comes from.
enum SourceKind {
    CompanySource = 0, ///< a field of the company information, by its number
    InputSource = 1    ///< a column of the joined input table, by its index
};

/// One column of the output file. The lists that begin with "map" (and `mappings`) are parallel, so
/// are those that begin with "cond" (and `conditions`); the functions below keep them so.
/// Flags are texts because the settings file keeps them as texts.
struct OutputItem {
    QString name;            ///< the heading in the output file
    QList<int> mapSources;   ///< SourceKind of each mapped value
    QList<int> mapNums;      ///< number of each mapped value within its source
    QStringList mappings;    ///< what the user sees of each mapped value
    QString separator;       ///< put between the mapped values
    QList<int> condSources;  ///< SourceKind of each tested value
    QList<int> condNums;     ///< number of each tested value within its source
    QStringList conditions;  ///< what the user sees of each tested value
    QStringList condRules;   ///< the condition text of each tested value
    QString condCombination; ///< "AND" or "OR"; anything else never holds
    QStringList rules;       ///< applied to the joined value
    QStringList afterRules;  ///< applied after duplicates were merged
    QString distinct;        ///< "YES": counts for the removal of duplicates
    QString merge;           ///< "STRING", "NUMBER"; anything else keeps the first row's value
    QString mergeSeparator;  ///< put before each text that a "STRING" merge adds

    bool operator==(const OutputItem &other) const;

    /// Adds a mapped value at the end of the three lists.
    void appendMapping(int source, int number, const QString &text);
    /// Removes a mapped value from the three lists; an index outside them does nothing.
    void removeMapping(int index);
    /// Adds a tested value, its condition text still empty, at the end of the four lists. The first
    /// one sets the combination to "AND".
    void appendCondition(int source, int number, const QString &text);
    /// Removes a tested value from the four lists; an index outside them does nothing.
    void removeCondition(int index);

    bool isDistinct() const { return distinct == QLatin1String("YES"); }
    bool mergesTexts() const { return merge == QLatin1String("STRING"); }
    bool mergesNumbers() const { return merge == QLatin1String("NUMBER"); }
    bool merges() const { return mergesTexts() || mergesNumbers(); }
};

/// Reads the output items of the named setting in their order. What is absent reads as empty, an
/// absent `distinct` as "NO".
QList<OutputItem> loadOutputItems(const QString &settingName);

/// Writes the output items of the named setting. Entries of a longer list that stood there before
/// stay in the file, beyond the written size.
void saveOutputItems(const QString &settingName, const QList<OutputItem> &items);
/// The same as a part of what is written to the file when the settings object is destroyed.
void saveOutputItems(QSettings &settings, const QString &settingName,
                     const QList<OutputItem> &items);
