// The document of the maker's web site that names the latest version: XML of which only the text of
// the first element "version" counts, however deep it stands. It comes over the network, so nothing
// in it is trusted: no other document is ever fetched for it, it cannot take more memory or time
// than its size calls for, and no depth of elements ends the stack.
#pragma once

#include <QByteArray>
#include <QString>
#include <QXmlStreamReader>

struct VersionDocument {
    bool wellFormed = false; ///< false: the bytes as a whole are not XML, or refused
    qint64 errorLine = 0;    ///< where they stop to be, from 1
    qint64 errorColumn = 0;  ///< from 0
    /// Empty where the document names none, or is not well formed. Of a text longer than any
    /// number, only its beginning, which is still too long for one.
    QString latestVersion;
};

/// Reads a document piece by piece, as it comes from the network, and keeps nothing of it but the
/// version.
class VersionDocumentReader
{
public:
    VersionDocumentReader();

    /// Reads on.
    void addData(const QByteArray &bytes);
    /// What the document says, after its last piece. A document that breaks after its version names
    /// none.
    VersionDocument finish();

private:
    bool isCheap(const QByteArray &bytes);
    void read();

    QXmlStreamReader m_reader;
    enum { Before, Within, After } m_place = Before;
    int m_depth = 0; // of elements within the version; counted, as its bound is the sender's choice
    QString m_version;
    bool m_refused = false;
    qint64 m_size = 0;      // in bytes
    bool m_isWide = false;  // its characters are not bytes
    int m_equalsSigns = 0;  // since the last tag began
    QByteArray m_lastBytes; // for a word that begins in one piece and ends in the next
};

/// Reads a whole document.
VersionDocument readVersionDocument(const QByteArray &bytes);

/// Whether `latest` is the greater number: 1.1 is newer than 1.00, and 1.10 is not newer than 1.1.
/// A text that is not a number as a whole ("2.0 beta") counts as 0.
bool isNewerVersion(const QString &latest, const QString &current);
