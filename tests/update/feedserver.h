#pragma once

#include "update/updatechecker.h"

#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>

/// A web server on the loopback address, from which update checkers that are made after it fetch their feed. It
/// answers every request (short enough to arrive at once) with the response set last, as it stands, and then
/// closes the connection. An empty response leaves the client waiting.
class FeedServer : public QTcpServer
{
public:
    FeedServer()
    {
        listen(QHostAddress::LocalHost);
        Update::UpdateChecker::setFeedAddress(
            QUrl(QStringLiteral("http://127.0.0.1:%1/versions.json").arg(serverPort())));
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
                requests.append(socket->readAll());
                if (response.isEmpty())
                    return;
                socket->write(response);
                socket->disconnectFromHost();
            });
        });
    }

    QByteArrayList requests;
    QByteArray response;
};
