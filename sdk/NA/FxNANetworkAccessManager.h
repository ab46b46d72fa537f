#pragma once

#include "UI/FxUIObject.h"

class CFxNANetworkReply;
class CFxNANetworkRequest;
class QByteArray;
class QIODevice;

/// Starts HTTP transfers (QNetworkAccessManager), each with a time-out: that of the request if it
/// is above 0, otherwise 30000 milliseconds for the whole transfer.
///
/// Each operation starts one transfer and returns a new reply, which the caller owns; it is no
/// child of the manager. Nothing arrives before the event loop runs, so that slots connected right
/// after the call miss nothing but what Qt emits within its own call. All failures come through the
/// reply's signals.
///
/// The manager must outlive its replies: with it go their bodies. Redirects are not followed,
/// authentication requests and TLS errors not answered: the QNetworkAccessManager is as Qt built
/// it, and getHandle() is the way to it.
///
/// A request whose handle is null can't be sent: the reply returned then has a null handle and
/// stays running for ever.
class COMMONUI_EXPORT CFxNANetworkAccessManager : public CFxUIObject {
public:
    CFxNANetworkAccessManager();

    /// Deletes the QNetworkAccessManager at once, and with it what its replies still hold of Qt.
    ~CFxNANetworkAccessManager() override;

    CFxNANetworkReply *get(const CFxNANetworkRequest &request);

    /// The device stays the caller's; it must live and stay open for as long as the transfer runs.
    CFxNANetworkReply *post(const CFxNANetworkRequest &request, QIODevice *device);

    /// The bytes may go after the call.
    CFxNANetworkReply *post(const CFxNANetworkRequest &request, const QByteArray &body);

    /// As post().
    CFxNANetworkReply *put(const CFxNANetworkRequest &request, QIODevice *device);
    CFxNANetworkReply *put(const CFxNANetworkRequest &request, const QByteArray &body);

    CFxNANetworkReply *deleteResource(const CFxNANetworkRequest &request);
};
