#include "UI/Impl/FxUIObjectImpl.h"

CFxUIObjectImpl::CFxUIObjectImpl(CFxUIObject *object)
    : owner(object)
{
}

CFxUIObjectImpl::~CFxUIObjectImpl() = default;
