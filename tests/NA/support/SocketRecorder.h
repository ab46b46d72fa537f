#pragma once

#include "NA/FxNAWebSocket.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtCore/QStringList>
#include <QtCore/QTimer>
#include <QtWebSockets/QWebSocket>

/// What the signals of a WebSocket told: "connected", "error N", "disconnected" and, apart from
/// these, the messages.
class SocketRecorder {
public:
    explicit SocketRecorder(CFxNAWebSocket &recorded)
        : m_connected(recorded.connected().connect([this] { Add(QStringLiteral("connected")); }))
        , m_error(recorded.error().connect(
              [this](int number) { Add(QStringLiteral("error %1").arg(number)); }))
        , m_disconnected(
              recorded.disconnected().connect([this] { Add(QStringLiteral("disconnected")); }))
        , m_message(recorded.textMessageReceived().connect([this](const QString &text) {
            messages.append(text);
            m_loop.quit();
        }))
    {
    }

    /// Runs the event loop until a condition of what is recorded holds; false if it doesn't in
    /// time.
    template <class Condition> bool Wait(Condition condition, int msec = 20000)
    {
        QTimer limit;
        limit.setSingleShot(true);
        QObject::connect(&limit, &QTimer::timeout, &m_loop, &QEventLoop::quit);
        limit.start(msec);
        while (!condition() && limit.isActive())
            m_loop.exec();
        return condition();
    }

    /// Runs the event loop until \a event has come; false if it hasn't within the time.
    bool WaitFor(const QString &event, int msec = 20000)
    {
        return Wait([&] { return events.contains(event); }, msec);
    }

    /// Runs the event loop until so many messages have come.
    bool WaitForMessages(int count, int msec = 60000)
    {
        return Wait([&] { return messages.size() >= count; }, msec);
    }

    /// Runs the event loop until a certain message has come.
    bool WaitForMessage(const QString &text, int msec = 20000)
    {
        return Wait([&] { return messages.contains(text); }, msec);
    }

    /// The events, each without its repetitions right behind it: Qt reports some errors once for
    /// each line of an answer.
    QStringList Events() const
    {
        QStringList distinct;
        for (const QString &event : events) {
            if (distinct.isEmpty() || distinct.last() != event)
                distinct.append(event);
        }
        return distinct;
    }

    QStringList events;
    QStringList messages;

private:
    void Add(const QString &event)
    {
        events.append(event);
        m_loop.quit();
    }

    QEventLoop m_loop;
    // Undone with the recorder: a socket that ends after it still emits.
    slimsig::scoped_connection<void()> m_connected;
    slimsig::scoped_connection<void(int)> m_error;
    slimsig::scoped_connection<void()> m_disconnected;
    slimsig::scoped_connection<void(const QString &)> m_message;
};

/// The Qt object behind a WebSocket.
inline QWebSocket *QtSocket(const CFxNAWebSocket &socket)
{
    return qobject_cast<QWebSocket *>(socket.getHandle());
}
