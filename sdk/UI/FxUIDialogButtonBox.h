#pragma once

#include "UI/FxUIBaseView.h"

#include <QtCore/QFlags>

class CFxUIDialog;
class CFxUIPushButton;

/// The row of standard buttons at the foot of a dialog (QDialogButtonBox): always Ok, Cancel and
/// Help, at least 30 pixels high.
///
/// It doesn't close the dialog: connect accepted() and rejected() to the dialog's accept() and
/// reject().
class COMMONUI_EXPORT CFxUIDialogButtonBox : public CFxUIBaseView {
public:
    /// The numbers of QDialogButtonBox::StandardButton. Three of them have a meaning: Ok, Cancel
    /// and Help.
    enum StandardButton : int {
        NoButton = 0x00000000,
        Ok = 0x00000400,
        Save = 0x00000800,
        SaveAll = 0x00001000,
        Open = 0x00002000,
        Yes = 0x00004000,
        YesToAll = 0x00008000,
        No = 0x00010000,
        NoToAll = 0x00020000,
        Abort = 0x00040000,
        Retry = 0x00080000,
        Ignore = 0x00100000,
        Close = 0x00200000,
        Cancel = 0x00400000,
        Discard = 0x00800000,
        Help = 0x01000000,
        Apply = 0x02000000,
        Reset = 0x04000000,
        RestoreDefaults = 0x08000000,
        FirstButton = Ok,
        LastButton = RestoreDefaults
    };
    Q_DECLARE_FLAGS(StandardButtons, StandardButton)

    /// Puts itself below what GetLayout() of \a dialog holds now, and becomes a child of \a dialog,
    /// which owns it. \a dialog must be set up: make the box in SetupUI(). Otherwise the box is in
    /// no layout, and without a dialog it has no parent.
    explicit CFxUIDialogButtonBox(CFxUIDialog *dialog);
    ~CFxUIDialogButtonBox() override;

    /// No effect: the three buttons are fixed.
    void setStandardButtons(QFlags<CFxUIDialogButtonBox::StandardButton> buttons);

    /// Returns the wrapper of the Ok, the Cancel or the Help button, and null for any other number,
    /// a combination of the three included. The box owns the wrappers. Operations that work on any
    /// view reach the button; those of CFxUIPushButton itself, setText() for one, are stored only,
    /// and a press doesn't emit the wrapper's clicked().
    CFxUIPushButton *button(CFxUIDialogButtonBox::StandardButton which) const;

    /// Emitted when Ok is pressed, after clicked(); and when the wrapper of Ok emits its clicked(),
    /// as the dialog's own accepted() makes it do.
    CFxUISignal<void()> &accepted();

    /// Emitted when any of the three is pressed. The argument is the Help button's wrapper, always.
    CFxUISignal<void(CFxUIPushButton *)> &clicked();

    /// Emitted by CFxUIDialogImpl::OnHelpPressed() alone, and not when Help is pressed.
    CFxUISignal<void()> &helpRequest();

    /// Emitted when Cancel is pressed, after clicked(); and when the wrapper of Cancel emits its
    /// clicked(), as the dialog's own rejected() makes it do.
    CFxUISignal<void()> &rejected();
};

Q_DECLARE_OPERATORS_FOR_FLAGS(CFxUIDialogButtonBox::StandardButtons)
