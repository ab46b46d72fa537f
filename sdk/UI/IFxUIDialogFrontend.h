#pragma once

#include "UI/FxUIExport.h"

/// What a host implements to veto that a dialog is rejected by the Escape key or by closing its
/// window (CFxUIDialogFrontend::setIsRejectCallObject).
class COMMONUI_EXPORT IFxUIDialogFrontend {
public:
    /// Returns whether the window may go on to reject; false keeps it open.
    virtual bool IsRejectAllowed() = 0;

protected:
    ~IFxUIDialogFrontend() = default;
};
