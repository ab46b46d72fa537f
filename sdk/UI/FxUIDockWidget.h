#pragma once

#include "UI/FxUIBaseView.h"

#include <QtCore/QString>

/// Describes a docked pane. It records what it is told and makes no widget: getHandle() is null
/// unless the host gives it one with setHandle().
class COMMONUI_EXPORT CFxUIDockWidget : public CFxUIBaseView {
public:
    /// \a area has no effect and isn't stored.
    explicit CFxUIDockWidget(int area);
    ~CFxUIDockWidget() override;

    /// Hand the event on to the contained view, if there is one.
    void showEvent(CFxUIShowEvent *event) override;
    void hideEvent(CFxUIHideEvent *event) override;

    /// Stores the contained view, which is not owned and doesn't become a child. The caller keeps
    /// it alive, or clears it with null. Default: null.
    void setWidget(CFxUIBaseView *view);
    CFxUIBaseView *widget() const;
    CFxUIBaseView *widget();

    /// Stores only; nothing reads it.
    void setTitle(const QString &title);

    /// QWidget::raise, if the host has given it a QDockWidget as handle.
    void raise();
};
