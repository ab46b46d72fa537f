#pragma once

#include "UI/FxUIBaseView.h"

/// Shows one child view and scrolls it (QScrollArea).
///
/// addView() is the one way in: it shows the child's widget, resizable, and disregards the weight.
/// A second addView() replaces it: Qt deletes the first child's widget, whose handle is null then,
/// while the child stays a child. insertView() makes a child and shows nothing; removeView()
/// releases the child and leaves its widget where it is.
class COMMONUI_EXPORT CFxUIScrollableArea : public CFxUIBaseView {
public:
    CFxUIScrollableArea();
    ~CFxUIScrollableArea() override;

    /// Runs pending events, of all kinds (QCoreApplication::processEvents), then scrolls to the
    /// widget of \a view (QScrollArea::ensureWidgetVisible) with its maximum height as vertical
    /// margin, and to the left edge. Without a maximum height the widget comes to the middle. Does
    /// nothing for a view without a widget.
    void scrollTo(CFxUIBaseView *view);

    /// Shows the horizontal scroll bar always, or never. Before the first call it is shown as
    /// needed, and horizontalScrollingEnabled() is false.
    void setHorizontalScrollingEnabled(bool enabled);
    bool horizontalScrollingEnabled() const;

    /// Stores only: the vertical scroll bar is shown as needed at all times. Default: false.
    void setVerticalScrollingEnabled(bool enabled);
    bool verticalScrollingEnabled() const;
};
