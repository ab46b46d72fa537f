#pragma once

#include "UI/slimsig/detail/signal_base.h"

#include <boost/signals2.hpp>
#include <sigc++/sigc++.h>

#include <QtCore/QObject>
#include <QtCore/QString>

#include <cstddef>
#include <cstdint>
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

/// What a signal costs through its fields alone: the same ones in the same places, and a plain loop
/// that reads and writes what an emission has to, and minds nothing else.
template <class Arg> class SameRecords {
public:
    using Handle = std::size_t;

    template <class Slot> Handle connect(Slot slot)
    {
        if (!m_holder)
            m_holder = std::make_shared<SameRecords *>(this);
        m_records.emplace_back(m_nextId++, std::move(slot));
        ++m_size;
        return m_records.size() - 1;
    }

    void disconnect(Handle handle)
    {
        m_records[handle].active = false;
        m_records[handle].function = nullptr;
        --m_size;
    }

    void emit(Arg argument)
    {
        ++m_depth;
        for (auto &record : m_records) {
            if (!record.active)
                continue;
            record.running = true;
            record.function(argument);
            record.running = false;
        }
        --m_depth;
        m_offset = 0;
    }

private:
    std::vector<slimsig::basic_slot<void(Arg), unsigned long>> m_records;
    std::shared_ptr<SameRecords *> m_holder;
    unsigned long m_nextId = 0;
    std::uint64_t m_size = 0;
    std::uint64_t m_offset = 0;
    std::uint32_t m_depth = 0;
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
