#pragma once

#include "signal_traits.h"

#include <functional>
#include <memory>
#include <utility>

namespace slimsig {

template <class Signature> class connection;

template <class Signature> class scoped_connection;

/// Names one slot of one signal. Copies name the same slot.
///
/// It keeps neither alive, and may outlive both: without a signal it does nothing.
template <class R, class... Args> class connection<R(Args...)> {
    using signal_type = signal_base<signal_traits<R(Args...)>,
                                    std::allocator<std::function<R(Args...)>>, R(Args...)>;
    using signal_holder = typename signal_type::signal_holder;
    using slot_id = typename signal_type::slot_id;

public:
    /// Makes a connection that names no slot.
    connection() noexcept = default;

    /// Disconnects the slot. Does nothing if it is disconnected already or its signal is gone.
    /// Outside an emission the callable is destroyed before this returns, inside one when the
    /// outermost emission ends, and while connect() copies slots, before that returns; it is not
    /// called again.
    void disconnect()
    {
        if (signal_type *const found = signal())
            found->disconnect_slot(m_id);
    }

    /// Returns whether the signal lives and would call the slot. False for a slot connected empty.
    bool connected() const
    {
        signal_type *const found = signal();
        return found && found->is_connected(m_id);
    }

private:
    friend signal_type;

    connection(const std::shared_ptr<signal_holder> &holder, slot_id id) noexcept
        : m_holder(holder.get())
        , m_watched(holder)
        , m_id(id)
    {
    }

    /// Returns the signal, or null if it is gone. Only the signal owns the holder, so that looking
    /// at it on the signal's own thread takes no reference.
    signal_type *signal() const noexcept
    {
        return m_watched.expired() ? nullptr : m_holder->signal;
    }

    signal_holder *m_holder = nullptr;
    std::weak_ptr<signal_holder> m_watched;
    slot_id m_id = 0;
};

/// Owns a connection: disconnects it when it ends. Movable, not copyable.
template <class R, class... Args> class scoped_connection<R(Args...)> {
public:
    using connection_type = connection<R(Args...)>;

    /// Owns nothing.
    scoped_connection() noexcept = default;

    /// Takes \a owned over. Not explicit, so that what connect() returns can be assigned.
    scoped_connection(connection_type owned) noexcept
        : m_connection(std::move(owned))
    {
    }

    scoped_connection(scoped_connection &&other) noexcept
        : m_connection(other.release())
    {
    }

    /// Disconnects what was owned, then takes over what \a other owns.
    scoped_connection &operator=(scoped_connection &&other) noexcept
    {
        connection_type taken = other.release();
        m_connection.disconnect();
        m_connection = std::move(taken);
        return *this;
    }

    scoped_connection(const scoped_connection &) = delete;
    scoped_connection &operator=(const scoped_connection &) = delete;

    ~scoped_connection() { m_connection.disconnect(); }

    /// Disconnects now.
    void disconnect() { m_connection.disconnect(); }

    bool connected() const { return m_connection.connected(); }

    /// Returns the plain connection and owns nothing from then on: the slot stays connected.
    connection_type release() noexcept { return std::exchange(m_connection, connection_type()); }

private:
    connection_type m_connection;
};

template <class Signature> scoped_connection(connection<Signature>) -> scoped_connection<Signature>;

} // namespace slimsig

#include "signal_base.h"
