#pragma once

#include "UI/FxUIDialogButtonBox.h"
#include "UI/Impl/FxUIBaseViewImpl.h"

/// Implementation object of CFxUIDialogButtonBox. Its constructor makes the frontend itself:
/// neither CreateFrontendControl() nor GetFrontendClassName() is overridden.
class COMMONUI_EXPORT CFxUIDialogButtonBoxImpl : public CFxUIBaseViewImpl {
public:
    CFxUIDialogButtonBoxImpl(CFxUIDialogButtonBox *box, CFxUIDialog *dialog);

    /// Leaves the Qt buttons to the QDialogButtonBox.
    ~CFxUIDialogButtonBoxImpl() override;

    /// Lets the wrappers of Ok and Cancel report what \a dialog emits, as long as both live.
    void ConnectDialog(CFxUIDialog *dialog);

    /// Nothing.
    void setStandardButtons(QFlags<CFxUIDialogButtonBox::StandardButton> buttons);
    CFxUIPushButton *button(CFxUIDialogButtonBox::StandardButton which) const;
    CFxUISignal<void()> &accepted();
    CFxUISignal<void(CFxUIPushButton *)> &clicked();
    CFxUISignal<void()> &helpRequest();
    CFxUISignal<void()> &rejected();

    /// Emits accepted() for 1 and rejected() for any other number. The dialog isn't touched.
    void OnResult(int result);

    /// Emits clicked(), whichever button it was.
    void OnClicked();

    /// Makes the QDialogButtonBox and puts it below what the dialog's content area holds.
    void CreateButtonBoxImpl(CFxUIDialog *dialog);

    /// Makes the three wrappers and connects the QDialogButtonBox.
    void WrapButtonsImpl();

protected:
    CFxUIPushButton *m_okButton = nullptr; // owned, as are the next two
    CFxUIPushButton *m_cancelButton = nullptr;
    CFxUIPushButton *m_helpButton = nullptr;
    CFxUISignal<void()> m_accepted; ///< emitted when Ok was pressed
    CFxUISignal<void(CFxUIPushButton *)> m_clicked; ///< emitted at any press with the Help button
    CFxUISignal<void()> m_helpRequest; ///< emitted by the dialog's OnHelpPressed()
    CFxUISignal<void()> m_rejected; ///< emitted when Cancel was pressed
    slimsig::scoped_connection<void()> m_dialogAccepted; // a box may go before its dialog
    slimsig::scoped_connection<void()> m_dialogRejected;
};
