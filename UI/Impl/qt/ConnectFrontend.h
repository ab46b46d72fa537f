#pragma once

#include "UI/Impl/FxUIObjectImpl.h"

#include <QtCore/QObject>

#include <utility>

/// Connects a Qt signal of \a frontend to \a callable: a direct functor connection with the Qt
/// object itself as context. It ends with the Qt object or with \a impl, whichever dies first.
template <class Frontend, class Signal, class Callable>
void ConnectFrontend(Frontend *frontend, Signal signal, CFxUIObjectImpl *impl, Callable callable)
{
    impl->EndWithThis(
        QObject::connect(frontend, signal, frontend, std::move(callable), Qt::DirectConnection));
}

/// The same to \a handler of \a impl.
template <class Frontend, class Signal, class Impl, class... Args>
void ConnectFrontend(Frontend *frontend, Signal signal, Impl *impl, void (Impl::*handler)(Args...))
{
    ConnectFrontend(
        frontend, signal, static_cast<CFxUIObjectImpl *>(impl),
        [impl, handler](Args... args) { (impl->*handler)(std::forward<Args>(args)...); });
}
