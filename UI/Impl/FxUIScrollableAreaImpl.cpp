#include "UI/Impl/FxUIScrollableAreaImpl.h"

CFxUIScrollableAreaImpl::CFxUIScrollableAreaImpl(CFxUIObject *object)
    : CFxUIBaseViewImpl(object)
{
}

CFxUIScrollableAreaImpl::~CFxUIScrollableAreaImpl() = default;

void CFxUIScrollableAreaImpl::scrollTo(CFxUIBaseView *view)
{
    ScrollToImpl(view);
}

void CFxUIScrollableAreaImpl::setHorizontalScrollingEnabled(bool enabled)
{
    m_horizontalScrollingEnabled = enabled;
    SetHorizontalScrollingEnabledImpl(enabled);
}

bool CFxUIScrollableAreaImpl::horizontalScrollingEnabled() const
{
    return m_horizontalScrollingEnabled;
}

void CFxUIScrollableAreaImpl::setVerticalScrollingEnabled(bool enabled)
{
    m_verticalScrollingEnabled = enabled;
    SetVerticalScrollingEnabledImpl(enabled);
}

bool CFxUIScrollableAreaImpl::verticalScrollingEnabled() const
{
    return m_verticalScrollingEnabled;
}
