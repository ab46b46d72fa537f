#include "NA/FxNAWebSocket.h"

#include "NA/Impl/FxNAWebSocketImpl.h"
#include "UI/Impl/ImplOf.h"

CFxNAWebSocket::CFxNAWebSocket(const QString &origin, CFxNAWebSocketProtocol::Version version)
{
    impl = new CFxNAWebSocketImpl(this, origin, version);
}

CFxNAWebSocket::~CFxNAWebSocket() = default;

void CFxNAWebSocket::open(const CFxNANetworkRequest &request)
{
    ImplOf<CFxNAWebSocketImpl>(this)->open(request);
}

void CFxNAWebSocket::close(CFxNAWebSocketProtocol::CloseCode code, const QString &reason)
{
    ImplOf<CFxNAWebSocketImpl>(this)->close(code, reason);
}

long long CFxNAWebSocket::sendTextMessage(const QString &message)
{
    return ImplOf<CFxNAWebSocketImpl>(this)->sendTextMessage(message);
}

CFxUISignal<void()> &CFxNAWebSocket::connected()
{
    return ImplOf<CFxNAWebSocketImpl>(this)->connected();
}

CFxUISignal<void(int)> &CFxNAWebSocket::error()
{
    return ImplOf<CFxNAWebSocketImpl>(this)->error();
}

CFxUISignal<void()> &CFxNAWebSocket::disconnected()
{
    return ImplOf<CFxNAWebSocketImpl>(this)->disconnected();
}

CFxUISignal<void(const QString &)> &CFxNAWebSocket::textMessageReceived()
{
    return ImplOf<CFxNAWebSocketImpl>(this)->textMessageReceived();
}
