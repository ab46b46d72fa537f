#pragma once

#include "UI/Impl/FxUIObjectImpl.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>

#include <utility>

/// Connects a Qt signal of \a frontend to \a callable: a direct functor connection with the Qt
/// object itself as context. It ends with the Qt object or with \a impl, whichever dies first.
template <class Frontend, class Signal, class Callable>
void ConnectFrontend(Frontend *frontend, Signal signal, CFxUIObjectImpl *impl, Callable callable)
{
    const QMetaObject::Connection connection =
        QObject::connect(frontend, signal, frontend, std::move(callable), Qt::DirectConnection);
    impl->EndWithThis([connection] { QObject::disconnect(connection); });
}

/// The same to \a handler of \a impl.
template <class Frontend, class Signal, class Impl, class... Args>
void ConnectFrontend(Frontend *frontend, Signal signal, Impl *impl, void (Impl::*handler)(Args...))
{
    ConnectFrontend(
        frontend, signal, static_cast<CFxUIObjectImpl *>(impl),
        [impl, handler](Args... args) { (impl->*handler)(std::forward<Args>(args)...); });
}

/// Gives \a frontend its way back to \a impl. It is null again once \a impl is gone, also where the
/// host has taken the handle away.
template <class Frontend, class Impl> void LinkFrontend(Frontend *frontend, Impl *impl)
{
    frontend->impl = impl;
    impl->EndWithThis([guard = QPointer<QObject>(frontend)] {
        if (auto *alive = qobject_cast<Frontend *>(guard.data()))
            alive->impl = nullptr;
    });
}
