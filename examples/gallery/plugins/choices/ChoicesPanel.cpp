#include "EmissionSequence.h"
#include "interface/GalleryPanel.h"
#include "UI/FxUICheckBox.h"
#include "UI/FxUIComboBox.h"
#include "UI/FxUIGroupBox.h"
#include "UI/FxUIRadioButton.h"
#include "UI/FxUIRadioGroup.h"

#include <QtGui/QIcon>
#include <QtGui/QPixmap>

#include <functional>
#include <utility>

namespace {

QIcon ColorIcon(const QColor &color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    return QIcon(pixmap);
}

class ChoicesPanel : public GalleryPanel {
public:
    explicit ChoicesPanel(IGalleryHost *host)
        : GalleryPanel(host, "Choices")
    {
    }

private:
    void Build() override
    {
        AddCheckBoxes();
        AddRadioButtons();
        AddComboBox();
    }

    void AddCheckBoxes()
    {
        AddHeading("Check box");
        AddNote("A click emits stateChanged and toggled once each. The button calls setChecked(), "
                "which emits the pair twice: that is meant.");
        auto *grid = new CFxUICheckBox;
        grid->setText(QStringLiteral("Show grid"));
        const GalleryRow row = AddCheckBoxRow("Two states", grid);
        AddActions(row, { { "setChecked(!isChecked())", [grid] {
                               grid->setChecked(!grid->isChecked());
                           } } });

        auto *layers = new CFxUICheckBox;
        layers->setText(QStringLiteral("All layers"));
        layers->setTristate(true);
        AddCheckBoxRow("Three states", layers);

        grid->setChecked(true);
        layers->setCheckState(CFxUICheckBox::PartiallyChecked);
    }

    GalleryRow AddCheckBoxRow(const char *caption, CFxUICheckBox *box)
    {
        EmissionSequence sequence;
        sequence.Follow("stateChanged", box->stateChanged());
        sequence.Follow("toggled", box->toggled());
        GalleryRow row = AddRow(caption, box, [box, sequence] {
            return QStringLiteral("isChecked() %1, checkState() %2\n%3")
                .arg(GalleryText(box->isChecked()), GalleryText(box->checkState()),
                     sequence.Text());
        });
        row.Reports("stateChanged", box->stateChanged()).Reports("toggled", box->toggled());
        return row;
    }

    void AddRadioButtons()
    {
        AddHeading("Radio group in a group box");
        AddNote("isChecked() answers what a program has set last; a click doesn't change it. A "
                "group box "
                "hides nothing when it is collapsed.");
        auto *box = new CFxUIGroupBox;
        box->setTitle(QStringLiteral("Units"));
        box->setContentsMargins(9, 24, 9,
                                9); // room for the title, which Qt draws over the contents
        auto *group = new CFxUIRadioGroup;
        box->addView(group); // before its buttons, which go where the group is
        QList<CFxUIRadioButton *> buttons;
        for (const char *text : { "Millimetres", "Inches", "Points" }) {
            buttons.append(new CFxUIRadioButton);
            buttons.last()->setText(QString::fromUtf8(text));
            group->addRadioButton(buttons.last());
        }
        GalleryRow row = AddTallRow("Units", box, [box, buttons] {
            QStringList lines;
            for (const CFxUIRadioButton *button : buttons)
                lines.append(QStringLiteral("%1 isChecked() %2")
                                 .arg(button->text(), GalleryText(button->isChecked())));
            lines.append(QStringLiteral("isCollapsed() ") + GalleryText(box->isCollapsed()));
            return lines.join(QLatin1Char('\n'));
        });
        for (CFxUIRadioButton *button : std::as_const(buttons))
            row.Reports("clicked", button->clicked()).Reports("toggled", button->toggled());
        row.Reports("onCollapsedStateChanged", box->onCollapsedStateChanged());

        AddActions(row,
                   {
                       { "check Inches", [buttons] { buttons.at(1)->setChecked(true); } },
                       { "collapse", [box] { box->setCollapsed(!box->isCollapsed()); } },
                   });
        buttons.first()->setChecked(true);
    }

    void AddComboBox()
    {
        AddHeading("Combo box");
        AddNote("Your choice emits activated, too; setCurrentIndex() doesn't. clear() keeps index "
                "and text; a new first item then comes in silence.");
        auto *colors = new CFxUIComboBox;
        EmissionSequence sequence;
        sequence.Follow("activated", colors->activated());
        sequence.Follow("currentIndexChanged", colors->currentIndexChanged());
        sequence.Follow("currentStringChanged", colors->currentStringChanged());
        GalleryRow row = AddRow("Colour", colors, [colors, sequence] {
            return QStringLiteral(
                       "count() %1, currentIndex() %2\ncurrentText() %3, itemData() %4\n%5")
                .arg(GalleryText(colors->count()), GalleryText(colors->currentIndex()),
                     GalleryText(colors->currentText()),
                     colors->itemData(colors->currentIndex()).toString(), sequence.Text());
        });
        row.Reports("activated", colors->activated())
            .Reports("currentIndexChanged", colors->currentIndexChanged())
            .Reports("currentStringChanged", colors->currentStringChanged());

        AddActions(row,
                   { { "next index",
                       [colors] {
                           const int next = colors->currentIndex() + 1;
                           colors->setCurrentIndex(next < colors->count() ? next : 0);
                       } },
                     { "clear, then add", [colors, sequence]() mutable {
                          sequence.Restart();
                          colors->clear();
                          colors->addItem(ColorIcon(Qt::gray), QStringLiteral("Grey"),
                                          QStringLiteral("#a0a0a4"));
                      } } });

        colors->addItem(ColorIcon(Qt::red), QStringLiteral("Red"), QStringLiteral("#ff0000"));
        colors->addItem(ColorIcon(Qt::green), QStringLiteral("Green"), QStringLiteral("#00ff00"));
        colors->addItem(ColorIcon(Qt::blue), QStringLiteral("Blue"), QStringLiteral("#0000ff"));
        row.Refresh();
    }
};

const GalleryPluginInfo Info { GalleryInterfaceVersion, "choices", "Choices",
                               "Check boxes, a radio group in a group box, and a combo box." };

} // namespace

const GalleryPluginInfo *GalleryPlugin_Info()
{
    return &Info;
}

CFxUIDialog *GalleryPlugin_CreateDialog(IGalleryHost *host)
{
    return new ChoicesPanel(host);
}
