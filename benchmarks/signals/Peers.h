#pragma once

#include "UI/slimsig/detail/signal_base.h"

#include <boost/signals2.hpp>
#include <sigc++/sigc++.h>

#include <QtCore/QObject>
#include <QtCore/QString>

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace sigc {
SIGC_FUNCTORS_DEDUCE_RESULT_TYPE_WITH_DECLTYPE
}

// The peers, all with the same three operations. Each takes its argument by value.

/// The floor: what any list of callables costs that offers nothing but calling them.
template <class Arg> class Floor {
public:
    using Handle = std::size_t;

    template <class Slot> Handle connect(Slot slot)
    {
        m_functions.push_back(std::move(slot));
        return m_functions.size() - 1;
    }

    void disconnect(Handle handle) { m_functions[handle] = nullptr; }

    void emit(Arg argument)
    {
        for (const auto &function : m_functions)
            function(argument);
    }

private:
    std::vector<std::function<void(Arg)>> m_functions;
};

template <class Arg> class Slimsig {
    using Signal = slimsig::signal_base<slimsig::signal_traits<void(Arg)>,
                                        std::allocator<std::function<void(Arg)>>, void(Arg)>;

public:
    using Handle = slimsig::connection<void(Arg)>;

    template <class Slot> Handle connect(Slot slot) { return m_signal.connect(std::move(slot)); }

    void disconnect(Handle &handle) { handle.disconnect(); }

    void emit(Arg argument) { m_signal.emit(std::move(argument)); }

private:
    Signal m_signal;
};

template <class Arg, class Signal> class BoostPeer {
public:
    using Handle = boost::signals2::connection;

    template <class Slot> Handle connect(Slot slot) { return m_signal.connect(std::move(slot)); }

    void disconnect(Handle &handle) { handle.disconnect(); }

    void emit(Arg argument) { m_signal(std::move(argument)); }

private:
    Signal m_signal;
};

template <class Arg> using Boost = BoostPeer<Arg, boost::signals2::signal<void(Arg)>>;

template <class Arg>
using BoostDummy = BoostPeer<
    Arg,
    typename boost::signals2::signal_type<
        void(Arg), boost::signals2::keywords::mutex_type<boost::signals2::dummy_mutex>>::type>;

template <class Arg> class Sigc {
public:
    using Handle = sigc::connection;

    template <class Slot> Handle connect(Slot slot) { return m_signal.connect(std::move(slot)); }

    void disconnect(Handle &handle) { handle.disconnect(); }

    void emit(Arg argument) { m_signal.emit(std::move(argument)); }

private:
    sigc::signal<void, Arg> m_signal;
};

class QtEmitter : public QObject {
    Q_OBJECT

Q_SIGNALS:
    void changed(int number);
    void changed(QString text);
    void changed(std::string text);
};

template <class Arg> class Qt5 {
public:
    using Handle = QMetaObject::Connection;

    template <class Slot> Handle connect(Slot slot)
    {
        return QObject::connect(&m_emitter, qOverload<Arg>(&QtEmitter::changed), &m_emitter,
                                std::move(slot), Qt::DirectConnection);
    }

    void disconnect(Handle &handle) { QObject::disconnect(handle); }

    void emit(Arg argument) { m_emitter.changed(std::move(argument)); }

private:
    QtEmitter m_emitter;
};

/// Emits from behind a call that is not inlined, as an emission in a library is.
template <class Peer, class Arg> [[gnu::noinline]] void fire(Peer &peer, Arg argument)
{
    peer.emit(std::move(argument));
}
