// Asks the maker's web site once, in the background, for the number of the latest version. Whatever
// goes wrong on the way is not the user's concern: nothing is shown, stored or asked again.
#pragma once

#include "update/makersite.h"
#include "update/versiondocument.h"

#include <QObject>
#include <optional>

class QNetworkReply;

class Updater : public QObject
{
    Q_OBJECT

public:
    /// The most bytes that are taken of a reply; a longer one ends the check. The document has some
    /// hundred bytes.
    static constexpr qint64 largestReply = qint64(64) << 20;

    explicit Updater(QObject *parent = nullptr, const QUrl &document = latestVersionUrl());

    /// Sends the question and returns at once. To be called once.
    void check();

signals:
    /// There is a newer version. The texts are the program's own version and the latest one just as
    /// the web site writes it.
    void updateAvailable(const QString &currentVersion, const QString &latestVersion);

private slots:
    /// Takes a finished reply; one that failed has a body that names no version.
    void readXML(QNetworkReply *reply);

private:
    void readPart(QNetworkReply *reply);

    const QUrl m_document;
    std::optional<VersionDocumentReader> m_reader;
    qint64 m_received = 0; ///< bytes of the reply so far
};
