#pragma once

#include <QtCore/QUrl>
#include <QtWebSockets/QWebSocketServer>

class QWebSocket;

/// A chat partner on the loopback interface: greets, and answers each message with its length.
class DemoPartner : public QWebSocketServer {
    Q_OBJECT

public:
    /// The host name that stands for this server in a URL that the user types.
    static const QString Name;

    DemoPartner();

    /// Returns \a url with Name replaced by the server's address.
    QUrl Resolve(const QUrl &url) const;

private:
    void Accept();
};
