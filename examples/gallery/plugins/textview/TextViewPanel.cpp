#include "interface/GalleryPanel.h"
#include "UI/FxUITextEdit.h"
#include "UI/FxUITextView.h"

namespace {

constexpr int ViewHeight = 76;

class TextViewPanel : public GalleryPanel {
public:
    explicit TextViewPanel(IGalleryHost *host)
        : GalleryPanel(host, "Text view")
    {
    }

private:
    void Build() override
    {
        BuildViews();
        BuildChat();
    }

    void BuildViews()
    {
        AddHeading("Plain text and HTML");
        AddNote("The same text, given to setText() and to setHtmlText(). getContent() is the plain "
                "text of the document in both cases. setText() emits textChanged twice.");
        const QString text = QStringLiteral("R&amp;D: <b>a</b> &lt; <u>b</u>");
        auto *plain = new CFxUITextView;
        GalleryRow plainRow = AddView("setText", plain);
        plain->setText(text);
        plainRow.Refresh();

        auto *html = new CFxUITextView;
        GalleryRow htmlRow = AddView("setHtmlText", html);
        htmlRow.Reports("focusInEventSignal", html->focusInEventSignal())
            .Reports("focusOutEventSignal", html->focusOutEventSignal());
        html->setHtmlText(text);
        htmlRow.Refresh();
    }

    GalleryRow AddView(const char *caption, CFxUITextView *view)
    {
        view->setMinimumHeight(ViewHeight);
        view->setMaximumHeight(ViewHeight);
        GalleryRow row = AddTallRow(caption, view, [view] {
            return QStringLiteral("getContent() ") + GalleryText(view->getContent())
                + QStringLiteral("\nhasFocus() ") + GalleryText(view->hasFocus());
        });
        row.Reports("textChanged", view->textChanged());
        return row;
    }

    void BuildChat()
    {
        AddHeading("A growing chat");
        AddNote(
            "addText() gives each message a paragraph of its own and shows it character for "
            "character, whatever it holds: try a < b, R&D or several blanks. The view grows with "
            "its content. Return sends: a slot of keyPressed claims it.");
        auto *entry = new CFxUITextEdit(CFxUIBaseView::Large);
        entry->setPlaceholderText(QStringLiteral("Write a message, press Return"));
        GalleryRow entryRow = AddRow("Message", entry);
        entryRow.Reports("keyPressed", entry->keyPressed());

        auto *chat = new CFxUITextView;
        chat->setReadOnly(true);
        chat->setAdjustHeightToContent(true);
        GalleryRow chatRow = AddTallRow("Chat", chat, [chat] {
            return QStringLiteral("getAdjustHeightToContent() ")
                + GalleryText(chat->getAdjustHeightToContent()) + QStringLiteral("\nparagraphs ")
                + QString::number(chat->getContent().count(QLatin1Char('\n')) + 1);
        });
        chatRow.Reports("textChanged", chat->textChanged());
        chat->setText(QStringLiteral("<Ada> Is a < b?\n<Bob> R&D says so."));

        entry->keyPressed().connect([entry, chat](int key, int) {
            if (key != Qt::Key_Return && key != Qt::Key_Enter)
                return;
            entry->setEventAccepted(true);
            chat->addText(QStringLiteral("<You> ") + entry->text());
            entry->clear();
        });
    }
};

const GalleryPluginInfo Info { GalleryInterfaceVersion, "textview", "Text view",
                               "Several lines: plain, HTML, and a chat that grows." };

} // namespace

const GalleryPluginInfo *GalleryPlugin_Info()
{
    return &Info;
}

CFxUIDialog *GalleryPlugin_CreateDialog(IGalleryHost *host)
{
    return new TextViewPanel(host);
}
