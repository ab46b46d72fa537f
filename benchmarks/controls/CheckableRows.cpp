// Check boxes, and radio buttons in a group box, where they exclude each other.

#include "Bare.h"
#include "Rows.h"
#include "Steps.h"

#include "UI/FxUICheckBox.h"
#include "UI/FxUIGroupBox.h"
#include "UI/FxUIRadioButton.h"

namespace {

// Where the indicator is, from which a click on a hidden widget of any height is taken.
QPoint Indicator(const QWidget &widget)
{
    return { 8, widget.height() / 2 };
}

void RegisterCheckBox()
{
    const Rows<CFxUICheckBox, BareCheckBox> rows("check box");
    rows.Make();
    rows.Set("setText", [](auto &box, int i) { box.setText(Text(i)); });
    rows.Set("setChecked", [](auto &box, int i) { box.setChecked(i % 2); });
    rows.Set("setTristate", [](auto &box, int i) { box.setTristate(i % 2); });
    rows.Set(
        "setCheckState",
        [](CFxUICheckBox &box, int i) {
            box.setCheckState(i % 2 ? CFxUICheckBox::Checked : CFxUICheckBox::PartiallyChecked);
        },
        [](BareCheckBox &box, int i) {
            box.setCheckState(i % 2 ? Qt::Checked : Qt::PartiallyChecked);
        });
    rows.User(
        "click",
        [](CFxUICheckBox &box, int &heard) { box.toggled().connect([&heard](bool) { ++heard; }); },
        [](QWidget &box, int) { Click(box, Indicator(box)); });
}

struct TwoButtons : CFxUIGroupBox {
    TwoButtons()
    {
        for (auto &button : buttons) {
            button = new CFxUIRadioButton;
            addView(button);
        }
    }

    CFxUIRadioButton *buttons[2];
};

struct BareTwoButtons : BareGroupBox {
    BareTwoButtons()
    {
        for (auto &button : buttons) {
            button = new BareRadioButton;
            box->addWidget(button);
        }
    }

    BareRadioButton *buttons[2];
};

void RegisterRadioButton()
{
    const Rows<CFxUIRadioButton, BareRadioButton> rows("radio button");
    rows.Make();
    rows.Set("setText", [](auto &button, int i) { button.setText(Text(i)); });
    Rows<TwoButtons, BareTwoButtons>("radio button")
        .Set("setChecked, in turns",
             [](auto &box, int i) { box.buttons[i % 2]->setChecked(true); });
    rows.User(
        "click",
        [](CFxUIRadioButton &button, int &heard) {
            button.clicked().connect([&heard] { ++heard; });
        },
        [](QWidget &button, int) { Click(button, Indicator(button)); });
}

} // namespace

void RegisterCheckableRows()
{
    RegisterCheckBox();
    RegisterRadioButton();
}
