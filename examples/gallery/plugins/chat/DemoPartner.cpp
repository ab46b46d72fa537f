#include "DemoPartner.h"

#include "interface/DemoHost.h"

#include <QtNetwork/QHostAddress>
#include <QtWebSockets/QWebSocket>

DemoPartner::DemoPartner()
    : QWebSocketServer(DemoHost, QWebSocketServer::NonSecureMode)
{
    connect(this, &QWebSocketServer::newConnection, this, &DemoPartner::Accept);
    listen(QHostAddress::LocalHost);
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
