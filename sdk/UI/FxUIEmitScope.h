#pragma once

#include "UI/FxUIExport.h"

class CFxUIObject;

/// Names a sender for CFxUIObject::sender() while it lives. A service for the host: no emission of
/// the library names a sender.
class COMMONUI_EXPORT CFxUIEmitScope {
public:
    /// Sets \a sender on \a object, which must outlive the scope. A null \a object makes the scope
    /// do nothing.
    CFxUIEmitScope(CFxUIObject *object, CFxUIObject *sender);

    /// Sets a null sender: an earlier one isn't restored, so that an inner scope on the same object
    /// leaves the outer one without.
    ~CFxUIEmitScope();

    CFxUIEmitScope(const CFxUIEmitScope &) = delete;
    CFxUIEmitScope &operator=(const CFxUIEmitScope &) = delete;

protected:
    CFxUIObject *m_object;
};
