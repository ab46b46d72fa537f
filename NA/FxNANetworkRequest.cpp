#include "NA/FxNANetworkRequest.h"

#include "NA/Impl/FxNANetworkRequestImpl.h"

// The implementation object writes the handle during its construction.
CFxNANetworkRequest::CFxNANetworkRequest(const QUrl &url)
{
    m_impl = new CFxNANetworkRequestImpl(this, url);
}

// The URL alone: neither headers nor time-out. Intended.
CFxNANetworkRequest::CFxNANetworkRequest(const CFxNANetworkRequest &other)
{
    m_impl = new CFxNANetworkRequestImpl(this, other.url());
}

// The same as copying, and what was held before is lost, also of a request assigned to itself.
// Intended. NOLINTNEXTLINE(bugprone-unhandled-self-assignment)
CFxNANetworkRequest &CFxNANetworkRequest::operator=(const CFxNANetworkRequest &other)
{
    m_impl = new CFxNANetworkRequestImpl(this, other.url());
    return *this;
}

CFxNANetworkRequest::~CFxNANetworkRequest()
{
    delete m_impl;
}

void CFxNANetworkRequest::setHandle(QNetworkRequest *handle)
{
    m_handle = handle;
}

QNetworkRequest *CFxNANetworkRequest::getHandle() const
{
    return m_handle;
}

void CFxNANetworkRequest::setHeader(KnownHeaders header, const QVariant &value)
{
    m_impl->setHeader(header, value);
}

QVariant CFxNANetworkRequest::header(KnownHeaders header) const
{
    return m_impl->header(header);
}

void CFxNANetworkRequest::setRawHeader(const QByteArray &name, const QByteArray &value)
{
    m_impl->setRawHeader(name, value);
}

QVariant CFxNANetworkRequest::rawHeader(const QByteArray &name) const
{
    return m_impl->rawHeader(name);
}

QList<QByteArray> CFxNANetworkRequest::rawHeaderList() const
{
    return m_impl->rawHeaderList();
}

void CFxNANetworkRequest::setUrl(const QUrl &url)
{
    m_impl->setUrl(url);
}

QUrl CFxNANetworkRequest::url() const
{
    return m_impl->url();
}

void CFxNANetworkRequest::setRequestTimeout(int msec)
{
    m_impl->setRequestTimeout(msec);
}

int CFxNANetworkRequest::requestTimeout() const
{
    return m_impl->requestTimeout();
}
