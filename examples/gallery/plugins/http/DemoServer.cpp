#include "DemoServer.h"

#include <QtCore/QBuffer>
#include <QtCore/QTimer>
#include <QtGui/QImage>
#include <QtGui/QLinearGradient>
#include <QtGui/QPainter>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QTcpSocket>

namespace {

constexpr int SlowPieces = 20;
constexpr int PieceSize = 5000; // bytes
constexpr int PieceDelay = 50; // milliseconds

QByteArray Picture()
{
    QImage image(240, 80, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient sky(0, 0, 0, image.height());
    sky.setColorAt(0, QColor(33, 75, 152));
    sky.setColorAt(1, QColor(250, 200, 140));
    painter.fillRect(image.rect(), sky);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 240, 200));
    painter.drawEllipse(QPoint(120, 62), 22, 22);
    painter.fillRect(0, 66, image.width(), 14, QColor(30, 32, 35));
    painter.end();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

int ContentLength(const QByteArray &head)
{
    for (const QByteArray &line : head.split('\n')) {
        if (line.toLower().startsWith("content-length:"))
            return line.mid(line.indexOf(':') + 1).trimmed().toInt();
    }
    return 0;
}

QByteArray Head(const QByteArray &status, const QByteArray &type, int length)
{
    return "HTTP/1.1 " + status + "\r\nContent-Type: " + type + "\r\nContent-Length: "
        + QByteArray::number(length) + "\r\nServer: demo\r\nConnection: close\r\n\r\n";
}

} // namespace

DemoServer::DemoServer()
{
    connect(this, &QTcpServer::newConnection, this, &DemoServer::Accept);
    listen(QHostAddress::LocalHost);
}

void DemoServer::Accept()
{
    while (QTcpSocket *socket = nextPendingConnection()) {
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { Read(socket); });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    }
}

// Waits with reading until the request is whole.
void DemoServer::Read(QTcpSocket *socket)
{
    const QByteArray request = socket->peek(socket->bytesAvailable());
    const int end = request.indexOf("\r\n\r\n");
    if (end < 0)
        return;
    const QByteArray head = request.left(end);
    const QByteArray body = request.mid(end + 4);
    if (body.size() < ContentLength(head))
        return;
    socket->readAll();
    const QList<QByteArray> words = head.left(head.indexOf('\r')).split(' ');
    Answer(socket, words.value(0), words.value(1), body);
}

void DemoServer::Answer(QTcpSocket *socket, const QByteArray &method, const QByteArray &path,
                        const QByteArray &body)
{
    if (path == "/text")
        Send(socket, "200 OK", "text/plain", "Hello from the demonstration server.\n");
    else if (path == "/picture")
        Send(socket, "200 OK", "image/png", Picture());
    else if (path == "/echo")
        Send(socket, "200 OK", "text/plain", method + " with the body:\n" + body);
    else if (path == "/slow")
        SendSlowly(socket);
    else if (path != "/never")
        Send(socket, "404 Not Found", "text/plain", "There is nothing at " + path + "\n");
}

void DemoServer::Send(QTcpSocket *socket, const QByteArray &status, const QByteArray &type,
                      const QByteArray &body)
{
    socket->write(Head(status, type, body.size()) + body);
    socket->disconnectFromHost();
}

void DemoServer::SendSlowly(QTcpSocket *socket)
{
    socket->write(Head("200 OK", "text/plain", SlowPieces * PieceSize));
    auto *timer = new QTimer(socket);
    connect(timer, &QTimer::timeout, socket, [socket, timer, sent = 0]() mutable {
        socket->write(QByteArray(PieceSize, '.'));
        if (++sent < SlowPieces)
            return;
        timer->stop();
        socket->disconnectFromHost();
    });
    timer->start(PieceDelay);
}
