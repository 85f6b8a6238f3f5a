// A web server on this machine that answers every request with the same bytes, or not at all. It
// lives on the event loop of the test.
#pragma once

#include <QByteArray>
#include <QTcpServer>
#include <QUrl>

class QTcpSocket;

class HttpServer : public QTcpServer
{
    Q_OBJECT

public:
    enum Manner {
        Answer,     ///< sends the reply and closes
        HangUp,     ///< sends what there is of the reply and closes, whatever was promised
        NeverEnd,   ///< sends the reply and keeps the connection
        SendForever ///< sends the reply and then spaces for as long as somebody takes them
    };

    explicit HttpServer(Manner manner, const QByteArray &reply = QByteArray());

    /// A whole reply: status line, headers, body.
    static QByteArray reply(const QByteArray &body, const QByteArray &status = "200 OK",
                            const QByteArray &headers = QByteArray());

    /// "http", 127.0.0.1 and the port, with this path.
    QUrl url(const QString &path) const;
    /// The heads of all requests so far.
    QList<QByteArray> requests() const { return m_requests; }
    qint64 bytesSent() const { return m_bytesSent; }
    int openConnections() const { return m_openConnections; }

private:
    void serve();
    void answer(QTcpSocket *socket);

    const Manner m_manner;
    const QByteArray m_reply;
    QList<QByteArray> m_requests;
    qint64 m_bytesSent = 0;
    int m_openConnections = 0;
};
