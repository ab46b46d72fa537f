#include "DemoPartner.h"
#include "interface/DemoHost.h"
#include "interface/GalleryPanel.h"
#include "NA/FxNANetworkRequest.h"
#include "NA/FxNAWebSocket.h"
#include "UI/FxUIPushButton.h"
#include "UI/FxUITextEdit.h"
#include "UI/FxUITextView.h"

#include <memory>
#include <optional>

namespace {

class ChatPanel : public GalleryPanel {
public:
    explicit ChatPanel(IGalleryHost *host)
        : GalleryPanel(host, "Chat")
    {
    }

    // What Qt says while it tears the socket down must not reach the panel any more.
    ~ChatPanel() override { m_socket.blockSignals(true); }

private:
    void Build() override
    {
        AddNote(
            "The host name demo stands for a partner that this panel runs; any other URL goes out "
            "as it is. A refused handshake is reported by error() alone, and nothing ends a "
            "handshake that gets no answer.");
        BuildConnection();
        BuildMessages();
        ConnectSocket();
    }

    void BuildConnection()
    {
        AddHeading("Connection");
        m_url = new CFxUITextEdit(CFxUIBaseView::ExtraLarge);
        m_url->setText(QStringLiteral("ws://demo/"));
        AddRow("URL", m_url);
        m_switch = new CFxUIPushButton;
        m_switch->setText(QStringLiteral("Connect"));
        m_state = AddRow("Socket", m_switch, [this] {
            return m_connected ? QStringLiteral("connected") : QStringLiteral("not connected");
        });
        m_switch->clicked().connect([this](bool) { Switch(); });
    }

    void BuildMessages()
    {
        AddHeading("Messages");
        m_message = new CFxUITextEdit(CFxUIBaseView::ExtraLarge);
        m_message->setPlaceholderText(QStringLiteral("say something and press Return"));
        AddRow("Message", m_message);
        m_message->keyPressed().connect([this](int key, int /*modifiers*/) {
            if (key != Qt::Key_Return && key != Qt::Key_Enter)
                return;
            m_message->setEventAccepted(true); // else it would press the panel's default button
            Say();
        });
        m_talk = new CFxUITextView(CFxUIBaseView::ExtraLarge);
        m_talk->setReadOnly(true);
        m_talk->setPlaceholderText(QStringLiteral("The conversation comes here."));
        AddWideRow("Conversation", m_talk);
    }

    void ConnectSocket()
    {
        m_state->Reports("connected", m_socket.connected())
            .Reports("error", m_socket.error())
            .Reports("disconnected", m_socket.disconnected())
            .Reports("textMessageReceived", m_socket.textMessageReceived());
        m_socket.connected().connect([this] { SetConnected(true); });
        m_socket.disconnected().connect([this] { SetConnected(false); });
        m_socket.error().connect([this](int error) {
            m_talk->addText(
                QStringLiteral("(socket error %1: no connection, or it is lost)").arg(error));
        });
        m_socket.textMessageReceived().connect(
            [this](const QString &text) { m_talk->addText(QStringLiteral("they: ") + text); });
    }

    void Switch()
    {
        if (m_connected) {
            m_socket.close();
            return;
        }
        const QUrl url(m_url->text(), QUrl::StrictMode);
        if (!url.isValid() || !url.scheme().startsWith(QLatin1String("ws"))
            || url.host().isEmpty()) {
            m_talk->addText(QStringLiteral("(this is no ws: or wss: URL)"));
            return;
        }
        if (!m_partner)
            m_partner = std::make_unique<DemoPartner>();
        m_socket.open(CFxNANetworkRequest(ResolveDemoHost(url, *m_partner)));
    }

    void Say()
    {
        if (!m_connected) {
            m_talk->addText(QStringLiteral("(not connected)"));
            return;
        }
        const QString text = m_message->text();
        m_message->clear();
        m_socket.sendTextMessage(text);
        m_talk->addText(QStringLiteral("you: ") + text);
    }

    void SetConnected(bool connected)
    {
        m_connected = connected;
        m_switch->setText(connected ? QStringLiteral("Disconnect") : QStringLiteral("Connect"));
        m_talk->addText(connected ? QStringLiteral("(connected)")
                                  : QStringLiteral("(disconnected)"));
        m_state->Refresh();
    }

    std::unique_ptr<DemoPartner> m_partner;
    CFxNAWebSocket m_socket;
    bool m_connected = false;
    std::optional<GalleryRow> m_state;
    CFxUITextEdit *m_url = nullptr;
    CFxUIPushButton *m_switch = nullptr;
    CFxUITextEdit *m_message = nullptr;
    CFxUITextView *m_talk = nullptr;
};

const GalleryPluginInfo Info { GalleryInterfaceVersion, "chat", "Chat over WebSocket",
                               "Text messages against a small partner or any URL." };

} // namespace

const GalleryPluginInfo *GalleryPlugin_Info()
{
    return &Info;
}

CFxUIDialog *GalleryPlugin_CreateDialog(IGalleryHost *host)
{
    return new ChatPanel(host);
}
