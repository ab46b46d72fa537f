#pragma once

#include "UI/FxUIBaseView.h"
#include "UI/FxUISignal.h"

#include <QtCore/QString>

/// A titled column of views (a QVBoxLayout in a QGroupBox) within a thin black outline. Whatever
/// the style sheet asks for, the outline is drawn over it.
///
/// A child's weight becomes its stretch factor, truncated towards zero. Its size policy is
/// overwritten: horizontally Preferred, vertically Minimum. A radio group takes no place.
/// removeView() leaves the child's widget in the Qt layout and on screen.
///
/// Margins and spacing start with Qt's defaults, unlike those of the layouts.
class COMMONUI_EXPORT CFxUIGroupBox : public CFxUIBaseView {
public:
    CFxUIGroupBox();
    ~CFxUIGroupBox() override;

    /// Stores the title and shows it (QGroupBox::setTitle).
    void setTitle(const QString &title);

    /// Returns the last title set. Default: empty.
    QString title();

    /// Sets the margins in pixels (QLayout::setContentsMargins).
    void setContentsMargins(int left, int top, int right, int bottom);

    /// Sets the space between the children in pixels (QBoxLayout::setSpacing).
    void setSpacing(int spacing);

    /// Stores the collapsed state. A change updates the parent view (CFxUIBaseView::update), then
    /// emits onCollapsedStateChanged(). Nothing is hidden or resized: that is left to who listens.
    void setCollapsed(bool collapsed);

    /// Default: false.
    bool isCollapsed() const;

    /// Emitted with the new state when it changes.
    CFxUISignal<void(bool)> &onCollapsedStateChanged();
};
