#include "UI/FxUIDialog.h"
#include "UI/FxUIDialogButtonBox.h"
#include "UI/FxUILabel.h"
#include "UI/FxUISlider.h"
#include "UI/FxUIVerticalLayout.h"

#include <QtWidgets/QApplication>

class VolumeDialog : public CFxUIDialog {
    void SetupUI() override // runs once, at the first exec()
    {
        auto *label = new CFxUILabel;
        auto *slider = new CFxUISlider;
        GetLayout()->addView(label); // the layout owns its views
        GetLayout()->addView(slider);
        slider->valueChanged().connect(
            [label](int value) { label->setText(QStringLiteral("Volume: %1").arg(value)); });
        slider->setValue(30);

        auto *buttons = new CFxUIDialogButtonBox(this); // the dialog owns it
        buttons->accepted().connect([this] { accept(); });
        buttons->rejected().connect([this] { reject(); });
    }
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    VolumeDialog dialog;
    return dialog.exec() == 1 ? 0 : 1;
}
