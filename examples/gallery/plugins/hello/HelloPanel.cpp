#include "interface/GalleryPanel.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIPushButton.h"

namespace {

class HelloPanel : public GalleryPanel {
public:
    explicit HelloPanel(IGalleryHost *host)
        : GalleryPanel(host, "Hello")
    {
    }

private:
    void Build() override
    {
        AddNote("The smallest panel: a label and a button. Press the button and watch the answer "
                "beside it and the host's log.");

        AddHeading("A label");
        m_label = new CFxUILabel;
        m_label->setText(QStringLiteral("Hello, world"));
        GalleryRow greeting = AddRow("Label", m_label, [this] {
            return QStringLiteral("text() ") + GalleryText(m_label->text());
        });

        AddHeading("A button");
        auto *button = new CFxUIPushButton;
        button->setText(QStringLiteral("Greet the next planet"));
        button->clicked().connect([this, greeting](bool) mutable {
            m_label->setText(QStringLiteral("Hello, ") + NextPlanet());
            greeting.Refresh(); // a label has no signal that tells of a new text
        });
        AddRow("Push button", button, [button] {
            return QStringLiteral("text() ") + GalleryText(button->text());
        }).Reports("clicked", button->clicked());
    }

    QString NextPlanet()
    {
        const QStringList planets { QStringLiteral("Mars"), QStringLiteral("Venus"),
                                    QStringLiteral("Earth") };
        return planets.at(m_greeted++ % planets.size());
    }

    CFxUILabel *m_label = nullptr;
    int m_greeted = 0;
};

const GalleryPluginInfo Info { GalleryInterfaceVersion, "hello", "Hello",
                               "A label and a button, the smallest panel." };

} // namespace

const GalleryPluginInfo *GalleryPlugin_Info()
{
    return &Info;
}

CFxUIDialog *GalleryPlugin_CreateDialog(IGalleryHost *host)
{
    return new HelloPanel(host);
}
