#include "interface/GalleryPanel.h"
#include "UI/FxUIHorizontalLayout.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIPushButton.h"
#include "UI/FxUITimer.h"
#include "UI/FxUIVerticalLayout.h"

#include <optional>

namespace {

class BusyPanel : public GalleryPanel {
public:
    explicit BusyPanel(IGalleryHost *host)
        : GalleryPanel(host, "Busy spinner")
    {
    }

    // Busy from the moment at which the panel is shown: the picture is taken then, in the look of
    // that moment.
    int exec(bool modal) override
    {
        if (m_busy)
            SetBusy(false);
        m_start.start(0);
        return GalleryPanel::exec(modal);
    }

private:
    void Build() override
    {
        AddNote("A busy column paints its look of that moment dimmed and runs the animation from "
                "its middle. "
                "Its children stay usable. A busy row only stores the flag.");

        AddHeading("The layouts");
        AddTallRow("A column", MakeColumn());
        auto *row = new CFxUIHorizontalLayout;
        row->addView(MakeLabel(QStringLiteral("A row shows nothing")));
        m_row = row;
        AddRow("A row", row);

        AddHeading("Busy or not");
        m_switch = new CFxUIPushButton;
        m_switch->setText(QStringLiteral("Start"));
        m_answer = AddRow("setBusyState", m_switch, [this] {
            return m_busy ? QStringLiteral("both are busy") : QStringLiteral("neither is busy");
        });
        m_answer->Reports("clicked", m_switch->clicked());
        m_switch->clicked().connect([this](bool) { SetBusy(!m_busy); });
        m_start.timeout().connect([this] {
            m_start.stop();
            SetBusy(true);
        });
    }

    CFxUIVerticalLayout *MakeColumn()
    {
        m_column = new CFxUIVerticalLayout;
        m_column->setContentsMargins(6, 6, 6, 6);
        for (const char *text : { "These labels", "stay on top", "and usable" }) {
            CFxUILabel *label = MakeLabel(QLatin1String(text));
            label->setMaximumWidth(100); // leaves the middle free
            m_column->addView(label);
        }
        return m_column;
    }

    static CFxUILabel *MakeLabel(const QString &text)
    {
        auto *label = new CFxUILabel;
        label->setText(text);
        return label;
    }

    // Starts and stops come in pairs: a second start would make a second spinner.
    void SetBusy(bool busy)
    {
        if (busy != m_busy) {
            m_column->setBusyState(busy);
            m_row->setBusyState(busy);
            m_column->update(); // a stop asks for no repaint by itself
        }
        m_busy = busy;
        m_switch->setText(busy ? QStringLiteral("Stop") : QStringLiteral("Start"));
        m_answer->Refresh();
    }

    CFxUIVerticalLayout *m_column = nullptr;
    CFxUIBaseView *m_row = nullptr;
    CFxUIPushButton *m_switch = nullptr;
    CFxUITimer m_start;
    std::optional<GalleryRow> m_answer;
    bool m_busy = false;
};

const GalleryPluginInfo Info { GalleryInterfaceVersion, "busy", "Busy spinner",
                               "A column that is busy, and a row that only says so." };

} // namespace

const GalleryPluginInfo *GalleryPlugin_Info()
{
    return &Info;
}

CFxUIDialog *GalleryPlugin_CreateDialog(IGalleryHost *host)
{
    return new BusyPanel(host);
}
