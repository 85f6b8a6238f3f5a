#include "update/updater.h"

#include "update/programversion.h"
#include "update/versiondocument.h"

#include <QDebug>
#include <QNetworkAccessManager>
#include <QNetworkReply>

Updater::Updater(QObject *parent, const QUrl &document) : QObject(parent), m_document(document) {}

void Updater::check()
{
    auto *manager = new QNetworkAccessManager(this);
    connect(manager, &QNetworkAccessManager::finished, this, &Updater::readXML);
    QNetworkReply *reply = manager->get(QNetworkRequest(m_document));
    connect(reply, &QNetworkReply::readyRead, this, [this, manager, reply] {
        if (reply->bytesAvailable() <= largestReply)
            return;
        disconnect(manager, nullptr, this, nullptr);
        reply->abort();
        reply->deleteLater();
    });
}

void Updater::readXML(QNetworkReply *reply)
{
    const VersionDocument document = readVersionDocument(reply->readAll());
    reply->deleteLater();
    if (!document.wellFormed) {
        qDebug().nospace() << "load xml failed. Line " << document.errorLine << ", Column "
                           << document.errorColumn;
        return;
    }
    const QString &latest = document.latestVersion;
    if (!latest.isEmpty() && isNewerVersion(latest, programVersion()))
        emit updateAvailable(programVersion(), latest);
}
