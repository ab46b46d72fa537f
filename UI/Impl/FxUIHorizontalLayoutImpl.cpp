#include "UI/Impl/FxUIHorizontalLayoutImpl.h"

CFxUIHorizontalLayoutImpl::CFxUIHorizontalLayoutImpl(CFxUIObject *object)
    : CFxUIBaseViewImpl(object)
{
}

CFxUIHorizontalLayoutImpl::~CFxUIHorizontalLayoutImpl() = default;

void CFxUIHorizontalLayoutImpl::setContentsMargins(int left, int top, int right, int bottom)
{
    SetContentsMarginsImpl(left, top, right, bottom);
}

void CFxUIHorizontalLayoutImpl::setSpacing(int spacing)
{
    SetSpacingImpl(spacing);
}
