#pragma once

#include "UI/FxUIBaseView.h"

#include <QtWidgets/QLayout>

/// A column of views (a QVBoxLayout in a borderless QGroupBox), and the one view that shows the
/// busy animation.
///
/// A child's weight becomes its stretch factor, truncated towards zero. Its size policy is
/// overwritten: horizontally Preferred, vertically Minimum. A radio group takes no place.
class COMMONUI_EXPORT CFxUIVerticalLayout : public CFxUIBaseView {
public:
    CFxUIVerticalLayout();
    ~CFxUIVerticalLayout() override;

    /// Sets the margins in pixels (QLayout::setContentsMargins); below 0 the style's own. Default:
    /// 0 on all sides.
    void setContentsMargins(int left, int top, int right, int bottom);

    /// Sets the space between the children in pixels (QBoxLayout::setSpacing); below 0 the
    /// style's own, which is the default.
    void setSpacing(int spacing);

    /// No effect.
    void setSizeConstraint(QLayout::SizeConstraint constraint);
};
