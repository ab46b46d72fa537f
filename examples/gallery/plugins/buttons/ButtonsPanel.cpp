#include "interface/GalleryPanel.h"
#include "UI/FxUIAction.h"
#include "UI/FxUIMenu.h"
#include "UI/FxUIPushButton.h"
#include "UI/FxUISlider.h"

#include <QtGui/QIcon>
#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

namespace {

constexpr int NarrowestCaption = 60;
constexpr int FirstCaption = 180;

CFxUIPushButton *MakeButton(const char *text)
{
    auto *button = new CFxUIPushButton;
    button->setText(QString::fromUtf8(text));
    return button;
}

QIcon SquareIcon()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(QColor(33, 75, 152));
    return QIcon(pixmap);
}

void SetFixedWidth(CFxUIBaseView *view, int width)
{
    view->setMinimumWidth(width);
    view->setMaximumWidth(width);
}

class ButtonsPanel : public GalleryPanel {
public:
    explicit ButtonsPanel(IGalleryHost *host)
        : GalleryPanel(host, "Buttons and menus")
    {
    }

private:
    void Build() override
    {
        BuildClicks();
        BuildCaption();
        BuildMenu();
        BuildSheet();
    }

    void BuildClicks()
    {
        AddHeading("Clicks and hovering");
        auto *plain = MakeButton("Point at me, press me");
        plain->setIcon(SquareIcon());
        plain->setToolTip(QStringLiteral("The one view that reports hovering"));
        AddRow("Push button", plain,
               [plain] { return QStringLiteral("iconSize() ") + GalleryText(plain->iconSize()); })
            .Reports("clicked", plain->clicked())
            .Reports("hoverEnter", plain->hoverEnter())
            .Reports("hoverLeave", plain->hoverLeave());

        auto *checkable = MakeButton("On or off");
        checkable->setCheckable(true);
        AddRow("Checkable", checkable, [] {
            return QStringLiteral("clicked() carries true, switched off as well");
        }).Reports("clicked", checkable->clicked());
    }

    void BuildCaption()
    {
        AddHeading("A caption that is too long");
        AddNote(
            "It is elided to the whole width by setText() and by each resizing. Switched off, an "
            "elided caption stays until the next setText().");
        auto *button = MakeButton("Export the whole drawing with all of its layers");
        button->setElideTextEnabled(true);
        SetFixedWidth(button, FirstCaption);
        GalleryRow row = AddRow("Elided", button, [button] {
            return QStringLiteral("text() ") + GalleryText(button->text());
        });
        auto *width = new CFxUISlider;
        width->setRange(NarrowestCaption, ControlWidth);
        width->setValue(FirstCaption);
        AddRow("Its width", width, [width] {
            return QStringLiteral("value() ") + GalleryText(width->value());
        }).Reports("valueChanged", width->valueChanged());
        width->valueChanged().connect([button](int value) { SetFixedWidth(button, value); });
        AddActions(
            row,
            { { "setElideTextEnabled(false)", [button] { button->setElideTextEnabled(false); } },
              { "setElideTextEnabled(true)", [button] { button->setElideTextEnabled(true); } },
              { "setText(text())", [button] { button->setText(button->text()); } } });
    }

    void BuildMenu()
    {
        AddHeading("Menus");
        auto *menu = new CFxUIMenu;
        menu->setParent(this); // a button doesn't own its menu
        auto *rename = AddEntry(menu, "Rename");
        auto *pinned = AddEntry(menu, "Pinned");
        pinned->setCheckable(true);
        menu->addSeparator();
        auto *archived = AddEntry(menu, "Archived: disabled, and yet selectable");
        archived->setEnabled(false);

        auto *opener = MakeButton("Layer");
        opener->setMenu(menu);
        GalleryRow row = AddRow("With a menu", opener, [pinned] {
            return QStringLiteral("Pinned: isChecked() ") + GalleryText(pinned->isChecked())
                + QStringLiteral(", whatever the user toggles");
        });
        row.Reports("Rename.triggered", rename->triggered())
            .Reports("Pinned.triggered", pinned->triggered())
            .Reports("Archived.triggered", archived->triggered());

        auto *popper = MakeButton("popup() below me");
        AddRow("On demand", popper).Reports("clicked", popper->clicked());
        popper->clicked().connect([menu, popper](bool) { menu->popup(popper); });
        AddActions(row,
                   { { "setChecked(true)", [pinned] { pinned->setChecked(true); } },
                     { "setChecked(false)", [pinned] { pinned->setChecked(false); } },
                     { "clear()", [menu] { menu->clear(); } },
                     { "addAction() again", [menu, rename, pinned, archived] {
                          for (CFxUIAction *action : { rename, pinned, archived })
                              menu->addAction(action);
                      } } });
    }

    void BuildSheet()
    {
        AddHeading("Alignment, weight and arrow");
        AddNote("They are text in the button's style sheet. Behind a hidden arrow the others are "
                "written into the arrow's rule: hide it last.");
        auto *menu = new CFxUIMenu;
        menu->setParent(this);
        auto *button = MakeButton("Style me");
        button->setMenu(menu);
        GalleryRow row = AddRow("Style sheet", button, [button] { return Sheet(button); });
        const auto align = [button](CFxUIBaseView::TextAlignment alignment) {
            return [button, alignment] { button->setTextAlignment(alignment); };
        };
        AddActions(row,
                   { { "Left", align(CFxUIBaseView::AlignLeft) },
                     { "Centre", align(CFxUIBaseView::AlignCenter) },
                     { "Right", align(CFxUIBaseView::AlignRight) },
                     { "Bold", [button] { button->setBoldText(true); } },
                     { "Normal", [button] { button->setBoldText(false); } },
                     { "No arrow", [button] { button->setMenuArrowVisible(false); } },
                     { "Arrow", [button] { button->setMenuArrowVisible(true); } } });
    }

    static CFxUIAction *AddEntry(CFxUIMenu *menu, const char *text)
    {
        auto *action = new CFxUIAction;
        action->setText(QString::fromUtf8(text));
        menu->addAction(action);
        return action;
    }

    // A blank behind each semicolon and brace lets the label break its lines.
    static QString Sheet(const CFxUIPushButton *button)
    {
        return static_cast<const QWidget *>(button->getHandle())
            ->styleSheet()
            .replace(QLatin1Char(';'), QStringLiteral("; "))
            .replace(QLatin1Char('}'), QStringLiteral("} "));
    }
};

const GalleryPluginInfo Info {
    GalleryInterfaceVersion, "buttons", "Buttons and menus",
    "Clicks, hovering, elided captions, menus, and edits of the sheet."
};

} // namespace

const GalleryPluginInfo *GalleryPlugin_Info()
{
    return &Info;
}

CFxUIDialog *GalleryPlugin_CreateDialog(IGalleryHost *host)
{
    return new ButtonsPanel(host);
}
