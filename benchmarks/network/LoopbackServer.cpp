#include "LoopbackServer.h"

#include <QtCore/QSemaphore>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>
#include <QtWebSockets/QWebSocket>
#include <QtWebSockets/QWebSocketServer>

#include <pthread.h>

namespace {

QSemaphore g_listening;

QByteArray Answer(int size)
{
    return "HTTP/1.1 200 OK\r\nContent-Type: text/plain\r\nContent-Length: "
        + QByteArray::number(size) + "\r\n\r\n" + QByteArray(size, 'x');
}

// The connection is kept; requests have no body.
void Serve(QTcpSocket *socket, const QByteArray &smallAnswer, const QByteArray &largeAnswer)
{
    QObject::connect(socket, &QTcpSocket::readyRead, socket, [=] {
        const QByteArray request = socket->peek(socket->bytesAvailable());
        if (!request.contains("\r\n\r\n"))
            return;
        socket->readAll();
        socket->write(request.startsWith("GET /large") ? largeAnswer : smallAnswer);
    });
    QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
}

} // namespace

LoopbackServer::LoopbackServer()
{
    start();
    g_listening.acquire();
}

LoopbackServer::~LoopbackServer()
{
    quit();
    wait();
}

QString LoopbackServer::Http(const QString &path) const
{
    return QStringLiteral("http://127.0.0.1:%1/%2").arg(m_httpPort).arg(path);
}

QString LoopbackServer::WebSocket() const
{
    return QStringLiteral("ws://127.0.0.1:%1/").arg(m_webSocketPort);
}

double LoopbackServer::ProcessorSeconds() const
{
    timespec time {};
    clock_gettime(m_clock, &time);
    return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
}

void LoopbackServer::run()
{
    pthread_getcpuclockid(pthread_self(), &m_clock);
    const QByteArray smallAnswer = Answer(SmallSize);
    const QByteArray largeAnswer = Answer(LargeSize);
    QTcpServer http;
    QObject::connect(&http, &QTcpServer::newConnection, &http, [&] {
        while (QTcpSocket *socket = http.nextPendingConnection())
            Serve(socket, smallAnswer, largeAnswer);
    });
    http.listen(QHostAddress::LocalHost);
    m_httpPort = http.serverPort();

    QWebSocketServer echo(QStringLiteral("echo"), QWebSocketServer::NonSecureMode);
    QObject::connect(&echo, &QWebSocketServer::newConnection, &echo, [&] {
        while (QWebSocket *socket = echo.nextPendingConnection())
            QObject::connect(socket, &QWebSocket::textMessageReceived, socket,
                             [socket](const QString &text) { socket->sendTextMessage(text); });
    });
    echo.listen(QHostAddress::LocalHost);
    m_webSocketPort = echo.serverPort();

    g_listening.release();
    exec();
}
