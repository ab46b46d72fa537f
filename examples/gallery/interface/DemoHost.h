#pragma once

#include <QtCore/QString>
#include <QtCore/QUrl>
#include <QtNetwork/QHostAddress>

/// The host name that stands for a panel's own server in a URL that the user types.
inline constexpr QLatin1String DemoHost("demo");

/// Returns \a url with DemoHost replaced by address and port of \a server, which is a QTcpServer or
/// a QWebSocketServer. Other URLs stay as they are.
template <class Server> QUrl ResolveDemoHost(const QUrl &url, const Server &server)
{
    QUrl resolved = url;
    if (url.host() == DemoHost) {
        resolved.setHost(server.serverAddress().toString());
        resolved.setPort(server.serverPort());
    }
    return resolved;
}
