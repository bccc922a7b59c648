#pragma once

#include <QHostAddress>
#include <QList>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

/// A web server on the loopback address that answers every request with the response set last, as it
/// stands, and then closes the connection. An empty response leaves the client waiting.
class FeedServer : public QTcpServer
{
public:
    FeedServer()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, &FeedServer::accept);
    }

    [[nodiscard]] QUrl address() const
    {
        return QUrl(QStringLiteral("http://127.0.0.1:%1/versions.json").arg(serverPort()));
    }

    /// The header of every request so far.
    [[nodiscard]] const QList<QByteArray> &requests() const { return m_requests; }

    void setResponse(const QByteArray &response) { m_response = response; }
    void setBody(const QByteArray &body, const QByteArray &status = "200 OK")
    {
        m_response = "HTTP/1.1 " + status + "\r\nContent-Type: application/json\r\nContent-Length: "
            + QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n" + body;
    }

private:
    void accept()
    {
        QTcpSocket *socket = nextPendingConnection();
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QTcpSocket::readyRead, this, [this, socket, header = QByteArray()]() mutable {
            header += socket->readAll();
            if (!header.endsWith("\r\n\r\n"))
                return;
            m_requests.append(header);
            if (m_response.isEmpty())
                return;
            socket->write(m_response);
            socket->disconnectFromHost();
        });
    }

    QList<QByteArray> m_requests;
    QByteArray m_response;
};
