#include "NA/Impl/FxNANetworkReplyImpl.h"

#include "UI/Impl/qt/ConnectFrontend.h"
#include "UI/Impl/qt/FrontendCast.h"

#include <QtNetwork/QNetworkReply>

namespace {

using Ours = CFxNANetworkReply;
using Qts = QNetworkReply;

// A number comes from Qt unchanged.
static_assert(int(Ours::NoError) == int(Qts::NoError));
static_assert(int(Ours::ConnectionRefusedError) == int(Qts::ConnectionRefusedError));
static_assert(int(Ours::RemoteHostClosedError) == int(Qts::RemoteHostClosedError));
static_assert(int(Ours::HostNotFoundError) == int(Qts::HostNotFoundError));
static_assert(int(Ours::TimeoutError) == int(Qts::TimeoutError));
static_assert(int(Ours::OperationCanceledError) == int(Qts::OperationCanceledError));
static_assert(int(Ours::SslHandshakeFailedError) == int(Qts::SslHandshakeFailedError));
static_assert(int(Ours::TemporaryNetworkFailureError) == int(Qts::TemporaryNetworkFailureError));
static_assert(int(Ours::NetworkSessionFailedError) == int(Qts::NetworkSessionFailedError));
static_assert(int(Ours::BackgroundRequestNotAllowedError)
              == int(Qts::BackgroundRequestNotAllowedError));
static_assert(int(Ours::TooManyRedirectsError) == int(Qts::TooManyRedirectsError));
static_assert(int(Ours::InsecureRedirectError) == int(Qts::InsecureRedirectError));
static_assert(int(Ours::UnknownNetworkError) == int(Qts::UnknownNetworkError));
static_assert(int(Ours::ProxyConnectionRefusedError) == int(Qts::ProxyConnectionRefusedError));
static_assert(int(Ours::ProxyConnectionClosedError) == int(Qts::ProxyConnectionClosedError));
static_assert(int(Ours::ProxyNotFoundError) == int(Qts::ProxyNotFoundError));
static_assert(int(Ours::ProxyTimeoutError) == int(Qts::ProxyTimeoutError));
static_assert(int(Ours::ProxyAuthenticationRequiredError)
              == int(Qts::ProxyAuthenticationRequiredError));
static_assert(int(Ours::UnknownProxyError) == int(Qts::UnknownProxyError));
static_assert(int(Ours::ContentAccessDenied) == int(Qts::ContentAccessDenied));
static_assert(int(Ours::ContentOperationNotPermittedError)
              == int(Qts::ContentOperationNotPermittedError));
static_assert(int(Ours::ContentNotFoundError) == int(Qts::ContentNotFoundError));
static_assert(int(Ours::AuthenticationRequiredError) == int(Qts::AuthenticationRequiredError));
static_assert(int(Ours::ContentReSendError) == int(Qts::ContentReSendError));
static_assert(int(Ours::ContentConflictError) == int(Qts::ContentConflictError));
static_assert(int(Ours::ContentGoneError) == int(Qts::ContentGoneError));
static_assert(int(Ours::UnknownContentError) == int(Qts::UnknownContentError));
static_assert(int(Ours::ProtocolUnknownError) == int(Qts::ProtocolUnknownError));
static_assert(int(Ours::ProtocolInvalidOperationError) == int(Qts::ProtocolInvalidOperationError));
static_assert(int(Ours::ProtocolFailure) == int(Qts::ProtocolFailure));
static_assert(int(Ours::InternalServerError) == int(Qts::InternalServerError));
static_assert(int(Ours::OperationNotImplementedError) == int(Qts::OperationNotImplementedError));
static_assert(int(Ours::ServiceUnavailableError) == int(Qts::ServiceUnavailableError));
static_assert(int(Ours::UnknownServerError) == int(Qts::UnknownServerError));

// Kept for form; no operation reads it. Intended.
using RawHeaderPairs = QList<QPair<QByteArray, QByteArray>>;
[[maybe_unused]] const RawHeaderPairs // clazy:exclude=non-pod-global-static
    g_emptyRawHeaderPairsList;

// QNetworkReply::error, not errorOccurred: Qt repeats the one as the other, and a reply of a class
// that knows the old signal alone is heard, too.
auto ErrorSignal()
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    return qOverload<QNetworkReply::NetworkError>(&QNetworkReply::error);
    QT_WARNING_POP
}

} // namespace

void CFxNANetworkReplyImpl::ConnectNetworkReplySignalsImpl()
{
    m_ownsDevice = false;
    auto *reply = FrontendCast<QNetworkReply>(owner);
    if (!reply)
        return;
    // Two ints where Qt delivers qint64: only the low 32 bits survive. Intended.
    ConnectFrontend(reply, &QNetworkReply::downloadProgress, this,
                    [this](int received, int total) { OnDownloadProgress(received, total); });
    ConnectFrontend(reply, &QNetworkReply::uploadProgress, this,
                    [this](int sent, int total) { OnUploadProgress(sent, total); });
    ConnectFrontend(reply, &QNetworkReply::encrypted, this, [this] { OnEncrypted(); });
    ConnectFrontend(reply, ErrorSignal(), this, [this](QNetworkReply::NetworkError code) {
        auto *device = FrontendCast<QNetworkReply>(owner);
        OnError(static_cast<CFxNANetworkReply::NetworkError>(code),
                device ? device->errorString() : QString(), device);
    });
    ConnectFrontend(reply, &QNetworkReply::finished, this, [this] {
        auto *device = FrontendCast<QNetworkReply>(owner);
        if (!device)
            return OnFinished(0, {}, nullptr);
        const QVariant status = device->attribute(QNetworkRequest::HttpStatusCodeAttribute);
        OnFinished(status.toInt(), device->rawHeaderPairs(), device);
    });
}

// The Qt reply lives until the event loop next runs and may still emit; its connections end with
// this object.
void CFxNANetworkReplyImpl::DestroyNetworkReplyImpl()
{
    if (auto *reply = FrontendCast<QNetworkReply>(owner))
        reply->deleteLater();
    owner->setHandle(nullptr);
}

// The transfer has begun already. Intended.
void CFxNANetworkReplyImpl::SetRequestImpl(const CFxNANetworkRequest * /*request*/) { }

QVariant CFxNANetworkReplyImpl::AttributeImpl(CFxNANetworkRequest::Attribute attribute) const
{
    auto *reply = FrontendCast<QNetworkReply>(owner);
    return reply ? reply->attribute(static_cast<QNetworkRequest::Attribute>(attribute))
                 : QVariant();
}

void CFxNANetworkReplyImpl::AbortImpl()
{
    if (auto *reply = FrontendCast<QNetworkReply>(owner))
        reply->abort();
}
