#include "Bare.h"
#include "Rows.h"
#include "Steps.h"

#include "UI/FxUIGroupBox.h"
#include "UI/FxUIHorizontalLayout.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIRadioButton.h"
#include "UI/FxUIRadioGroup.h"
#include "UI/FxUIScrollableArea.h"
#include "UI/FxUIStackedWidget.h"
#include "UI/FxUIVerticalLayout.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTabBar>

namespace {

constexpr int ChildCount = 3;

/// A container over a box layout, with labels in it.
template <class Container> struct WithLabels : Container {
    WithLabels()
    {
        for (auto &label : labels)
            this->addView(label = new CFxUILabel);
    }

    CFxUILabel *labels[ChildCount];
};

template <class Container> struct BareWithLabels : Container {
    BareWithLabels()
    {
        for (auto &label : labels) {
            label = new BareLabel;
            label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum);
            this->box->addWidget(label);
        }
    }

    BareLabel *labels[ChildCount];
};

template <class Container, class Bare> void RegisterBox(const char *name)
{
    using Labels = WithLabels<Container>;
    using BareLabels = BareWithLabels<Bare>;
    Rows<Container, Bare>(name).Make();
    const Rows<Labels, BareLabels> rows(name);
    rows.Make("with 3 labels");
    rows.Set(
        "removeView, insertView",
        [](Labels &container, int i) {
            CFxUILabel *label = container.labels[i % ChildCount];
            container.removeView(label);
            container.insertView(label, 0);
        },
        [](BareLabels &container, int i) {
            BareLabel *label = container.labels[i % ChildCount];
            container.box->removeWidget(label);
            label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum);
            container.box->insertWidget(0, label);
        });
    rows.Set(
        "setContentsMargins",
        [](Labels &container, int i) { container.setContentsMargins(i % 9, 1, 2, 3); },
        [](BareLabels &container, int i) { container.box->setContentsMargins(i % 9, 1, 2, 3); });
    rows.Set(
        "setSpacing", [](Labels &container, int i) { container.setSpacing(i % 9); },
        [](BareLabels &container, int i) { container.box->setSpacing(i % 9); });
}

/// A static setter, which needs two widgets in one window.
void RegisterTabOrder()
{
    Rows<WithLabels<CFxUIVerticalLayout>, BareWithLabels<BareColumn>>("view").Set(
        "setTabOrder",
        [](auto &column, int i) {
            CFxUIBaseView::setTabOrder(column.labels[i % 2], column.labels[(i + 1) % 2]);
        },
        [](auto &column, int i) {
            QWidget::setTabOrder(column.labels[i % 2], column.labels[(i + 1) % 2]);
        });
}

void RegisterBoxes()
{
    RegisterBox<CFxUIVerticalLayout, BareColumn>("vertical layout");
    RegisterBox<CFxUIHorizontalLayout, BareRow>("horizontal layout");
    RegisterBox<CFxUIGroupBox, BareGroupBox>("group box");
    Rows<CFxUIGroupBox, BareGroupBox>("group box").Set("setTitle", [](auto &box, int i) {
        box.setTitle(Text(i));
    });
    Rows<CFxUIVerticalLayout, BareColumn>("vertical layout")
        .User(
            "key for the parent",
            [](CFxUIVerticalLayout &column, int &heard) {
                column.aboutToPassEventToParent().connect([&heard] { ++heard; });
            },
            [](QWidget &column, int) { PressKey(column, Qt::Key_A); });
}

struct Radios : CFxUIGroupBox {
    Radios()
    {
        auto *group = new CFxUIRadioGroup;
        addView(group);
        for (int i = 0; i < ChildCount; ++i)
            group->addRadioButton(new CFxUIRadioButton);
        delete group->getHandle(); // a QButtonGroup, which no one deletes otherwise
    }
};

struct BareRadios : BareGroupBox {
    BareRadios()
    {
        const QButtonGroup group;
        for (int i = 0; i < ChildCount; ++i) {
            auto *button = new BareRadioButton;
            button->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding);
            box->addWidget(button);
        }
    }
};

struct WithContent : CFxUIScrollableArea {
    WithContent()
        : content(new CFxUILabel)
    {
        addView(content);
    }

    CFxUILabel *content;
};

struct BareWithContent : BareScrollArea {
    BareWithContent()
        : content(new BareLabel)
    {
        content->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
        setWidget(content);
        setWidgetResizable(true);
    }

    BareLabel *content;
};

void RegisterScrollableArea()
{
    Rows<CFxUIScrollableArea, BareScrollArea>("scrollable area").Make();
    const Rows<WithContent, BareWithContent> rows("scrollable area");
    rows.Make("with a label");
    rows.Set(
        "setHorizontalScrollingEnabled",
        [](WithContent &area, int i) { area.setHorizontalScrollingEnabled(i % 2); },
        [](BareWithContent &area, int i) {
            area.setHorizontalScrollBarPolicy(i % 2 ? Qt::ScrollBarAlwaysOn
                                                    : Qt::ScrollBarAlwaysOff);
        });
    rows.Set(
        "scrollTo", [](WithContent &area, int) { area.scrollTo(area.content); },
        [](BareWithContent &area, int) {
            QCoreApplication::processEvents();
            area.ensureWidgetVisible(area.content, 0, area.content->maximumHeight());
            area.horizontalScrollBar()->setValue(0);
        });
}

struct Pages : CFxUIStackedWidget {
    Pages()
    {
        for (auto &page : pages)
            addTab(page = new CFxUILabel, QStringLiteral("page"));
    }

    CFxUILabel *pages[ChildCount];
};

struct BarePages : BareTabs {
    BarePages()
    {
        for (auto &page : pages) {
            page = new BareLabel;
            page->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
            addTab(page, QStringLiteral("page"));
        }
    }

    BareLabel *pages[ChildCount];
};

void RegisterStackedWidget()
{
    Rows<CFxUIStackedWidget, BareTabs>("stacked widget").Make();
    const Rows<Pages, BarePages> rows("stacked widget");
    rows.Make("with 3 pages");
    rows.Set("setTabText", [](auto &tabs, int i) { tabs.setTabText(i % 2, Text(i)); });
    rows.Set("setCurrentIndex", [](auto &tabs, int i) { tabs.setCurrentIndex(i % ChildCount); });
    rows.Set("setCurrentWidget",
             [](auto &tabs, int i) { tabs.setCurrentWidget(tabs.pages[i % ChildCount]); });
    rows.User("click a tab", [](QWidget &tabs, int i) {
        auto &bar = *static_cast<QTabWidget &>(tabs).tabBar();
        Click(bar, bar.tabRect(i % ChildCount).center());
    });
}

} // namespace

void RegisterContainerRows()
{
    RegisterTabOrder();
    RegisterBoxes();
    Rows<Radios, BareRadios>("radio group").Make("with 3 buttons, in a group box");
    RegisterScrollableArea();
    RegisterStackedWidget();
}
