#include "NA/Impl/FxNANetworkRequestImpl.h"

CFxNANetworkRequestImpl::CFxNANetworkRequestImpl(CFxNANetworkRequest *request, const QUrl &url)
    : m_owner(request)
    , m_url(url)
{
    CreateNetworkRequestImpl(url);
}

CFxNANetworkRequestImpl::~CFxNANetworkRequestImpl()
{
    DestroyNetworkRequestImpl();
}

void CFxNANetworkRequestImpl::setHeader(CFxNANetworkRequest::KnownHeaders header,
                                        const QVariant &value)
{
    m_knownHeaders[header] = value;
    SetHeaderImpl(header, value);
}

QVariant CFxNANetworkRequestImpl::header(CFxNANetworkRequest::KnownHeaders header) const
{
    return m_knownHeaders.value(header);
}

void CFxNANetworkRequestImpl::setRawHeader(const QByteArray &name, const QByteArray &value)
{
    m_rawHeaders[name] = value;
    SetRawHeaderImpl(name, value);
}

QVariant CFxNANetworkRequestImpl::rawHeader(const QByteArray &name) const
{
    const auto entry = m_rawHeaders.constFind(name);
    return entry == m_rawHeaders.constEnd() ? QVariant() : QVariant(*entry);
}

QList<QByteArray> CFxNANetworkRequestImpl::rawHeaderList() const
{
    return m_rawHeaders.keys();
}

void CFxNANetworkRequestImpl::setUrl(const QUrl &url)
{
    m_url = url;
    SetUrlImpl(url);
}

QUrl CFxNANetworkRequestImpl::url() const
{
    return m_url;
}

void CFxNANetworkRequestImpl::setRequestTimeout(int msec)
{
    m_requestTimeout = msec;
}

int CFxNANetworkRequestImpl::requestTimeout() const
{
    return m_requestTimeout;
}

QByteArray CFxNANetworkRequestImpl::GetKnowHeaderName(CFxNANetworkRequest::KnownHeaders header)
{
    switch (header) {
    case CFxNANetworkRequest::ContentTypeHeader:
        return QByteArrayLiteral("Content-Type");
    case CFxNANetworkRequest::ContentLengthHeader:
        return QByteArrayLiteral("Content-Length");
    case CFxNANetworkRequest::LocationHeader:
        return QByteArrayLiteral("Location");
    case CFxNANetworkRequest::LastModifiedHeader:
        return QByteArrayLiteral("Last-Modified");
    case CFxNANetworkRequest::CookieHeader:
        return QByteArrayLiteral("Cookie");
    case CFxNANetworkRequest::SetCookieHeader:
        return QByteArrayLiteral("Set-Cookie");
    case CFxNANetworkRequest::ContentDispositionHeader:
        return QByteArrayLiteral("Content-Disposition");
    case CFxNANetworkRequest::UserAgentHeader:
        return QByteArrayLiteral("User-Agent");
    case CFxNANetworkRequest::ServerHeader:
        return QByteArrayLiteral("Server");
    default: // the conditional headers have numbers and no names here. Intended.
        return QByteArray();
    }
}
