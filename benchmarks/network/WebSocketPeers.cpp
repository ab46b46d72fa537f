#include "WebSocketPeers.h"

#include "Batch.h"
#include "NA/FxNANetworkRequest.h"
#include "NA/FxNAWebSocket.h"

#include <QtWebSockets/QWebSocket>

namespace {

const QString g_message = QStringLiteral("hello");

class CommonUIEchoes : public Batch {
public:
    CommonUIEchoes(const QString &url, int atOnce)
        : Batch(atOnce)
    {
        m_socket.connected().connect([this] { m_loop.quit(); });
        m_socket.textMessageReceived().connect(
            [this](const QString &message) { Ended(message == g_message); });
        m_socket.open(CFxNANetworkRequest(QUrl(url)));
        m_loop.exec();
    }

private:
    void Start() override { m_socket.sendTextMessage(g_message); }

    CFxNAWebSocket m_socket;
};

class QtEchoes : public Batch {
public:
    QtEchoes(const QString &url, int atOnce)
        : Batch(atOnce)
    {
        QObject::connect(&m_socket, &QWebSocket::connected, &m_loop, &QEventLoop::quit);
        QObject::connect(&m_socket, &QWebSocket::textMessageReceived, &m_socket,
                         [this](const QString &message) { Ended(message == g_message); });
        m_socket.open(QUrl(url));
        m_loop.exec();
    }

private:
    void Start() override { m_socket.sendTextMessage(g_message); }

    QWebSocket m_socket;
};

} // namespace

std::vector<Peer> WebSocketPeers(const QString &url, int operations, int atOnce)
{
    return { MakePeer<QtEchoes>("qt", operations, url, atOnce),
             MakePeer<CommonUIEchoes>("commonui", operations, url, atOnce) };
}
