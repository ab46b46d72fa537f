#pragma once

#include "UI/FxUIDialog.h"
#include "UI/Impl/qt/frontend/FxUIDialogFrontend.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>

#include <functional>

/// The window of \a dialog.
inline CFxUIDialogFrontend *Window(const CFxUIDialog &dialog)
{
    return qobject_cast<CFxUIDialogFrontend *>(dialog.getHandle());
}

/// What ExecAndDo() returns where the dialog was still open after the actions.
constexpr int StillOpen = -4711;

/// Runs the dialog and calls \a actions from inside its event loop, once. A dialog that they leave
/// open is closed, so that a failed test ends, too.
inline int ExecAndDo(CFxUIDialog &dialog, const std::function<void()> &actions, bool modal = true)
{
    const QPointer<CFxUIDialogFrontend> window(Window(dialog));
    QTimer::singleShot(0, window, [&] {
        actions();
        if (window && window->isVisible())
            window->done(StillOpen);
    });
    return dialog.exec(modal);
}

/// The windows whose dialogs are gone: the library leaves them behind.
inline QList<CFxUIDialogFrontend *> LeftBehindWindows()
{
    QList<CFxUIDialogFrontend *> windows;
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        auto *window = qobject_cast<CFxUIDialogFrontend *>(widget);
        if (window && !window->impl)
            windows.append(window);
    }
    return windows;
}

/// For the end of each test function that makes dialogs.
inline void DeleteLeftBehindWindows()
{
    qDeleteAll(LeftBehindWindows());
}
