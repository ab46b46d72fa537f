#include "interface/GalleryPanel.h"
#include "UI/FxUIHorizontalLayout.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIPushButton.h"
#include "UI/FxUIVerticalLayout.h"

namespace {

constexpr int Spacing = 4;

CFxUIPushButton *MakeButton(const QString &text)
{
    auto *button = new CFxUIPushButton;
    button->setText(text);
    return button;
}

class LayoutsPanel : public GalleryPanel {
public:
    explicit LayoutsPanel(IGalleryHost *host)
        : GalleryPanel(host, "Layouts")
    {
    }

private:
    void Build() override
    {
        AddNote(
            "A weight becomes a stretch factor, truncated towards zero: 0.5 counts as 0 and 2.9 "
            "as 2.");
        BuildWeights();
        BuildOrder();
        BuildRemoval();
    }

    void BuildWeights()
    {
        AddHeading("Weights");
        auto *row = new CFxUIHorizontalLayout;
        row->setSpacing(Spacing);
        row->addView(MakeButton(QStringLiteral("0.5")), 0.5F);
        row->addView(MakeButton(QStringLiteral("1")), 1.0F);
        row->addView(MakeButton(QStringLiteral("2.9")), 2.9F);
        AddRow("A row", row, [row] { return Count(row); });
    }

    void BuildOrder()
    {
        AddHeading("Order");
        auto *column = new CFxUIVerticalLayout;
        column->setSpacing(Spacing);
        column->addView(MakeButton(QStringLiteral("added first")));
        column->addView(MakeButton(QStringLiteral("added second")));
        auto *inserted = MakeButton(QStringLiteral("inserted at 0"));
        column->insertView(inserted, 0);
        AddTallRow("A column", column, [column, inserted] {
            return Count(column) + QStringLiteral("\nindexOf(inserted) ")
                + GalleryText(column->indexOf(inserted)) + QStringLiteral(": order of adding");
        });
    }

    void BuildRemoval()
    {
        AddHeading("Removal");
        AddNote(
            "Each button removes itself. A column lets the widget go; a row keeps it on screen, "
            "although the view has left the tree.");
        AddRemoval("From a column", new CFxUIVerticalLayout);
        AddRemoval("From a row", new CFxUIHorizontalLayout);
    }

    void AddRemoval(const char *caption, CFxUIBaseView *layout)
    {
        auto *button = MakeButton(QStringLiteral("Remove me"));
        layout->addView(button);
        layout->addView(MakeButton(QStringLiteral("I stay")));
        GalleryRow row = AddTallRow(caption, layout, [layout] { return Count(layout); });
        row.Reports("clicked", button->clicked());
        button->clicked().connect([this, layout, button, row](bool) mutable {
            layout->removeView(button); // does nothing for a view that has left already
            button->CFxUIObject::setParent(this); // the dialog owns it from here on
            row.Refresh();
        });
    }

    static QString Count(const CFxUIBaseView *layout)
    {
        return QStringLiteral("children().size() ") + GalleryText(layout->children().size());
    }
};

const GalleryPluginInfo Info { GalleryInterfaceVersion, "layouts", "Layouts and weights",
                               "Columns and rows, weights, order and removal." };

} // namespace

const GalleryPluginInfo *GalleryPlugin_Info()
{
    return &Info;
}

CFxUIDialog *GalleryPlugin_CreateDialog(IGalleryHost *host)
{
    return new LayoutsPanel(host);
}
