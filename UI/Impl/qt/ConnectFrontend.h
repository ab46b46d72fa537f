#pragma once

#include <QtCore/QObject>

#include <utility>

/// Connects a Qt signal of \a frontend to \a handler of \a impl: a direct functor connection with
/// the Qt object itself as context. It ends with the Qt object, or earlier with DetachFrontend().
template <class Frontend, class Signal, class Impl, class... Args>
void ConnectFrontend(Frontend *frontend, Signal signal, Impl *impl, void (Impl::*handler)(Args...))
{
    QObject::connect(
        frontend, signal, frontend,
        [impl, handler](Args... args) { (impl->*handler)(std::forward<Args>(args)...); },
        Qt::DirectConnection);
}

/// The same with any callable in place of a handler.
template <class Frontend, class Signal, class Callable>
void ConnectFrontend(Frontend *frontend, Signal signal, Callable callable)
{
    QObject::connect(frontend, signal, frontend, std::move(callable), Qt::DirectConnection);
}

/// Cuts every connection from \a frontend to itself, and so those that ConnectFrontend() has made.
/// A Qt object can outlive its public object until the event loop next runs, and a handler must not
/// be called for it any more.
inline void DetachFrontend(QObject *frontend)
{
    if (frontend)
        QObject::disconnect(frontend, nullptr, frontend, nullptr);
}
