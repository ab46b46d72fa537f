#include "interface/GalleryPanel.h"
#include "UI/FxUICheckBox.h"
#include "UI/FxUIHorizontalLayout.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIScrollableArea.h"
#include "UI/FxUISlider.h"
#include "UI/FxUITextEdit.h"
#include "UI/FxUIVerticalLayout.h"

#include <vector>

namespace {

constexpr int FormRows = 40;
constexpr int FormRowHeight = 30;

class ScrollPanel : public GalleryPanel {
public:
    explicit ScrollPanel(IGalleryHost *host)
        : GalleryPanel(host, "Scrollable area")
    {
    }

private:
    void Build() override
    {
        AddNote("A form of 40 rows. scrollTo() takes a view's maximum height as the margin above "
                "and below it, and always goes to the left edge.");
        auto *area = new CFxUIScrollableArea;
        CFxUIVerticalLayout *form = MakeForm();

        auto *slider = new CFxUISlider;
        slider->setMinimum(1);
        slider->setMaximum(FormRows);
        slider->valueChanged().connect(
            [this, area](int row) { area->scrollTo(m_rows.at(size_t(row - 1))); });
        AddRow("Jump to row", slider, [slider] {
            return QStringLiteral("value() ") + GalleryText(slider->value());
        }).Reports("valueChanged", slider->valueChanged());

        auto *horizontal = new CFxUICheckBox;
        horizontal->setText(QStringLiteral("setHorizontalScrollingEnabled"));
        AddRow("A bar always, or never", horizontal);
        auto *vertical = new CFxUICheckBox;
        vertical->setText(QStringLiteral("setVerticalScrollingEnabled"));
        AddRow("Stored only", vertical);

        GalleryRow row = AddWideRow("Scrollable area", area, [area] {
            return QStringLiteral("horizontalScrollingEnabled() ")
                + GalleryText(area->horizontalScrollingEnabled())
                + QStringLiteral(", verticalScrollingEnabled() ")
                + GalleryText(area->verticalScrollingEnabled());
        });
        area->addView(form);
        horizontal->clicked().connect([=]() mutable {
            area->setHorizontalScrollingEnabled(!area->horizontalScrollingEnabled());
            row.Refresh();
        });
        vertical->clicked().connect([=]() mutable {
            area->setVerticalScrollingEnabled(!area->verticalScrollingEnabled());
            row.Refresh();
        });
    }

    CFxUIVerticalLayout *MakeForm()
    {
        auto *form = new CFxUIVerticalLayout;
        form->setContentsMargins(8, 8, 8, 8);
        form->setSpacing(4);
        for (int i = 1; i <= FormRows; ++i) {
            auto *label = new CFxUILabel;
            label->setText(QStringLiteral("Row %1").arg(i));
            label->setMinimumWidth(80);
            auto *field = new CFxUITextEdit;
            field->setPlaceholderText(QStringLiteral("Value of row %1").arg(i));
            auto *row = new CFxUIHorizontalLayout;
            row->addView(label);
            row->addView(field, 1);
            row->setMinimumHeight(FormRowHeight);
            row->setMaximumHeight(FormRowHeight);
            form->addView(row);
            m_rows.push_back(row);
        }
        return form;
    }

    std::vector<CFxUIBaseView *> m_rows;
};

const GalleryPluginInfo Info { GalleryInterfaceVersion, "scroll", "Scrollable area",
                               "A long form, and jumping to one of its rows." };

} // namespace

const GalleryPluginInfo *GalleryPlugin_Info()
{
    return &Info;
}

CFxUIDialog *GalleryPlugin_CreateDialog(IGalleryHost *host)
{
    return new ScrollPanel(host);
}
