#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QThread>

#include <ctime>

/// An HTTP server (GET /small, GET /large) and a WebSocket server that echoes, on the loopback
/// interface, in a thread of their own.
class LoopbackServer : public QThread {
public:
    static constexpr int SmallSize = 1000; // bytes
    static constexpr int LargeSize = 64 * 1024 * 1024; // bytes

    /// Returns when both listen.
    LoopbackServer();
    ~LoopbackServer() override;

    QString Http(const QString &path) const;
    QString WebSocket() const;

    /// The processor time that the thread has spent.
    double ProcessorSeconds() const;

protected:
    void run() override;

private:
    clockid_t m_clock = 0;
    quint16 m_httpPort = 0;
    quint16 m_webSocketPort = 0;
};
