#pragma once

#include "UI/FxUIExport.h"

#include <cstdarg>

class QObject;
class QString;

/// Free operations between an implementation object and a frontend made by name. The Qt build makes
/// none by name: each control builds its own.
namespace FxBaseViewImpl {

/// Returns null always.
COMMONUI_EXPORT QObject *CreateFrontendControl(const QString &className, void *impl);

/// Deletes a widget when the event loop next runs (QObject::deleteLater) and leaves any other
/// object alone. The name isn't looked at.
COMMONUI_EXPORT void ReleaseFrontendControl(const QString &className, QObject *frontend);

/// Do nothing.
COMMONUI_EXPORT void InvokeMethod(QObject *frontend, const QString *method, ...);
COMMONUI_EXPORT void InvokeMethod(QObject *frontend, const QString *method, int count,
                                  va_list arguments);

} // namespace FxBaseViewImpl
