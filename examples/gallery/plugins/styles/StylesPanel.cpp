#include "interface/GalleryPanel.h"
#include "UI/FxUIHorizontalLayout.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIPushButton.h"

#include <QtGui/QPalette>
#include <QtWidgets/QWidget>

#include <functional>

namespace {

class StylesPanel : public GalleryPanel {
public:
    explicit StylesPanel(IGalleryHost *host)
        : GalleryPanel(host, "Styles")
    {
    }

private:
    void Build() override
    {
        AddNote(
            "Borders and colours are written into the widget's own style sheet, in front of its "
            "last brace. Some declarations are never taken out again: press the buttons and watch "
            "the sheet grow. The last declaration wins.");

        AddHeading("The styled label");
        m_label = new CFxUILabel;
        m_label->setText(QStringLiteral("Style me"));
        AddRow("Label", m_label);

        AddHeading("What to do to it");
        AddEdit("Width", "Border of 2", [this] { m_label->setBorderWidth(2); });
        AddEdit("Widths", "1, 2, 3 and 4", [this] { m_label->setBorderWidth(1, 2, 3, 4); });
        AddEdit("Colour", "Blue border", [this] { m_label->setBorderColor(33, 75, 152); });
        AddEdit("Palette", "Yellow, red text", [this] { m_label->setPalette(YellowAndRed()); });
        AddEdit("Radius", "No effect", [this] { m_label->setCornerRadius(5); });

        AddHeading("Its style sheet");
        m_sheet = new CFxUILabel;
        m_sheet->setWordWrap(true);
        m_sheet->setTextAlignment(CFxUIBaseView::AlignLeft); // and so at the top
        AddWideRow("Text", m_sheet);
        ShowSheet();
        m_label->setBorderWidth(2);
        m_label->setBorderColor(33, 75, 152);
        ShowSheet();
    }

    void AddEdit(const char *caption, const char *text, const std::function<void()> &edit)
    {
        auto *button = new CFxUIPushButton;
        button->setText(QLatin1String(text));
        AddRow(caption, button).Reports("clicked", button->clicked());
        button->clicked().connect([this, edit](bool) {
            edit();
            ShowSheet();
        });
    }

    void ShowSheet()
    {
        const auto *widget = static_cast<QWidget *>(m_label->getHandle());
        // A blank behind each semicolon lets the label break its lines.
        m_sheet->setText(widget->styleSheet().replace(QLatin1Char(';'), QStringLiteral("; ")));
    }

    static QPalette YellowAndRed()
    {
        QPalette palette;
        palette.setColor(QPalette::Base, QColor(255, 240, 150));
        palette.setColor(QPalette::Text, QColor(184, 33, 21));
        palette.setColor(QPalette::AlternateBase, QColor(184, 33, 21));
        return palette;
    }

    CFxUILabel *m_label = nullptr;
    CFxUILabel *m_sheet = nullptr;
};

const GalleryPluginInfo Info { GalleryInterfaceVersion, "styles", "Styles",
                               "Borders and colours, and the style sheet that they grow." };

} // namespace

const GalleryPluginInfo *GalleryPlugin_Info()
{
    return &Info;
}

CFxUIDialog *GalleryPlugin_CreateDialog(IGalleryHost *host)
{
    return new StylesPanel(host);
}
