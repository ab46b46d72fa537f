#include "UI/FxUIHorizontalLayout.h"

#include "UI/Impl/FxUIHorizontalLayoutImpl.h"
#include "UI/Impl/ImplOf.h"

CFxUIHorizontalLayout::CFxUIHorizontalLayout()
{
    auto *layoutImpl = new CFxUIHorizontalLayoutImpl(this);
    impl = layoutImpl;
    layoutImpl->CreateFrontendControl();
    setContentsMargins(0, 0, 0, 0); // a second time, behind CreateFrontendControl. Intended.
}

CFxUIHorizontalLayout::~CFxUIHorizontalLayout() = default;

void CFxUIHorizontalLayout::setContentsMargins(int left, int top, int right, int bottom)
{
    ImplOf<CFxUIHorizontalLayoutImpl>(this)->setContentsMargins(left, top, right, bottom);
}

void CFxUIHorizontalLayout::setSpacing(int spacing)
{
    ImplOf<CFxUIHorizontalLayoutImpl>(this)->setSpacing(spacing);
}
