#pragma once

#include "UI/FxUIBaseView.h"

/// A row of views (a QHBoxLayout in a borderless QGroupBox).
///
/// A child's weight becomes its stretch factor, truncated towards zero. Its size policy is
/// overwritten: Preferred in both directions. A radio group takes no place. removeView() leaves the
/// child's widget in the row and on screen.
class COMMONUI_EXPORT CFxUIHorizontalLayout : public CFxUIBaseView {
public:
    CFxUIHorizontalLayout();
    ~CFxUIHorizontalLayout() override;

    /// Sets the margins in pixels (QLayout::setContentsMargins); below 0 the style's own. Default:
    /// 0 on all sides.
    void setContentsMargins(int left, int top, int right, int bottom);

    /// Sets the space between the children in pixels (QBoxLayout::setSpacing); below 0 the
    /// style's own, which is the default.
    void setSpacing(int spacing);
};
