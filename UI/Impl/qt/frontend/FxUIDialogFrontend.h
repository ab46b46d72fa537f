#pragma once

#include "FxDialog.h"
#include "UI/FxUIExport.h"
#include "UI/Impl/qt/frontend/FxUIFrontendBase.h"

class CFxUIDialogImpl;
class IFxUIDialogFrontend;

/// The window behind a CFxUIDialog: one of the host's dialogs, in the light style.
///
/// It is never deleted by the library. Once its dialog is gone it is an ordinary window without
/// help.
class COMMONUI_EXPORT CFxUIDialogFrontend : public CFxDialog,
                                            public CFxUIFrontendBase<CFxUIDialogImpl> {
    Q_OBJECT

public:
    CFxUIDialogFrontend();
    ~CFxUIDialogFrontend() override;

    /// Returns the help number of the class that derives from CFxUIDialog.
    int GetHelpId() const override;

    /// Where Escape and closing the window arrive: asks the host's veto, if one is set, and ends
    /// the dialog as rejected.
    void reject() override;

    /// For the host: QWidget::setParent, then QWidget::setWindowFlags.
    void setCommonParameters(CFxDialog *parent, Qt::WindowFlags flags);

    /// For the host: \a object is asked before each rejecting, null for none. Not owned, and not
    /// forgotten when the dialog is destroyed.
    void setIsRejectCallObject(IFxUIDialogFrontend *object);

    /// Whether the dialog's content has yet to be made. Default: true.
    bool isUINotYetSetup() const;
    void setIsUINotYetSetup(bool notYet);

protected:
    bool m_uiNotYetSetup = true;
    IFxUIDialogFrontend *m_rejectCallObject = nullptr;
};
