#pragma once

#include <QtCore/QtGlobal>

/// What the host learns of a dialog: true before a modal run, false at each hiding.
class IFxDialogSink {
public:
    virtual void SetDialogActive(bool active) = 0;

protected:
    ~IFxDialogSink() = default;
};

/// The host's document, as far as a dialog needs it.
class CFxDocument {
public:
    IFxDialogSink *dialogSink = nullptr; ///< may be null; not owned
};

/// Returns the host's active document, or null.
Q_DECL_EXPORT CFxDocument *ACTIVE_DOCUMENT();

/// Sets what ACTIVE_DOCUMENT() returns. The caller keeps ownership. In the stand-in alone.
Q_DECL_EXPORT void SetActiveDocument(CFxDocument *document);
