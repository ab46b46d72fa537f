#include "NA/Impl/FxNANetworkRequestImpl.h"

#include <QtNetwork/QNetworkRequest>

namespace {

using Ours = CFxNANetworkRequest;
using Qts = QNetworkRequest;

// A number crosses to Qt unchanged.
static_assert(int(Ours::ContentTypeHeader) == int(Qts::ContentTypeHeader));
static_assert(int(Ours::ContentLengthHeader) == int(Qts::ContentLengthHeader));
static_assert(int(Ours::LocationHeader) == int(Qts::LocationHeader));
static_assert(int(Ours::LastModifiedHeader) == int(Qts::LastModifiedHeader));
static_assert(int(Ours::CookieHeader) == int(Qts::CookieHeader));
static_assert(int(Ours::SetCookieHeader) == int(Qts::SetCookieHeader));
static_assert(int(Ours::ContentDispositionHeader) == int(Qts::ContentDispositionHeader));
static_assert(int(Ours::UserAgentHeader) == int(Qts::UserAgentHeader));
static_assert(int(Ours::ServerHeader) == int(Qts::ServerHeader));
static_assert(int(Ours::IfModifiedSinceHeader) == int(Qts::IfModifiedSinceHeader));
static_assert(int(Ours::ETagHeader) == int(Qts::ETagHeader));
static_assert(int(Ours::IfMatchHeader) == int(Qts::IfMatchHeader));
static_assert(int(Ours::IfNoneMatchHeader) == int(Qts::IfNoneMatchHeader));

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
static_assert(int(Ours::HttpStatusCodeAttribute) == int(Qts::HttpStatusCodeAttribute));
static_assert(int(Ours::HttpReasonPhraseAttribute) == int(Qts::HttpReasonPhraseAttribute));
static_assert(int(Ours::RedirectionTargetAttribute) == int(Qts::RedirectionTargetAttribute));
static_assert(int(Ours::ConnectionEncryptedAttribute) == int(Qts::ConnectionEncryptedAttribute));
static_assert(int(Ours::CacheLoadControlAttribute) == int(Qts::CacheLoadControlAttribute));
static_assert(int(Ours::CacheSaveControlAttribute) == int(Qts::CacheSaveControlAttribute));
static_assert(int(Ours::SourceIsFromCacheAttribute) == int(Qts::SourceIsFromCacheAttribute));
static_assert(int(Ours::DoNotBufferUploadDataAttribute)
              == int(Qts::DoNotBufferUploadDataAttribute));
static_assert(int(Ours::HttpPipeliningAllowedAttribute)
              == int(Qts::HttpPipeliningAllowedAttribute));
static_assert(int(Ours::HttpPipeliningWasUsedAttribute)
              == int(Qts::HttpPipeliningWasUsedAttribute));
static_assert(int(Ours::CustomVerbAttribute) == int(Qts::CustomVerbAttribute));
static_assert(int(Ours::CookieLoadControlAttribute) == int(Qts::CookieLoadControlAttribute));
static_assert(int(Ours::AuthenticationReuseAttribute) == int(Qts::AuthenticationReuseAttribute));
static_assert(int(Ours::CookieSaveControlAttribute) == int(Qts::CookieSaveControlAttribute));
static_assert(int(Ours::MaximumDownloadBufferSizeAttribute)
              == int(Qts::MaximumDownloadBufferSizeAttribute));
static_assert(int(Ours::DownloadBufferAttribute) == int(Qts::DownloadBufferAttribute));
static_assert(int(Ours::SynchronousRequestAttribute) == int(Qts::SynchronousRequestAttribute));
static_assert(int(Ours::BackgroundRequestAttribute) == int(Qts::BackgroundRequestAttribute));
static_assert(int(Ours::SpdyAllowedAttribute) == int(Qts::SpdyAllowedAttribute));
static_assert(int(Ours::SpdyWasUsedAttribute) == int(Qts::SpdyWasUsedAttribute));
static_assert(int(Ours::EmitAllUploadProgressSignalsAttribute)
              == int(Qts::EmitAllUploadProgressSignalsAttribute));
static_assert(int(Ours::FollowRedirectsAttribute) == int(Qts::FollowRedirectsAttribute));
static_assert(int(Ours::Http2AllowedAttribute) == int(Qts::Http2AllowedAttribute));
static_assert(int(Ours::Http2WasUsedAttribute) == int(Qts::Http2WasUsedAttribute));
static_assert(int(Ours::HTTP2AllowedAttribute) == int(Qts::HTTP2AllowedAttribute));
static_assert(int(Ours::HTTP2WasUsedAttribute) == int(Qts::HTTP2WasUsedAttribute));
static_assert(int(Ours::OriginalContentLengthAttribute)
              == int(Qts::OriginalContentLengthAttribute));
static_assert(int(Ours::RedirectPolicyAttribute) == int(Qts::RedirectPolicyAttribute));
static_assert(int(Ours::Http2DirectAttribute) == int(Qts::Http2DirectAttribute));
static_assert(int(Ours::ResourceTypeAttribute) == int(Qts::ResourceTypeAttribute));
static_assert(int(Ours::AutoDeleteReplyOnFinishAttribute)
              == int(Qts::AutoDeleteReplyOnFinishAttribute));
static_assert(int(Ours::User) == int(Qts::User));
static_assert(int(Ours::UserMax) == int(Qts::UserMax));
QT_WARNING_POP

} // namespace

void CFxNANetworkRequestImpl::CreateNetworkRequestImpl(const QUrl &url)
{
    m_owner->setHandle(new QNetworkRequest(url));
}

void CFxNANetworkRequestImpl::DestroyNetworkRequestImpl()
{
    delete m_owner->getHandle();
    m_owner->setHandle(nullptr);
}

void CFxNANetworkRequestImpl::SetHeaderImpl(CFxNANetworkRequest::KnownHeaders header,
                                            const QVariant &value)
{
    if (QNetworkRequest *request = m_owner->getHandle())
        request->setHeader(static_cast<QNetworkRequest::KnownHeaders>(header), value);
}

void CFxNANetworkRequestImpl::SetRawHeaderImpl(const QByteArray &name, const QByteArray &value)
{
    if (QNetworkRequest *request = m_owner->getHandle())
        request->setRawHeader(name, value);
}

void CFxNANetworkRequestImpl::SetUrlImpl(const QUrl &url)
{
    if (QNetworkRequest *request = m_owner->getHandle())
        request->setUrl(url);
}
