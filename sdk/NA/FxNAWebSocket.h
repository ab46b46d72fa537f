#pragma once

#include "NA/FxNAWebSocketProtocol.h"
#include "UI/FxUIObject.h"
#include "UI/FxUISignal.h"

#include <QtCore/QString>

class CFxNANetworkRequest;

/// A WebSocket client for text messages (QWebSocket).
///
/// It keeps no state of its own: neither whether it is connected nor the last error. There is no
/// time-out either: a server that refuses the handshake or never answers it leaves the socket
/// connecting for ever, without disconnected(), so run a CFxUITimer next to open() and close() or
/// delete the socket when it fires. Binary messages are dropped.
///
/// Must not be deleted from a slot of one of its own signals.
class COMMONUI_EXPORT CFxNAWebSocket : public CFxUIObject {
public:
    /// \a origin is sent as the handshake's Origin header unless it is empty. The version goes to
    /// Qt unchecked and without effect: Qt shakes hands as version 13 always.
    explicit CFxNAWebSocket(
        const QString &origin = QString(),
        CFxNAWebSocketProtocol::Version version = CFxNAWebSocketProtocol::VersionLatest);

    /// Deletes the QWebSocket at once, which closes an open connection with CloseCodeGoingAway.
    /// What Qt emits meanwhile still reaches the slots.
    ~CFxNAWebSocket() override;

    /// Connects to the URL of \a request with its headers (QWebSocket::open). The request may go
    /// after the call; its time-out has no effect. Without a handle of the request: nothing.
    void open(const CFxNANetworkRequest &request);

    /// Closes the connection (QWebSocket::close).
    void close(CFxNAWebSocketProtocol::CloseCode code = CFxNAWebSocketProtocol::CloseCodeNormal,
               const QString &reason = QString());

    /// Sends a text message and returns the number of bytes sent, 0 while not connected
    /// (QWebSocket::sendTextMessage).
    long long sendTextMessage(const QString &message);

    /// Emitted when the handshake is done.
    CFxUISignal<void()> &connected();

    /// Emitted with a number of QAbstractSocket::SocketError.
    CFxUISignal<void(int)> &error();

    /// Emitted when the network connection has ended, by either side, or couldn't be made. An
    /// error() of the same failure comes before it or after it, as Qt reports it.
    CFxUISignal<void()> &disconnected();

    /// Emitted with the text of each message received.
    CFxUISignal<void(const QString &)> &textMessageReceived();
};
