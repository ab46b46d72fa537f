#pragma once

#include "UI/FxUIExport.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QUrl>
#include <QtCore/QVariant>

class CFxNANetworkRequestImpl;
class QNetworkRequest;

/// Describes one HTTP request or one WebSocket handshake: URL, headers and time-out.
///
/// A value without signals or parent, and no CFxUIObject. What is set is recorded here and handed
/// to the QNetworkRequest behind it at once: all readers answer from the record, all network calls
/// use the QNetworkRequest. The time-out is in the record alone.
///
/// A copy carries the URL alone, neither headers nor time-out.
class COMMONUI_EXPORT CFxNANetworkRequest {
public:
    /// Headers by number, QNetworkRequest::KnownHeaders.
    enum KnownHeaders : int {
        ContentTypeHeader = 0,
        ContentLengthHeader = 1,
        LocationHeader = 2,
        LastModifiedHeader = 3,
        CookieHeader = 4,
        SetCookieHeader = 5,
        ContentDispositionHeader = 6,
        UserAgentHeader = 7,
        ServerHeader = 8,
        IfModifiedSinceHeader = 9,
        ETagHeader = 10,
        IfMatchHeader = 11,
        IfNoneMatchHeader = 12
    };

    /// Attributes of a reply, QNetworkRequest::Attribute. A request has no operation that sets one.
    enum Attribute : int {
        HttpStatusCodeAttribute = 0,
        HttpReasonPhraseAttribute = 1,
        RedirectionTargetAttribute = 2,
        ConnectionEncryptedAttribute = 3,
        CacheLoadControlAttribute = 4,
        CacheSaveControlAttribute = 5,
        SourceIsFromCacheAttribute = 6,
        DoNotBufferUploadDataAttribute = 7,
        HttpPipeliningAllowedAttribute = 8,
        HttpPipeliningWasUsedAttribute = 9,
        CustomVerbAttribute = 10,
        CookieLoadControlAttribute = 11,
        AuthenticationReuseAttribute = 12,
        CookieSaveControlAttribute = 13,
        MaximumDownloadBufferSizeAttribute = 14,
        DownloadBufferAttribute = 15,
        SynchronousRequestAttribute = 16,
        BackgroundRequestAttribute = 17,
        SpdyAllowedAttribute = 18,
        SpdyWasUsedAttribute = 19,
        EmitAllUploadProgressSignalsAttribute = 20,
        FollowRedirectsAttribute = 21,
        Http2AllowedAttribute = 22,
        Http2WasUsedAttribute = 23,
        HTTP2AllowedAttribute = Http2AllowedAttribute,
        HTTP2WasUsedAttribute = Http2WasUsedAttribute,
        OriginalContentLengthAttribute = 24,
        RedirectPolicyAttribute = 25,
        Http2DirectAttribute = 26,
        ResourceTypeAttribute = 27,
        AutoDeleteReplyOnFinishAttribute = 28,
        User = 1000,
        UserMax = 32767
    };

    /// Makes a request without headers and with a time-out of 0.
    explicit CFxNANetworkRequest(const QUrl &url);

    /// Takes over the URL of \a other and nothing else: no headers, a time-out of 0.
    CFxNANetworkRequest(const CFxNANetworkRequest &other);

    /// Takes over the URL of \a other and nothing else, as the copy constructor does. What this
    /// request held before, its QNetworkRequest included, stays allocated and is lost: make a new
    /// request rather than assign to one. Assigning a request to itself leaves it with its URL.
    CFxNANetworkRequest &operator=(const CFxNANetworkRequest &other);

    /// Deletes the QNetworkRequest that is the handle at that moment.
    ~CFxNANetworkRequest();

    /// Stores the handle, owned from then on. The former one is neither deleted nor looked at; it
    /// is the caller's again. With null the readers go on, and a network operation given the
    /// request sends nothing.
    void setHandle(QNetworkRequest *handle);
    QNetworkRequest *getHandle() const;

    /// Sets a header by number (QNetworkRequest::setHeader). It never shows among the raw headers
    /// of this object. An invalid value is stored like any other.
    void setHeader(KnownHeaders header, const QVariant &value);

    /// Returns what setHeader() stored, invalid if there is none. A raw header of the same name
    /// isn't looked at.
    QVariant header(KnownHeaders header) const;

    /// Sets a header by name (QNetworkRequest::setRawHeader). The name is kept byte for byte; the
    /// last value of a name wins. The headers by number are left alone.
    void setRawHeader(const QByteArray &name, const QByteArray &value);

    /// Returns what setRawHeader() stored under exactly that name, letter case included, as a
    /// QByteArray; invalid if there is none.
    QVariant rawHeader(const QByteArray &name) const;

    /// Returns the names given to setRawHeader(), ascending by their bytes.
    QList<QByteArray> rawHeaderList() const;

    /// Sets the URL (QNetworkRequest::setUrl).
    void setUrl(const QUrl &url);
    QUrl url() const;

    /// Sets the time, in milliseconds, after which a running transfer is aborted. 0 and negative
    /// numbers are stored and mean 30000. A WebSocket ignores it. Default: 0.
    void setRequestTimeout(int msec);
    int requestTimeout() const;

protected:
    CFxNANetworkRequestImpl *m_impl = nullptr; // owned
    QNetworkRequest *m_handle = nullptr; // owned; written by the implementation object
};
