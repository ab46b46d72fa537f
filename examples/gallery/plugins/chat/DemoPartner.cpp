#include "DemoPartner.h"

#include <QtNetwork/QHostAddress>
#include <QtWebSockets/QWebSocket>

const QString DemoPartner::Name = QStringLiteral("demo");

DemoPartner::DemoPartner()
    : QWebSocketServer(Name, QWebSocketServer::NonSecureMode)
{
    connect(this, &QWebSocketServer::newConnection, this, &DemoPartner::Accept);
    listen(QHostAddress::LocalHost);
}

QUrl DemoPartner::Resolve(const QUrl &url) const
{
    QUrl resolved = url;
    if (url.host() == Name) {
        resolved.setHost(serverAddress().toString());
        resolved.setPort(serverPort());
    }
    return resolved;
}

void DemoPartner::Accept()
{
    while (QWebSocket *socket = nextPendingConnection()) {
        connect(socket, &QWebSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QWebSocket::textMessageReceived, socket, [socket](const QString &text) {
            if (text == QLatin1String("bye"))
                socket->close(QWebSocketProtocol::CloseCodeNormal, QStringLiteral("bye"));
            else
                socket->sendTextMessage(
                    QStringLiteral("That was %1 characters: %2").arg(text.size()).arg(text));
        });
        socket->sendTextMessage(QStringLiteral("Welcome. Say bye and I hang up."));
    }
}
