#include "interface/GalleryPanel.h"
#include "RehearsalDialog.h"
#include "UI/FxUICheckBox.h"
#include "UI/FxUIDialogButtonBox.h"
#include "UI/FxUIPushButton.h"

#include <memory>

namespace {

class DialogsPanel : public GalleryPanel {
public:
    explicit DialogsPanel(IGalleryHost *host)
        : GalleryPanel(host, "Dialogs")
    {
    }

private:
    void Build() override
    {
        m_dialog = std::make_unique<RehearsalDialog>(*this);
        BuildLife();
        BuildVeto();
        BuildSignals();
    }

    void BuildLife()
    {
        AddHeading("The life of a dialog");
        AddNote(
            "SetupUI() runs at the first exec(); before, setVisible(true) shows an empty window. "
            "Ok gives 1, Cancel and Escape 0.");
        auto *run = MakeButton("exec()");
        m_life = std::make_unique<GalleryRow>(AddRow("A run", run, [this] {
            return QStringLiteral("result() ") + GalleryText(m_dialog->result())
                + QStringLiteral("\nSet-ups %1, runs %2").arg(m_dialog->setUps).arg(m_dialog->runs);
        }));
        run->clicked().connect([this](bool) {
            const int code = m_dialog->exec();
            m_life->Fired(QStringLiteral("exec() returned"), GalleryText(code));
        });
        AddActions(*m_life,
                   { { "setVisible(true)", [this] { m_dialog->setVisible(true); } },
                     { "setVisible(false)", [this] { m_dialog->setVisible(false); } },
                     { "setResult(9)", [this] { m_dialog->setResult(9); } },
                     { "setWindowTitle()",
                       [this] { m_dialog->setWindowTitle(QStringLiteral("Dress rehearsal")); } } });
    }

    void BuildVeto()
    {
        AddHeading("A veto of Escape");
        AddNote(
            "IFxUIDialogFrontend is asked at Escape and at the close button of the window. Cancel "
            "calls reject(), which doesn't ask.");
        auto *allow = new CFxUICheckBox;
        allow->setText(QStringLiteral("IsRejectAllowed()"));
        allow->setChecked(true);
        auto veto = std::make_shared<GalleryRow>(AddRow("Allowed", allow));
        veto->Reports("toggled", allow->toggled());
        allow->toggled().connect([this](bool checked) { m_dialog->rejectAllowed = checked; });
        m_dialog->onAsked = [veto](bool allowed) {
            veto->Fired(QStringLiteral("IsRejectAllowed() answered"), GalleryText(allowed));
        };
    }

    void BuildSignals()
    {
        AddHeading("What it emits");
        AddNote("The dialog's own signals stay silent unless the host calls the handlers of its "
                "implementation object. The button box tells: clicked() with the Help button at "
                "every press, then accepted() or rejected().");
        auto *handler = MakeButton("OnAccepted()");
        auto row = std::make_shared<GalleryRow>(AddRow("From the host", handler));
        row->Reports("accepted", m_dialog->accepted())
            .Reports("rejected", m_dialog->rejected())
            .Reports("finished", m_dialog->finished());
        handler->clicked().connect([this](bool) { m_dialog->PretendHostAccepts(); });
        m_dialog->onSetUp = [row](CFxUIDialogButtonBox *box) {
            row->Reports("box.clicked", box->clicked())
                .Reports("box.accepted", box->accepted())
                .Reports("box.rejected", box->rejected())
                .Reports("box.helpRequest", box->helpRequest());
        };
    }

    static CFxUIPushButton *MakeButton(const char *text)
    {
        auto *button = new CFxUIPushButton;
        button->setText(QString::fromUtf8(text));
        return button;
    }

    std::unique_ptr<RehearsalDialog> m_dialog;
    std::unique_ptr<GalleryRow> m_life;
};

const GalleryPluginInfo Info { GalleryInterfaceVersion, "dialogs", "Dialogs",
                               "The life of a dialog: results, one set-up, a veto of Escape." };

} // namespace

const GalleryPluginInfo *GalleryPlugin_Info()
{
    return &Info;
}

CFxUIDialog *GalleryPlugin_CreateDialog(IGalleryHost *host)
{
    return new DialogsPanel(host);
}
