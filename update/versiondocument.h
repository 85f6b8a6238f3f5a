// The document of the maker's web site that names the latest version: XML of which only the text of
// the first element "version" counts, however deep it stands. It comes over the network, so nothing
// in it is trusted: no other document is ever fetched for it, entities grow only to a bound, and no
// depth of elements ends the stack.
#pragma once

#include <QByteArray>
#include <QString>

struct VersionDocument {
    bool wellFormed = false; ///< false: the bytes as a whole are not XML
    qint64 errorLine = 0;    ///< where they stop to be, from 1
    qint64 errorColumn = 0;  ///< from 0
    /// Empty where the document names none, or is not well formed.
    QString latestVersion;
};

/// Reads the whole document; one that breaks after its version names none.
VersionDocument readVersionDocument(const QByteArray &bytes);

/// Whether `latest` is the greater number: 1.1 is newer than 1.00, and 1.10 is not newer than 1.1.
/// A text that is not a number as a whole ("2.0 beta") counts as 0.
bool isNewerVersion(const QString &latest, const QString &current);
