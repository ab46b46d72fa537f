#include "UI/FxUIScrollableArea.h"

#include "UI/Impl/FxUIScrollableAreaImpl.h"
#include "UI/Impl/ImplOf.h"

CFxUIScrollableArea::CFxUIScrollableArea()
{
    auto *scrollableAreaImpl = new CFxUIScrollableAreaImpl(this);
    impl = scrollableAreaImpl;
    scrollableAreaImpl->CreateFrontendControl();
}

CFxUIScrollableArea::~CFxUIScrollableArea() = default;

void CFxUIScrollableArea::scrollTo(CFxUIBaseView *view)
{
    ImplOf<CFxUIScrollableAreaImpl>(this)->scrollTo(view);
}

void CFxUIScrollableArea::setHorizontalScrollingEnabled(bool enabled)
{
    ImplOf<CFxUIScrollableAreaImpl>(this)->setHorizontalScrollingEnabled(enabled);
}

bool CFxUIScrollableArea::horizontalScrollingEnabled() const
{
    return ImplOf<CFxUIScrollableAreaImpl>(this)->horizontalScrollingEnabled();
}

void CFxUIScrollableArea::setVerticalScrollingEnabled(bool enabled)
{
    ImplOf<CFxUIScrollableAreaImpl>(this)->setVerticalScrollingEnabled(enabled);
}

bool CFxUIScrollableArea::verticalScrollingEnabled() const
{
    return ImplOf<CFxUIScrollableAreaImpl>(this)->verticalScrollingEnabled();
}
