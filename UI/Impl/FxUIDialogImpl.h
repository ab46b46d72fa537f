#pragma once

#include "UI/FxUISignal.h"
#include "UI/Impl/FxUIObjectImpl.h"

#include <QtCore/QString>

#include <memory>

class CFxUIHideEvent;
class CFxUIShowEvent;
class CFxUIVerticalLayout;
class QObject;
class QVBoxLayout;

/// Implementation object of CFxUIDialog. The window is made by the constructor, its content by the
/// first exec().
class COMMONUI_EXPORT CFxUIDialogImpl : public CFxUIObjectImpl {
public:
    /// \a object is a CFxUIDialog.
    explicit CFxUIDialogImpl(CFxUIObject *object);
    ~CFxUIDialogImpl() override;

    /// Call the operation of the same name of the public dialog, which a deriving class may have
    /// overridden.
    virtual int GetHelpId() const;
    virtual const char *GetHelpURL() const;
    virtual void showEvent(CFxUIShowEvent *event);
    virtual void hideEvent(CFxUIHideEvent *event);

    int exec(bool modal);
    void accept();
    void reject();
    void done(int result);
    CFxUIVerticalLayout *GetLayout();
    void openHelp();
    void hide();
    void setVisible(bool visible);
    void setResult(int result);
    int result() const;
    QString windowTitle();
    void setWindowTitle(const QString &title);
    CFxUISignal<void()> &accepted();
    CFxUISignal<void()> &rejected();
    CFxUISignal<void(int)> &finished();

    /// For a frontend or the host to call; connected to nothing. The two of each pair do the same.
    void OnAccepted();
    void OnAcceptPressed();
    void OnRejected();
    void OnRejectPressed();

    /// Emits helpRequest() of the dialog's first CFxUIDialogButtonBox, if there is one.
    void OnHelpPressed();

    void CreateFrontendDialogImpl();
    void DestroyFrontendDialogImpl();

    /// Makes the content, once in the dialog's life. The argument isn't used.
    void SetupUIImpl(QObject *parent);

    /// Runs the window and returns its result code, which it stores as well.
    int ExecImpl(bool modal);
    void HideImpl();
    void SetVisibleImpl(bool visible);
    void SetWindowTitleImpl(const QString &title);

    /// Nothing.
    void OpenHelpImpl(int helpId);

    /// Tells the host's active document, if there is one that listens.
    void SetDialogActiveImpl(bool active);

protected:
    QVBoxLayout *m_mainLayout = nullptr; // owned by the window
    CFxUIVerticalLayout *m_layoutView = nullptr; // owned
    QString m_windowTitle;
    int m_result = 0;
    CFxUISignal<void()> m_accepted; ///< emitted by OnAccepted() and OnAcceptPressed()
    CFxUISignal<void()> m_rejected; ///< emitted by OnRejected() and OnRejectPressed()
    CFxUISignal<void(int)> m_finished; ///< never emitted
    std::shared_ptr<void> m_alive = std::make_shared<bool>(true); // ends with this object
};
