// Actions and menus; and the timer, which isn't a control but wraps a Qt object as they do.

#include "Bare.h"
#include "Rows.h"
#include "Steps.h"

#include "UI/FxUIAction.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIMenu.h"
#include "UI/FxUITimer.h"

namespace {

/// Deletes the QAction too, which outlives its CFxUIAction otherwise.
struct Action : CFxUIAction {
    ~Action() override { delete getHandle(); }
};

void RegisterAction()
{
    const Rows<Action, BareAction> rows("action");
    rows.Make();
    rows.Set("setIcon", [](auto &action, int i) { action.setIcon(Icon(i)); });
    rows.Set("setText", [](auto &action, int i) { action.setText(Text(i)); });
    rows.Set("setCheckable", [](auto &action, int i) { action.setCheckable(i % 2); });
    rows.Set("setVisible", [](auto &action, int i) { action.setVisible(i % 2); });
    rows.User(
        "trigger",
        [](Action &action, int &heard) { action.triggered().connect([&heard](bool) { ++heard; }); },
        [](QObject &action, int) { static_cast<QAction &>(action).trigger(); });
}

template <class Entry> struct Checkable : Entry {
    Checkable() { this->setCheckable(true); }
};

constexpr int EntryCount = 3;

struct WithEntries : CFxUIMenu {
    WithEntries()
    {
        for (int i = 0; i < EntryCount; ++i)
            addAction(new Action);
    }
};

struct BareWithEntries : BareMenu {
    BareWithEntries()
    {
        for (int i = 0; i < EntryCount; ++i) {
            auto *action = new BareAction;
            action->setParent(this);
            addAction(action);
        }
    }
};

struct MenuOfView : CFxUIMenu {
    CFxUILabel view;
};

struct BareMenuOfView : BareMenu {
    void popup(QWidget *widget)
    {
        const QPoint below(widget->width() - sizeHint().width(), widget->height());
        QMenu::popup(widget->mapToGlobal(below));
    }

    BareLabel view;
};

void HideWidget(CFxUIMenu &menu)
{
    static_cast<QMenu *>(menu.getHandle())->hide();
}

void HideWidget(BareMenuOfView &menu)
{
    menu.hide();
}

void RegisterMenu()
{
    Rows<CFxUIMenu, BareMenu>("menu").Make();
    Rows<WithEntries, BareWithEntries>("menu").Make("with 3 actions");
    const Rows<MenuOfView, BareMenuOfView> rows("menu");
    rows.Set("addSeparator, clear", [](auto &menu, int) {
        menu.addSeparator();
        menu.clear();
    });
    rows.Set("popup, hide", [](auto &menu, int) {
        menu.popup(&menu.view);
        HideWidget(menu);
    });
}

void RegisterTimer()
{
    const Rows<CFxUITimer, QTimer> rows("timer");
    rows.Make();
    rows.Set("start, stop", [](auto &timer, int) {
        timer.start(1000);
        timer.stop();
    });
}

} // namespace

void RegisterMenuRows()
{
    RegisterAction();
    Rows<Checkable<Action>, Checkable<BareAction>>("action").Set(
        "setChecked", [](auto &action, int i) { action.setChecked(i % 2); });
    RegisterMenu();
    RegisterTimer();
}
