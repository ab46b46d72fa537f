#pragma once

#include "UI/FxUIObject.h"
#include "UI/FxUISignal.h"

#include <QtCore/QString>

class CFxUIHideEvent;
class CFxUIShowEvent;
class CFxUIVerticalLayout;

/// A window to derive from: implement SetupUI(), then run it with exec().
///
/// Its content is made at the first exec(), not before. An object and not a view: it can't be put
/// into a layout. It must not be destroyed while exec() runs.
///
/// The Qt window behind it, a CFxUIDialogFrontend, is never deleted: after the dialog's destruction
/// it stays behind, hidden and without a parent. A plug-in that runs a dialog often keeps one and
/// runs it again.
class COMMONUI_EXPORT CFxUIDialog : public CFxUIObject {
public:
    CFxUIDialog();
    ~CFxUIDialog() override;

    /// Fills the dialog: adds views to GetLayout(), makes a CFxUIDialogButtonBox. Called once, by
    /// the first exec().
    virtual void SetupUI() = 0;

    /// Returns the number that the host's help knows this dialog by. Here: 0.
    virtual int GetHelpId() const;

    /// Here: an empty string. No operation of the library asks.
    virtual const char *GetHelpURL() const;

    /// Sets the dialog up, if that hasn't been done yet, shows it and blocks in an event loop of
    /// its own until it is hidden. Returns the result code. The run is modal whatever \a modal
    /// says. The host's active document learns of it first.
    virtual int exec(bool modal = true);

    /// For overriding. No operation of the library calls them.
    virtual void showEvent(CFxUIShowEvent *event);
    virtual void hideEvent(CFxUIHideEvent *event);

    /// Set the result to 1, 0 or \a result, then hide(). They emit no signal, and a veto of the
    /// host (IFxUIDialogFrontend) isn't asked.
    virtual void accept();
    virtual void reject();
    virtual void done(int result);

    /// Returns the content area. Null before the first exec().
    CFxUIVerticalLayout *GetLayout();

    /// Asks GetHelpId(), and has no effect beyond that.
    void openHelp();

    /// Tells the host's active document, hands the result to the window (QDialog::setResult) and
    /// hides it, which ends a running exec().
    void hide();

    /// Shows or hides the window (QWidget::setVisible). Showing isn't modal, sets nothing up and
    /// tells the host nothing: before the first exec() the window is empty. Hiding goes on with
    /// hide().
    void setVisible(bool visible);

    /// Stores only: the window learns of it at the next hide().
    void setResult(int result);

    /// Returns the code last set, or returned by the last exec(). Default: 0.
    int result() const;

    /// Returns the last title set; the window isn't asked. Default: empty.
    QString windowTitle();

    /// Stores the title and shows it (QWidget::setWindowTitle).
    void setWindowTitle(const QString &title);

    /// Emitted only if the host calls OnAccepted() or OnAcceptPressed() of the implementation
    /// object. accept() doesn't emit it: listen to the button box instead.
    CFxUISignal<void()> &accepted();

    /// Emitted only if the host calls OnRejected() or OnRejectPressed() of the implementation
    /// object. Neither reject() nor Escape emits it.
    CFxUISignal<void()> &rejected();

    /// Never emitted by the library.
    CFxUISignal<void(int)> &finished();
};
