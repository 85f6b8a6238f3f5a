#include "tests/update/httpserver.h"

#include <QNetworkProxy>
#include <QTcpSocket>

HttpServer::HttpServer(Manner manner, const QByteArray &reply) : m_manner(manner), m_reply(reply)
{
    setProxy(QNetworkProxy::NoProxy); // where a test makes this server the proxy of its program
    connect(this, &QTcpServer::newConnection, this, &HttpServer::serve);
    if (!listen(QHostAddress::LocalHost))
        qFatal("no server on this machine: %s", qPrintable(errorString()));
}

QByteArray HttpServer::reply(const QByteArray &body, const QByteArray &status,
                             const QByteArray &headers)
{
    return "HTTP/1.1 " + status + "\r\nContent-Type: text/xml\r\nContent-Length: "
        + QByteArray::number(body.size()) + "\r\n" + headers + "Connection: close\r\n\r\n" + body;
}

QUrl HttpServer::url(const QString &path) const
{
    QUrl url(QStringLiteral("http://127.0.0.1"));
    url.setPort(serverPort());
    url.setPath(path);
    return url;
}

void HttpServer::serve()
{
    QTcpSocket *socket = nextPendingConnection();
    ++m_openConnections;
    connect(socket, &QTcpSocket::disconnected, this, [this] { --m_openConnections; });
    connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    connect(socket, &QTcpSocket::bytesWritten, this, [this, socket](qint64 bytes) {
        m_bytesSent += bytes;
        if (m_manner == SendForever && socket->bytesToWrite() == 0)
            socket->write(QByteArray(1 << 20, ' '));
    });
    connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
        const QByteArray head = socket->peek(1 << 16);
        const int end = head.indexOf("\r\n\r\n");
        if (end < 0)
            return;
        socket->readAll();
        m_requests.append(head.left(end));
        answer(socket);
    });
}

void HttpServer::answer(QTcpSocket *socket)
{
    socket->write(m_reply);
    if (m_manner == Answer || m_manner == HangUp)
        socket->disconnectFromHost();
}
