#include "NA/Impl/FxNAWebSocketImpl.h"

#include "NA/FxNAWebSocket.h"

CFxNAWebSocketImpl::CFxNAWebSocketImpl(CFxNAWebSocket *object, const QString &origin,
                                       CFxNAWebSocketProtocol::Version version)
    : CFxUIObjectImpl(object)
    , m_connected(object)
    , m_error(object)
    , m_disconnected(object)
    , m_textMessageReceived(object)
{
    CreateWebSocketImpl(origin, version);
}

// The socket goes first: what Qt emits meanwhile still finds the signals.
CFxNAWebSocketImpl::~CFxNAWebSocketImpl()
{
    DestroyWebSocketImpl();
}

void CFxNAWebSocketImpl::open(const CFxNANetworkRequest &request)
{
    OpenImpl(request);
}

void CFxNAWebSocketImpl::close(CFxNAWebSocketProtocol::CloseCode code, const QString &reason)
{
    CloseImpl(code, reason);
}

long long CFxNAWebSocketImpl::sendTextMessage(const QString &message)
{
    return SendTextMessageImpl(message);
}

CFxUISignal<void()> &CFxNAWebSocketImpl::connected()
{
    return m_connected;
}

CFxUISignal<void(int)> &CFxNAWebSocketImpl::error()
{
    return m_error;
}

CFxUISignal<void()> &CFxNAWebSocketImpl::disconnected()
{
    return m_disconnected;
}

CFxUISignal<void(const QString &)> &CFxNAWebSocketImpl::textMessageReceived()
{
    return m_textMessageReceived;
}

void CFxNAWebSocketImpl::OnConnected()
{
    m_connected.emit();
}

void CFxNAWebSocketImpl::OnError(int error)
{
    m_error.emit(error);
}

void CFxNAWebSocketImpl::OnDisconnected()
{
    m_disconnected.emit();
}

void CFxNAWebSocketImpl::OnTextMessageReceived(const QString &message)
{
    m_textMessageReceived.emit(message);
}
