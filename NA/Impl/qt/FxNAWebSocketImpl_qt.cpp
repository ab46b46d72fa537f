#include "NA/Impl/FxNAWebSocketImpl.h"

#include "NA/FxNANetworkRequest.h"
#include "UI/Impl/qt/ConnectFrontend.h"
#include "UI/Impl/qt/FrontendCast.h"

#include <QtNetwork/QNetworkRequest>
#include <QtWebSockets/QWebSocket>
#include <QtWebSockets/QWebSocketProtocol>

namespace {

using Ours = CFxNAWebSocketProtocol;
namespace Qts = QWebSocketProtocol;

// A number crosses to Qt unchanged.
static_assert(int(Ours::VersionUnknown) == int(Qts::VersionUnknown));
static_assert(int(Ours::Version0) == int(Qts::Version0));
static_assert(int(Ours::Version4) == int(Qts::Version4));
static_assert(int(Ours::Version5) == int(Qts::Version5));
static_assert(int(Ours::Version6) == int(Qts::Version6));
static_assert(int(Ours::Version7) == int(Qts::Version7));
static_assert(int(Ours::Version8) == int(Qts::Version8));
static_assert(int(Ours::Version13) == int(Qts::Version13));
static_assert(int(Ours::VersionLatest) == int(Qts::VersionLatest));
static_assert(int(Ours::CloseCodeNormal) == int(Qts::CloseCodeNormal));
static_assert(int(Ours::CloseCodeGoingAway) == int(Qts::CloseCodeGoingAway));
static_assert(int(Ours::CloseCodeProtocolError) == int(Qts::CloseCodeProtocolError));
static_assert(int(Ours::CloseCodeDatatypeNotSupported) == int(Qts::CloseCodeDatatypeNotSupported));
static_assert(int(Ours::CloseCodeReserved1004) == int(Qts::CloseCodeReserved1004));
static_assert(int(Ours::CloseCodeMissingStatusCode) == int(Qts::CloseCodeMissingStatusCode));
static_assert(int(Ours::CloseCodeAbnormalDisconnection)
              == int(Qts::CloseCodeAbnormalDisconnection));
static_assert(int(Ours::CloseCodeWrongDatatype) == int(Qts::CloseCodeWrongDatatype));
static_assert(int(Ours::CloseCodePolicyViolated) == int(Qts::CloseCodePolicyViolated));
static_assert(int(Ours::CloseCodeTooMuchData) == int(Qts::CloseCodeTooMuchData));
static_assert(int(Ours::CloseCodeMissingExtension) == int(Qts::CloseCodeMissingExtension));
static_assert(int(Ours::CloseCodeBadOperation) == int(Qts::CloseCodeBadOperation));
static_assert(int(Ours::CloseCodeTlsHandshakeFailed) == int(Qts::CloseCodeTlsHandshakeFailed));

} // namespace

void CFxNAWebSocketImpl::CreateWebSocketImpl(const QString &origin,
                                             CFxNAWebSocketProtocol::Version version)
{
    auto *socket = new QWebSocket(origin, static_cast<QWebSocketProtocol::Version>(version));
    owner->setHandle(socket);
    ConnectFrontend(socket, &QWebSocket::connected, this, &CFxNAWebSocketImpl::OnConnected);
    ConnectFrontend(socket, qOverload<QAbstractSocket::SocketError>(&QWebSocket::error), this,
                    &CFxNAWebSocketImpl::OnError);
    ConnectFrontend(socket, &QWebSocket::disconnected, this, &CFxNAWebSocketImpl::OnDisconnected);
    ConnectFrontend(socket, &QWebSocket::textMessageReceived, this,
                    &CFxNAWebSocketImpl::OnTextMessageReceived);
}

void CFxNAWebSocketImpl::DestroyWebSocketImpl()
{
    delete FrontendCast<QWebSocket>(owner);
    owner->setHandle(nullptr);
}

void CFxNAWebSocketImpl::OpenImpl(const CFxNANetworkRequest &request)
{
    auto *socket = FrontendCast<QWebSocket>(owner);
    if (socket && request.getHandle())
        socket->open(*request.getHandle());
}

void CFxNAWebSocketImpl::CloseImpl(CFxNAWebSocketProtocol::CloseCode code, const QString &reason)
{
    if (auto *socket = FrontendCast<QWebSocket>(owner))
        socket->close(static_cast<QWebSocketProtocol::CloseCode>(code), reason);
}

long long CFxNAWebSocketImpl::SendTextMessageImpl(const QString &message)
{
    auto *socket = FrontendCast<QWebSocket>(owner);
    return socket ? socket->sendTextMessage(message) : 0;
}
