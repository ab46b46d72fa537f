#include "UI/FxUIVerticalLayout.h"

#include "UI/Impl/FxUIVerticalLayoutImpl.h"
#include "UI/Impl/ImplOf.h"

CFxUIVerticalLayout::CFxUIVerticalLayout()
{
    auto *layoutImpl = new CFxUIVerticalLayoutImpl(this);
    impl = layoutImpl;
    layoutImpl->CreateFrontendControl();
    setContentsMargins(0, 0, 0, 0); // a second time, behind CreateFrontendControl. Intended.
}

CFxUIVerticalLayout::~CFxUIVerticalLayout() = default;

void CFxUIVerticalLayout::setContentsMargins(int left, int top, int right, int bottom)
{
    ImplOf<CFxUIVerticalLayoutImpl>(this)->setContentsMargins(left, top, right, bottom);
}

void CFxUIVerticalLayout::setSpacing(int spacing)
{
    ImplOf<CFxUIVerticalLayoutImpl>(this)->setSpacing(spacing);
}

void CFxUIVerticalLayout::setSizeConstraint(QLayout::SizeConstraint /*constraint*/)
{
    // The Qt layout keeps its default constraint. Intended.
}
