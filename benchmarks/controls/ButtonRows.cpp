#include "Bare.h"
#include "Rows.h"
#include "Steps.h"

#include "UI/FxUIMenu.h"
#include "UI/FxUIPushButton.h"

namespace {

using Button = CFxUIPushButton;
using Bare = BarePushButton;

void RegisterSetters(const Rows<Button, Bare> &rows)
{
    rows.Set("setText", [](auto &button, int i) { button.setText(Text(i)); });
    rows.Set("setIcon", [](auto &button, int i) { button.setIcon(Icon(i)); });
    rows.Set("setIconSize", [](auto &button, int i) { button.setIconSize(QSize(16 + i % 9, 16)); });
    rows.Set("setToolTip", [](auto &button, int i) { button.setToolTip(Text(i)); });
    rows.Set("setCheckable", [](auto &button, int i) { button.setCheckable(i % 2); });
}

void RegisterStyleSetters(const Rows<Button, Bare> &rows)
{
    rows.Set(
        "setTextAlignment",
        [](Button &button, int i) {
            button.setTextAlignment(i % 2 ? Button::AlignLeft : Button::AlignRight);
        },
        [](Bare &button, int i) {
            button.setStyleSheet(i % 2 ? QStringLiteral("QPushButton { text-align:left;}")
                                       : QStringLiteral("QPushButton { text-align:right;}"));
        });
    rows.Set(
        "setBoldText", [](Button &button, int i) { button.setBoldText(i % 2); },
        [](Bare &button, int i) {
            button.setStyleSheet(i % 2 ? QStringLiteral("QPushButton { font-weight: bold;}")
                                       : QStringLiteral("QPushButton { font-weight: normal;}"));
        });
    rows.Set(
        "setMenuArrowVisible", [](Button &button, int i) { button.setMenuArrowVisible(i % 2); },
        [](Bare &button, int i) {
            button.setStyleSheet(
                i % 2 ? QStringLiteral("QPushButton { }")
                      : QStringLiteral("QPushButton { }"
                                       "QPushButton::menu-indicator{image:url(none.jpg);}"));
        });
}

struct WithMenu : Button {
    CFxUIMenu menu;
};

struct BareWithMenu : Bare {
    BareMenu menu;
};

struct Eliding : Button {
    Eliding() { setElideTextEnabled(true); }
};

void RegisterSpecialSetters()
{
    Rows<WithMenu, BareWithMenu>("push button").Set("setMenu", [](auto &button, int i) {
        button.setMenu(i % 2 ? nullptr : &button.menu);
    });
    Rows<Eliding, Bare>("push button")
        .Set(
            "setText, eliding", [](Eliding &button, int i) { button.setText(Text(i)); },
            [](Bare &button, int i) {
                button.setText(
                    button.fontMetrics().elidedText(Text(i), Qt::ElideRight, button.width()));
            });
}

void RegisterUserEvents(const Rows<Button, Bare> &rows)
{
    const auto clicks = [](Button &button, int &heard) {
        button.clicked().connect([&heard](bool) { ++heard; });
    };
    rows.User("click", clicks, [](QWidget &button, int) { Click(button, QPoint(5, 5)); });
    rows.User("space key", clicks, [](QWidget &button, int) {
        PressKey(button, Qt::Key_Space);
        ReleaseKey(button, Qt::Key_Space);
    });
    rows.User(
        "hover, enter",
        [](Button &button, int &heard) { button.hoverEnter().connect([&heard] { ++heard; }); },
        [](QWidget &button, int) { Send(button, QEvent::Enter); });
    rows.User(
        "hover, leave",
        [](Button &button, int &heard) { button.hoverLeave().connect([&heard] { ++heard; }); },
        [](QWidget &button, int) { Send(button, QEvent::Leave); });
}

} // namespace

void RegisterButtonRows()
{
    const Rows<Button, Bare> rows("push button");
    rows.Make();
    RegisterSetters(rows);
    RegisterStyleSetters(rows);
    RegisterSpecialSetters();
    RegisterUserEvents(rows);
}
