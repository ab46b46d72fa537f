#include "interface/GalleryPanel.h"
#include "UI/FxUIDockWidget.h"
#include "UI/FxUIGroupBox.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIStackedWidget.h"
#include "UI/FxUIVerticalLayout.h"

#include <memory>

namespace {

constexpr int TabsHeight = 110;

CFxUILabel *MakeText(const char *text)
{
    auto *label = new CFxUILabel;
    label->setText(QString::fromUtf8(text));
    label->setWordWrap(true);
    return label;
}

CFxUIBaseView *MakePage(const char *text)
{
    auto *page = new CFxUIVerticalLayout;
    page->setContentsMargins(10, 10, 10, 10);
    page->addView(MakeText(text));
    return page;
}

class TabsPanel : public GalleryPanel {
public:
    explicit TabsPanel(IGalleryHost *host)
        : GalleryPanel(host, "Group boxes and tabs")
    {
    }

private:
    void Build() override
    {
        BuildGroup();
        BuildTabs();
        BuildDock();
    }

    void BuildGroup()
    {
        AddHeading("A group box");
        AddNote("setCollapsed() stores the state and emits; what is to be hidden, a slot hides.");
        auto *group = new CFxUIGroupBox;
        group->setTitle(QStringLiteral("Export"));
        group->setContentsMargins(8, 24, 8, 8); // room for the title
        CFxUILabel *content = MakeText("Hidden by a slot of onCollapsedStateChanged.");
        group->addView(content);
        group->onCollapsedStateChanged().connect(
            [content](bool collapsed) { content->setVisible(!collapsed); });
        GalleryRow row = AddTallRow("Group box", group, [group] {
            return QStringLiteral("title() ") + GalleryText(group->title())
                + QStringLiteral("\nisCollapsed() ") + GalleryText(group->isCollapsed());
        });
        row.Reports("onCollapsedStateChanged", group->onCollapsedStateChanged());
        AddActions(
            row, { { "setCollapsed()", [group] { group->setCollapsed(!group->isCollapsed()); } } });
    }

    void BuildTabs()
    {
        AddHeading("A stacked widget");
        AddNote("A click on a tab turns the page and reaches nothing: currentIndex() is the "
                "caller's index. That is intended.");
        auto *tabs = new CFxUIStackedWidget;
        tabs->addTab(MakePage("The first page"), QStringLiteral("First"));
        tabs->addTab(MakePage("The second page"), QStringLiteral("Second"));
        tabs->addTab(MakePage("The third page"), QStringLiteral("Third"));
        tabs->setMinimumHeight(TabsHeight);
        tabs->setMaximumHeight(TabsHeight);
        GalleryRow row = AddWideRow("Tabs", tabs, [tabs] {
            return QStringLiteral("currentIndex() ") + GalleryText(tabs->currentIndex());
        });
        row.Reports("currentChanged", tabs->currentChanged())
            .Reports("tabBarClicked", tabs->tabBarClicked())
            .Reports("tabBarDoubleClicked", tabs->tabBarDoubleClicked())
            .Reports("tabCloseRequested", tabs->tabCloseRequested());

        AddActions(row,
                   { { "setCurrentIndex(next)",
                       [tabs] { tabs->setCurrentIndex((tabs->currentIndex() + 1) % 3); } },
                     { "setTabText(0, \"Renamed\")",
                       [tabs] { tabs->setTabText(0, QStringLiteral("Renamed")); } } });
    }

    void BuildDock()
    {
        AddHeading("A dock widget");
        AddNote("It makes no widget of its own. Its title is stored, and nothing shows it: that is "
                "intended.");
        m_dock = std::make_unique<CFxUIDockWidget>(1);
        auto *empty = new CFxUILabel;
        GalleryRow row = AddRow("Dock widget", empty, [this] {
            return QStringLiteral("getHandle() ") + GalleryText(m_dock->getHandle())
                + QStringLiteral("\nwidget() ") + GalleryText(m_dock->widget());
        });
        AddActions(row, { { "setTitle(\"Pane\")", [this] {
                               m_dock->setTitle(QStringLiteral("Pane"));
                           } } });
    }

    std::unique_ptr<CFxUIDockWidget> m_dock;
};

const GalleryPluginInfo Info { GalleryInterfaceVersion, "tabs", "Group boxes and tabs",
                               "A group box, a stacked widget and a dock widget." };

} // namespace

const GalleryPluginInfo *GalleryPlugin_Info()
{
    return &Info;
}

CFxUIDialog *GalleryPlugin_CreateDialog(IGalleryHost *host)
{
    return new TabsPanel(host);
}
