#include "DemoServer.h"
#include "interface/DemoHost.h"
#include "interface/GalleryPanel.h"
#include "NA/FxNANetworkAccessManager.h"
#include "NA/FxNANetworkReply.h"
#include "NA/FxNANetworkRequest.h"
#include "UI/FxUIComboBox.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIPushButton.h"
#include "UI/FxUISlider.h"
#include "UI/FxUITextEdit.h"
#include "UI/FxUITextView.h"
#include "UI/FxUIVerticalLayout.h"

#include <QtCore/QElapsedTimer>
#include <QtGui/QPixmap>

#include <memory>
#include <optional>

namespace {

constexpr int FullProgress = 100;

CFxUITextEdit *MakeField(const char *text, const char *placeholder)
{
    auto *field = new CFxUITextEdit(CFxUIBaseView::ExtraLarge);
    field->setText(QLatin1String(text));
    field->setPlaceholderText(QLatin1String(placeholder));
    return field;
}

CFxUITextView *MakeView(int height)
{
    auto *view = new CFxUITextView(CFxUIBaseView::ExtraLarge);
    view->setReadOnly(true);
    view->setMinimumHeight(height);
    view->setMaximumHeight(height); // so that the panel fits a small screen
    return view;
}

class HttpPanel : public GalleryPanel {
public:
    explicit HttpPanel(IGalleryHost *host)
        : GalleryPanel(host, "HTTP")
    {
    }

    // The manager outlives its replies: the reply goes first.
    ~HttpPanel() override { DropReply(); }

private:
    void Build() override
    {
        AddNote("The host demo is a small server that this panel runs: /text, /picture, /slow, "
                "/never, /echo. Other URLs go out as they are.");
        BuildRequest();
        BuildReply();
    }

    void BuildRequest()
    {
        AddHeading("Request");
        m_method = new CFxUIComboBox;
        for (const char *method : { "GET", "POST", "PUT", "DELETE" })
            m_method->addItem(QLatin1String(method));
        AddRow("Method", m_method);
        m_url = MakeField("http://demo/picture", "a URL");
        AddRow("URL", m_url);
        m_headers = MakeField("Accept: */*", "Name: value; Name: value");
        AddRow("Headers", m_headers);
        m_body = MakeField("", "the body of a POST or PUT");
        AddRow("Body", m_body);
        m_timeout = MakeField("5000", "milliseconds; 0 means 30000");
        AddRow("Time-out", m_timeout);
        m_send = new CFxUIPushButton;
        m_send->setText(QStringLiteral("Send"));
        AddRow("Transfer", m_send).Reports("clicked", m_send->clicked());
        m_send->clicked().connect([this](bool) { Send(); });
    }

    void BuildReply()
    {
        AddHeading("Reply");
        m_progress = new CFxUISlider;
        m_progress->setRange(0, FullProgress);
        m_progress->setEnabled(false);
        m_answer = AddRow("Progress", m_progress, [this] { return m_received; });
        m_status = new CFxUILabel;
        m_status->setWordWrap(true);
        m_status->setText(QStringLiteral("Nothing sent yet."));
        AddRow("Status", m_status);
        m_table = MakeView(90);
        AddTallRow("Headers", m_table);
        auto *content = new CFxUIVerticalLayout;
        m_picture = new CFxUILabel;
        m_text = MakeView(110);
        content->addView(m_picture);
        content->addView(m_text, 1);
        m_picture->setVisible(false);
        AddWideRow("Body", content);
    }

    void Send()
    {
        DropReply();
        const QUrl url(m_url->text(), QUrl::StrictMode);
        if (!url.isValid() || url.scheme().isEmpty() || url.host().isEmpty()) {
            Tell(QStringLiteral("This is no URL: ")
                 + (url.isValid() ? m_url->text() : url.errorString()));
            return;
        }
        if (!m_server)
            m_server = std::make_unique<DemoServer>();
        m_request.emplace(ResolveDemoHost(url, *m_server));
        FillRequest(*m_request);
        Tell(QStringLiteral("Waiting for an answer ..."));
        m_progress->setValue(0);
        m_clock.start();
        m_reply.reset(Start(*m_request));
        Connect(*m_reply);
    }

    void FillRequest(CFxNANetworkRequest &request)
    {
        request.setRequestTimeout(m_timeout->text().toInt());
        for (const QString &header : m_headers->text().split(QLatin1Char(';'))) {
            const int colon = header.indexOf(QLatin1Char(':'));
            if (colon > 0)
                request.setRawHeader(header.left(colon).trimmed().toUtf8(),
                                     header.mid(colon + 1).trimmed().toUtf8());
        }
        request.setHeader(CFxNANetworkRequest::ContentTypeHeader, QStringLiteral("text/plain"));
    }

    CFxNANetworkReply *Start(const CFxNANetworkRequest &request)
    {
        const QByteArray body = m_body->text().toUtf8();
        switch (m_method->currentIndex()) {
        case 1:
            return m_manager.post(request, body);
        case 2:
            return m_manager.put(request, body);
        case 3:
            return m_manager.deleteResource(request);
        default:
            return m_manager.get(request);
        }
    }

    void Connect(CFxNANetworkReply &reply)
    {
        m_answer->Reports("downloadProgress", reply.downloadProgress())
            .Reports("error", reply.error())
            .Reports("finished", reply.finished());
        reply.downloadProgress().connect([this](long long received, long long total) {
            if (total > 0)
                m_progress->setValue(static_cast<int>(received * FullProgress / total));
            m_received = QStringLiteral("%1 of %2 bytes").arg(received).arg(total);
            m_answer->Refresh();
        });
        reply.finished().connect([this] { ShowReply(); });
    }

    void ShowReply()
    {
        const QVariant status = m_reply->attribute(CFxNANetworkRequest::HttpStatusCodeAttribute);
        const QString outcome = status.isValid()
            ? QStringLiteral("HTTP status %1. ").arg(status.toInt())
            : QStringLiteral("No answer. ");
        Tell(outcome + Failure());
        ShowHeaders();
        // An aborted transfer has closed its device, which would warn.
        const QByteArray body = m_reply->bytesAvailable() > 0 ? m_reply->readAll() : QByteArray();
        QPixmap picture;
        const bool isPicture =
            m_reply->rawHeader("Content-Type").startsWith("image/") && picture.loadFromData(body);
        m_picture->setPixmap(picture);
        m_picture->setVisible(isPicture);
        m_text->setText(isPicture ? QString() : QString::fromUtf8(body));
        m_text->setVisible(!isPicture);
    }

    // A time-out has no number of its own: it is an abort after the time that the request had.
    QString Failure() const
    {
        const CFxNANetworkReply &reply = *m_reply; // error() of one that isn't const is the signal
        if (reply.error() == CFxNANetworkReply::NoError)
            return QStringLiteral("Finished without an error.");
        if (reply.error() == CFxNANetworkReply::OperationCanceledError)
            return QStringLiteral("Given up: no end within the time-out, after %1 ms.")
                .arg(m_clock.elapsed());
        return QStringLiteral("%1 (error %2).").arg(reply.errorString()).arg(reply.error());
    }

    void ShowHeaders()
    {
        QString table = QStringLiteral("<table cellpadding=\"2\">");
        for (const auto &pair : m_reply->rawHeaderPairs())
            table += QStringLiteral("<tr><td><b>%1</b></td><td>%2</td></tr>")
                         .arg(QString::fromUtf8(pair.first).toHtmlEscaped(),
                              QString::fromUtf8(pair.second).toHtmlEscaped());
        m_table->setHtmlText(table + QStringLiteral("</table>"));
    }

    void Tell(const QString &text) { m_status->setText(text); }

    // A running transfer is aborted first, in silence: its reply must not report to nobody.
    void DropReply()
    {
        if (!m_reply)
            return;
        m_reply->blockSignals(true);
        if (m_reply->isRunning())
            m_reply->abort();
        m_reply.reset();
    }

    CFxNANetworkAccessManager m_manager;
    std::unique_ptr<DemoServer> m_server;
    std::optional<CFxNANetworkRequest> m_request;
    std::unique_ptr<CFxNANetworkReply> m_reply;
    QElapsedTimer m_clock;
    QString m_received = QStringLiteral("no bytes yet");
    std::optional<GalleryRow> m_answer;
    CFxUIComboBox *m_method = nullptr;
    CFxUITextEdit *m_url = nullptr;
    CFxUITextEdit *m_headers = nullptr;
    CFxUITextEdit *m_body = nullptr;
    CFxUITextEdit *m_timeout = nullptr;
    CFxUIPushButton *m_send = nullptr;
    CFxUISlider *m_progress = nullptr;
    CFxUILabel *m_status = nullptr;
    CFxUITextView *m_table = nullptr;
    CFxUILabel *m_picture = nullptr;
    CFxUITextView *m_text = nullptr;
};

const GalleryPluginInfo Info {
    GalleryInterfaceVersion, "http", "HTTP client",
    "Transfers with a time-out each, against a small server or any URL."
};

} // namespace

const GalleryPluginInfo *GalleryPlugin_Info()
{
    return &Info;
}

CFxUIDialog *GalleryPlugin_CreateDialog(IGalleryHost *host)
{
    return new HttpPanel(host);
}
