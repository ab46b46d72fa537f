#pragma once

#include <QtCore/QByteArray>
#include <QtNetwork/QTcpServer>

class QTcpSocket;

/// A small HTTP server on the loopback interface, for trying the panel without a network: /text,
/// /picture, /slow (a second of small pieces), /never (no answer), /echo (the body comes back), all
/// else is 404.
class DemoServer : public QTcpServer {
    Q_OBJECT

public:
    DemoServer();

private:
    void Accept();
    void Read(QTcpSocket *socket);
    void Answer(QTcpSocket *socket, const QByteArray &method, const QByteArray &path,
                const QByteArray &body);
    void Send(QTcpSocket *socket, const QByteArray &status, const QByteArray &type,
              const QByteArray &body);
    void SendSlowly(QTcpSocket *socket);
};
