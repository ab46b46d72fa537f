#pragma once

#include "NA/FxNAWebSocketProtocol.h"
#include "UI/FxUISignal.h"
#include "UI/Impl/FxUIObjectImpl.h"

#include <QtCore/QString>

class CFxNANetworkRequest;
class CFxNAWebSocket;

/// Implementation object of CFxNAWebSocket. Its signals are all its state; the QWebSocket is the
/// owner's handle.
class COMMONUI_EXPORT CFxNAWebSocketImpl : public CFxUIObjectImpl {
public:
    CFxNAWebSocketImpl(CFxNAWebSocket *object, const QString &origin,
                       CFxNAWebSocketProtocol::Version version);
    ~CFxNAWebSocketImpl() override;

    void open(const CFxNANetworkRequest &request);
    void close(CFxNAWebSocketProtocol::CloseCode code, const QString &reason);
    long long sendTextMessage(const QString &message);
    CFxUISignal<void()> &connected();
    CFxUISignal<void(int)> &error();
    CFxUISignal<void()> &disconnected();
    CFxUISignal<void(const QString &)> &textMessageReceived();

    void OnConnected();
    void OnError(int error);
    void OnDisconnected();
    void OnTextMessageReceived(const QString &message);

    void CreateWebSocketImpl(const QString &origin, CFxNAWebSocketProtocol::Version version);
    void DestroyWebSocketImpl();
    void OpenImpl(const CFxNANetworkRequest &request);
    void CloseImpl(CFxNAWebSocketProtocol::CloseCode code, const QString &reason);
    long long SendTextMessageImpl(const QString &message);

protected:
    CFxUISignal<void()> m_connected; ///< emitted when the handshake is done
    CFxUISignal<void(int)> m_error; ///< emitted with the number of QAbstractSocket::SocketError
    CFxUISignal<void()> m_disconnected; ///< emitted when the connection is closed
    CFxUISignal<void(const QString &)> m_textMessageReceived; ///< emitted with the text
};
