#pragma once

#include "NA/FxNANetworkRequest.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QUrl>
#include <QtCore/QVariant>

/// Implementation object of CFxNANetworkRequest: the record that its readers answer from.
class COMMONUI_EXPORT CFxNANetworkRequestImpl {
public:
    /// Makes the QNetworkRequest and stores it as the handle of \a request, whose pointer to this
    /// object isn't set yet.
    CFxNANetworkRequestImpl(CFxNANetworkRequest *request, const QUrl &url);
    ~CFxNANetworkRequestImpl();

    CFxNANetworkRequestImpl(const CFxNANetworkRequestImpl &) = delete;
    CFxNANetworkRequestImpl &operator=(const CFxNANetworkRequestImpl &) = delete;

    void setHeader(CFxNANetworkRequest::KnownHeaders header, const QVariant &value);
    QVariant header(CFxNANetworkRequest::KnownHeaders header) const;
    void setRawHeader(const QByteArray &name, const QByteArray &value);
    QVariant rawHeader(const QByteArray &name) const;
    QList<QByteArray> rawHeaderList() const;
    void setUrl(const QUrl &url);
    QUrl url() const;
    void setRequestTimeout(int msec);
    int requestTimeout() const;

    /// Returns the name of a header in an HTTP message, null for a number beyond ServerHeader.
    static QByteArray GetKnowHeaderName(CFxNANetworkRequest::KnownHeaders header);

    void CreateNetworkRequestImpl(const QUrl &url);
    void DestroyNetworkRequestImpl();
    void SetHeaderImpl(CFxNANetworkRequest::KnownHeaders header, const QVariant &value);
    void SetRawHeaderImpl(const QByteArray &name, const QByteArray &value);
    void SetUrlImpl(const QUrl &url);

protected:
    CFxNANetworkRequest *m_owner;
    int m_requestTimeout = 0;
    QUrl m_url;
    QMap<int, QVariant> m_knownHeaders;
    QMap<QByteArray, QByteArray> m_rawHeaders; // ordered by qstrcmp, as QByteArray compares
};
