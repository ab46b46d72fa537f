#include "UI/Impl/FxUIVerticalLayoutImpl.h"

CFxUIVerticalLayoutImpl::CFxUIVerticalLayoutImpl(CFxUIObject *object)
    : CFxUIBaseViewImpl(object)
{
}

CFxUIVerticalLayoutImpl::~CFxUIVerticalLayoutImpl()
{
    CutFrontend();
}

void CFxUIVerticalLayoutImpl::setContentsMargins(int left, int top, int right, int bottom)
{
    SetContentsMarginsImpl(left, top, right, bottom);
}

void CFxUIVerticalLayoutImpl::setSpacing(int spacing)
{
    SetSpacingImpl(spacing);
}
