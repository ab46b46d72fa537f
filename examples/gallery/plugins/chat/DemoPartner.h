#pragma once

#include <QtWebSockets/QWebSocketServer>

class QWebSocket;

/// A chat partner on the loopback interface: greets, and answers each message with its length.
class DemoPartner : public QWebSocketServer {
    Q_OBJECT

public:
    DemoPartner();

private:
    void Accept();
};
