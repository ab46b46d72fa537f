// Combo box, list box and slider.

#include "Bare.h"
#include "Rows.h"
#include "Steps.h"

#include "UI/FxUIComboBox.h"
#include "UI/FxUIListBox.h"
#include "UI/FxUISlider.h"

#include <QtWidgets/QAbstractItemView>

namespace {

constexpr int ItemCount = 16;

template <class Combo> void Refill(Combo &box)
{
    box.clear();
    for (int i = 0; i < ItemCount; ++i)
        box.addItem(Text(i));
}

/// A box with items, so that there is something to choose.
template <class Combo> struct Filled : Combo {
    Filled() { Refill(*this); }
};

template <class Combo> struct Editable : Filled<Combo> {
    Editable() { this->setEditable(true); }
};

using Combo = Filled<CFxUIComboBox>;
using BareCombo = Filled<BareComboBox>;

void RegisterItemSetters(const Rows<Combo, BareCombo> &rows)
{
    const auto empty = [](auto &box) { box.clear(); };
    const auto full = [](auto &box) { Refill(box); };
    const auto add = [](auto &box, int i) { box.addItem(Text(i)); };
    const auto addIcon = [](auto &box, int i) { box.addItem(Icon(i), Text(i)); };
    const auto insert = [](auto &box, int i) { box.insertItem(0, Text(i)); };
    const auto insertIcon = [](auto &box, int i) { box.insertItem(0, Icon(i), Text(i)); };
    const auto insertFour = [](auto &box, int i) {
        box.insertItems(0, { Text(i), Text(i), Text(i), Text(i) });
    };
    const auto remove = [](auto &box, int) { box.removeItem(1); };
    const auto clear = [](auto &box, int) { box.clear(); };
    rows.SetFrom("addItem", ItemCount, empty, add, add);
    rows.SetFrom("addItem, icon", ItemCount, empty, addIcon, addIcon);
    rows.SetFrom("insertItem", ItemCount, empty, insert, insert);
    rows.SetFrom("insertItem, icon", ItemCount, empty, insertIcon, insertIcon);
    rows.SetFrom("insertItems, 4", ItemCount / 4, empty, insertFour, insertFour);
    rows.SetFrom("removeItem", ItemCount / 2, full, remove, remove);
    rows.SetFrom("clear", 1, full, clear, clear);
}

void RegisterComboBoxSetters(const Rows<Combo, BareCombo> &rows)
{
    rows.Set("setCurrentIndex", [](auto &box, int i) { box.setCurrentIndex(i % ItemCount); });
    rows.Set("setEditable", [](auto &box, int i) { box.setEditable(i % 2); });
    rows.Set("setIconSize", [](auto &box, int i) { box.setIconSize(QSize(16 + i % 9, 16)); });
    rows.Set("setMaxVisibleItems", [](auto &box, int i) { box.setMaxVisibleItems(5 + i % 9); });
    const Rows<Editable<CFxUIComboBox>, Editable<BareComboBox>> editable("combo box");
    editable.Set("setEditText", [](auto &box, int i) { box.setEditText(Text(i)); });
    editable.Set("setCurrentText", [](auto &box, int i) { box.setCurrentText(Text(i)); });
}

QWidget &OpenList(QWidget &box)
{
    auto &combo = static_cast<QComboBox &>(box);
    combo.showPopup();
    return *combo.view();
}

void RegisterComboBoxEvents(const Rows<Combo, BareCombo> &rows)
{
    const auto changes = [](Combo &box, int &heard) {
        box.currentIndexChanged().connect([&heard](int) { ++heard; });
    };
    rows.User("arrow key", changes,
              [](QWidget &box, int i) { PressKey(box, i % 2 ? Qt::Key_Up : Qt::Key_Down); });
    rows.User("wheel", changes, [](QWidget &box, int i) { Wheel(box, i % 2); });
    rows.User("choose in the list", changes, [](QWidget &box, int i) {
        QWidget &list = OpenList(box);
        PressKey(list, i % 2 ? Qt::Key_Up : Qt::Key_Down);
        PressKey(list, Qt::Key_Return);
    });
}

void RegisterSliderSetters(const Rows<CFxUISlider, BareSlider> &rows)
{
    rows.Set("setValue", [](auto &slider, int i) { slider.setValue(i % 100); });
    rows.Set("setMinimum", [](auto &slider, int i) { slider.setMinimum(-(i % 9)); });
    rows.Set("setMaximum", [](auto &slider, int i) { slider.setMaximum(100 + i % 9); });
    rows.Set("setRange", [](auto &slider, int i) { slider.setRange(-(i % 9), 100 + i % 9); });
}

void RegisterSliderEvents(const Rows<CFxUISlider, BareSlider> &rows)
{
    const auto changes = [](CFxUISlider &slider, int &heard) {
        slider.valueChanged().connect([&heard](int) { ++heard; });
    };
    rows.User("arrow key", changes, [](QWidget &slider, int i) {
        PressKey(slider, i % 2 ? Qt::Key_Left : Qt::Key_Right);
    });
    rows.User("wheel", changes, [](QWidget &slider, int i) { Wheel(slider, i % 2 == 0); });
    rows.User("drag", changes, [](QWidget &slider, int i) {
        const QPoint left(6, 12);
        const QPoint right(206, 12);
        Drag(slider, i % 2 ? right : left, i % 2 ? left : right);
    });
}

} // namespace

void RegisterChoiceRows()
{
    Rows<CFxUIComboBox, BareComboBox>("combo box").Make();
    const Rows<Combo, BareCombo> combo("combo box");
    combo.Make("with 16 items");
    RegisterItemSetters(combo);
    RegisterComboBoxSetters(combo);
    RegisterComboBoxEvents(combo);
    Rows<CFxUIListBox, BareListBox>("list box").Make();
    const Rows<CFxUISlider, BareSlider> slider("slider");
    slider.Make();
    RegisterSliderSetters(slider);
    RegisterSliderEvents(slider);
}
