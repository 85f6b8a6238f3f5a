#include "update/updater.h"

#include "update/programversion.h"

#include <QDebug>
#include <QNetworkAccessManager>
#include <QNetworkReply>

// In bytes: what is read at once, while the window waits.
static constexpr qint64 largestPart = 1 << 18;

Updater::Updater(QObject *parent, const QUrl &document) : QObject(parent), m_document(document) {}

void Updater::check()
{
    auto *manager = new QNetworkAccessManager(this);
    connect(manager, &QNetworkAccessManager::finished, this, &Updater::readXML);
    QNetworkReply *reply = manager->get(QNetworkRequest(m_document));
    reply->setReadBufferSize(largestPart);
    connect(reply, &QNetworkReply::readyRead, this, [this, manager, reply] {
        readPart(reply);
        if (m_received <= largestReply)
            return;
        disconnect(manager, nullptr, this, nullptr);
        reply->abort();
        reply->deleteLater();
    });
}

// Part by part, as they come: a long document is never held in memory, nor read in one go while the
// window waits.
void Updater::readPart(QNetworkReply *reply)
{
    const QByteArray part = reply->readAll();
    m_received += part.size();
    if (!m_reader)
        m_reader.emplace();
    m_reader->addData(part);
}

void Updater::readXML(QNetworkReply *reply)
{
    readPart(reply);
    const VersionDocument document = m_reader->finish();
    m_reader.reset();
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
