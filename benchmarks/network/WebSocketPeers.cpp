#include "WebSocketPeers.h"

#include "NA/FxNANetworkRequest.h"
#include "NA/FxNAWebSocket.h"

#include <QtCore/QEventLoop>
#include <QtWebSockets/QWebSocket>

#include <memory>

namespace {

const QString g_message = QStringLiteral("hello");

// Keeps so many messages on the way until all have come back.
class Echoes {
public:
    explicit Echoes(int atOnce)
        : m_atOnce(atOnce)
    {
    }

    virtual ~Echoes() = default;

    Echoes(const Echoes &) = delete;
    Echoes &operator=(const Echoes &) = delete;

    bool Run(int operations)
    {
        m_good = true;
        m_toSend = operations;
        m_toCome = operations;
        for (int i = 0; i < m_atOnce; ++i)
            SendNext();
        m_loop.exec();
        return m_good;
    }

protected:
    virtual void Send() = 0;

    void Came(const QString &message)
    {
        m_good = m_good && message == g_message;
        SendNext();
        if (--m_toCome == 0)
            m_loop.quit();
    }

    QEventLoop m_loop;

private:
    void SendNext()
    {
        if (m_toSend-- > 0)
            Send();
    }

    int m_atOnce;
    int m_toSend = 0;
    int m_toCome = 0;
    bool m_good = true;
};

class CommonUIEchoes : public Echoes {
public:
    CommonUIEchoes(const QString &url, int atOnce)
        : Echoes(atOnce)
    {
        m_socket.connected().connect([this] { m_loop.quit(); });
        m_socket.textMessageReceived().connect([this](const QString &message) { Came(message); });
        m_socket.open(CFxNANetworkRequest(QUrl(url)));
        m_loop.exec();
    }

private:
    void Send() override { m_socket.sendTextMessage(g_message); }

    CFxNAWebSocket m_socket;
};

class QtEchoes : public Echoes {
public:
    QtEchoes(const QString &url, int atOnce)
        : Echoes(atOnce)
    {
        QObject::connect(&m_socket, &QWebSocket::connected, &m_loop, &QEventLoop::quit);
        QObject::connect(&m_socket, &QWebSocket::textMessageReceived, &m_socket,
                         [this](const QString &message) { Came(message); });
        m_socket.open(QUrl(url));
        m_loop.exec();
    }

private:
    void Send() override { m_socket.sendTextMessage(g_message); }

    QWebSocket m_socket;
};

template <class Side>
Peer MakePeer(const char *name, const QString &url, int operations, int atOnce)
{
    const auto side = std::make_shared<Side>(url, atOnce);
    return { name, operations, true, [side](int count) { return side->Run(count); } };
}

} // namespace

std::vector<Peer> WebSocketPeers(const QString &url, int operations, int atOnce)
{
    return { MakePeer<QtEchoes>("qt", url, operations, atOnce),
             MakePeer<CommonUIEchoes>("commonui", url, operations, atOnce) };
}
