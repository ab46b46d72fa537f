#pragma once

#include "UI/FxUIDialog.h"

#include <QtCore/QString>

/// Rises with each change of this header that an older plug-in wouldn't survive.
constexpr int GalleryInterfaceVersion = 1;

/// What the gallery's host offers to a plug-in.
class IGalleryHost {
public:
    /// Adds a line to the live log: the object, the signal's name, its arguments as text.
    virtual void LogSignal(const QString &object, const QString &signal,
                           const QString &arguments = QString()) = 0;

protected:
    ~IGalleryHost() = default;
};

/// What a plug-in says of itself. UTF-8 texts that live as long as the module; none may be null.
struct GalleryPluginInfo {
    int interfaceVersion; ///< GalleryInterfaceVersion of the header it was built with
    const char *name; ///< lower-case letters, digits and hyphens, for the command line and the
                      ///< names of pictures; no other plug-in of the folder has it
    const char *title; ///< for the list, some words
    const char *summary; ///< one sentence
};

// The two functions that each plug-in module exports. The host looks the first one up, and tests
// the version, before it calls anything else. Either may throw: the host reports it and goes on
// without the plug-in.
extern "C" {

/// Never null.
__attribute__((visibility("default"))) const GalleryPluginInfo *GalleryPlugin_Info();

/// Makes a dialog of the plug-in, never null; the host owns it. \a host outlives it and is never
/// null. Called when the module has been loaded, and again when the host wants a fresh dialog.
__attribute__((visibility("default"))) CFxUIDialog *GalleryPlugin_CreateDialog(IGalleryHost *host);
}
