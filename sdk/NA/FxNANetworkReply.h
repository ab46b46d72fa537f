#pragma once

#include "NA/FxNANetworkRequest.h"
#include "UI/FxUIObject.h"
#include "UI/FxUISignal.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QPair>
#include <QtCore/QString>
#include <QtCore/QVariant>

/// One HTTP transfer and its answer (QNetworkReply), as CFxNANetworkAccessManager returns it.
///
/// The caller owns it and must delete it: at any time, but not from a slot of one of its own
/// signals (CFxUITimer::singleShot with 0 is a way to do it right after). The manager that made it
/// has to outlive it for the body and the attributes to be readable.
///
/// The order of a transfer: encrypted() and the progress signals as Qt reports them; on a failure,
/// a time-out included, error(); at the end, on success and failure alike, finished() once.
/// Headers, error code and error text are a snapshot that these last two take; until then all of
/// them are empty.
class COMMONUI_EXPORT CFxNANetworkReply : public CFxUIObject {
public:
    /// What went wrong, QNetworkReply::NetworkError. A time-out of the request is reported as
    /// OperationCanceledError, like abort().
    enum NetworkError : int {
        NoError = 0,
        ConnectionRefusedError = 1,
        RemoteHostClosedError = 2,
        HostNotFoundError = 3,
        TimeoutError = 4,
        OperationCanceledError = 5,
        SslHandshakeFailedError = 6,
        TemporaryNetworkFailureError = 7,
        NetworkSessionFailedError = 8,
        BackgroundRequestNotAllowedError = 9,
        TooManyRedirectsError = 10,
        InsecureRedirectError = 11,
        UnknownNetworkError = 99,
        ProxyConnectionRefusedError = 101,
        ProxyConnectionClosedError = 102,
        ProxyNotFoundError = 103,
        ProxyTimeoutError = 104,
        ProxyAuthenticationRequiredError = 105,
        UnknownProxyError = 199,
        ContentAccessDenied = 201,
        ContentOperationNotPermittedError = 202,
        ContentNotFoundError = 203,
        AuthenticationRequiredError = 204,
        ContentReSendError = 205,
        ContentConflictError = 206,
        ContentGoneError = 207,
        UnknownContentError = 299,
        ProtocolUnknownError = 301,
        ProtocolInvalidOperationError = 302,
        ProtocolFailure = 399,
        InternalServerError = 401,
        OperationNotImplementedError = 402,
        ServiceUnavailableError = 403,
        UnknownServerError = 499
    };

    /// Wraps \a reply, a QNetworkReply, and owns it from then on. Any other object, and null, make
    /// a reply that runs for ever, has no body and leaves the object alone.
    explicit CFxNANetworkReply(QObject *reply);

    /// Deletes the Qt reply when the event loop next runs (QObject::deleteLater). A running
    /// transfer isn't aborted first, and no signal comes any more.
    ~CFxNANetworkReply() override;

    /// Stores a pointer to the request, without a copy: request() dangles when the request goes.
    /// Without effect on the transfer.
    void setRequest(const CFxNANetworkRequest &request);

    /// Returns the request that the transfer was started with, null if there is none. Never
    /// followed by the library.
    const CFxNANetworkRequest *request() const;

    /// Returns true from just before finished() on, also while signals are blocked.
    bool isFinished() const;

    /// Returns !isFinished().
    bool isRunning() const;

    /// Returns the code of the last error, also while signals are blocked; NoError without one. On
    /// an object that isn't const, `error()` names the signal; std::as_const reaches this one.
    NetworkError error() const;

    /// Returns QNetworkReply::errorString() as of the error, empty without one.
    QString errorString() const;

    /// Return what the body's QIODevice does, and 0, null, 0 or false until error() or finished()
    /// and after the Qt reply has gone. A body comes with the Qt reply and isn't copied here.
    long long bytesAvailable() const;
    QByteArray readAll();
    long long pos() const;
    bool seek(long long position);

    /// Returns QNetworkReply::attribute(), asked anew each time: the HTTP status, for example.
    /// Invalid without a Qt reply.
    QVariant attribute(CFxNANetworkRequest::Attribute attribute) const;

    /// Returns the bytes of a header, unparsed, as a QByteArray; invalid if the answer has no
    /// header spelt exactly as the table of names has it ("Content-Type"), or for a number beyond
    /// ServerHeader. Shares the lookup, and its limits, with rawHeader().
    QVariant header(CFxNANetworkRequest::KnownHeaders header) const;

    /// Returns whether the answer has a header of exactly that name, letter case included.
    bool hasRawHeader(const QByteArray &name) const;

    /// Returns the value of a header, null if there is none of exactly that name. The position
    /// among the names without repeats is used among the pairs with repeats: once a name occurs
    /// twice, the names behind it give other headers' values. Use rawHeaderPairs() where that
    /// matters.
    QByteArray rawHeader(const QByteArray &name) const;

    /// Returns the names of the answer's headers, without repeats, in order of first appearance.
    QList<QByteArray> rawHeaderList() const;

    /// Returns all headers of the answer, as QNetworkReply::rawHeaderPairs() gave them at the end.
    const QList<QPair<QByteArray, QByteArray>> &rawHeaderPairs() const;

    /// Aborts the transfer (QNetworkReply::abort): a running one emits error() with
    /// OperationCanceledError and finished() before this returns.
    void abort();

    /// Emitted with the bytes received and the total, -1 if unknown. Only 32 bits of each number
    /// survive: past 2147483647 they wrap to negative ones.
    CFxUISignal<void(long long, long long)> &downloadProgress();

    /// Emitted with the bytes sent and the total, with the same limit.
    CFxUISignal<void(long long, long long)> &uploadProgress();

    /// Emitted when the TLS handshake is done.
    CFxUISignal<void()> &encrypted();

    /// Emitted with the error code. isFinished() is false still; finished() follows.
    CFxUISignal<void(CFxNANetworkReply::NetworkError)> &error();

    /// Emitted once, as the last signal.
    CFxUISignal<void()> &finished();
};
