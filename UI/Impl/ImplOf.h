#pragma once

#include "UI/FxUIObject.h"

/// The implementation object of \a object, in the class that the public class has made. For the
/// forwarders of the public classes.
template <class Impl> Impl *ImplOf(const CFxUIObject *object)
{
    return static_cast<Impl *>(object->impl);
}
