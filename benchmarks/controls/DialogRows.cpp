// The dialog's standard buttons, and a dialog without content of the caller's.

#include "Bare.h"
#include "Rows.h"
#include "Steps.h"

#include "UI/FxUIDialog.h"
#include "UI/FxUIDialogButtonBox.h"

#include <QtCore/QTimer>

namespace {

struct ButtonBox : CFxUIDialogButtonBox {
    ButtonBox()
        : CFxUIDialogButtonBox(nullptr)
    {
    }
};

void RegisterButtonBox()
{
    const Rows<ButtonBox, BareButtonBox> rows("dialog button box");
    rows.Make();
    rows.User(
        "click OK",
        [](ButtonBox &box, int &heard) {
            box.clicked().connect([&heard](CFxUIPushButton *) { ++heard; });
        },
        [](QWidget &box, int) {
            static_cast<QDialogButtonBox &>(box).button(QDialogButtonBox::Ok)->click();
        });
}

/// Deletes the window too, which outlives its CFxUIDialog otherwise.
struct Dialog : CFxUIDialog {
    ~Dialog() override { getHandle()->deleteLater(); }

    void SetupUI() override { }
};

// Runs the dialog until the user presses Escape.
template <class AnyDialog> void RunUntilEscape(AnyDialog &dialog, QWidget &window)
{
    QTimer::singleShot(0, &window, [&window] { PressKey(window, Qt::Key_Escape); });
    dialog.exec();
}

void RegisterDialog()
{
    const Rows<Dialog, BareDialog> rows("dialog");
    rows.Make();
    rows.Set("setWindowTitle", [](auto &dialog, int i) { dialog.setWindowTitle(Text(i)); });
    rows.Set("setVisible", [](auto &dialog, int i) { dialog.setVisible(i % 2); });
    rows.Set(
        "exec until Escape",
        [](Dialog &dialog, int) {
            RunUntilEscape(dialog, *static_cast<QWidget *>(dialog.getHandle()));
        },
        [](BareDialog &dialog, int) { RunUntilEscape(dialog, dialog); });
}

} // namespace

void RegisterDialogRows()
{
    RegisterButtonBox();
    RegisterDialog();
}
