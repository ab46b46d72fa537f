#pragma once

#include "UI/slimsig/detail/signal_base.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <utility>

template <class Signature>
using Signal = slimsig::signal_base<slimsig::signal_traits<Signature>,
                                    std::allocator<std::function<Signature>>, Signature>;

/// A signal that shows its fields.
template <class Signature> class SignalProbe : public Signal<Signature> {
public:
    using Base = Signal<Signature>;
    using Base::depth;
    using Base::holder;
    using Base::is_disconnected;
    using Base::last_id;
    using Base::m_offset;
    using Base::m_size;
    using Base::pending;
    using Base::prepare_connection;
    using typename Base::emit_scope;

    std::size_t activeRecords() const
    {
        return static_cast<std::size_t>(
            std::count_if(this->pending.begin(), this->pending.end(),
                          [](const auto &slot) { return slot.active; }));
    }

    /// Outside an emission: nothing runs, nothing is hidden, ids rise, and the count is right.
    bool isWhole() const
    {
        const auto notRising = [](const auto &left, const auto &right) {
            return left.id >= right.id;
        };
        return this->depth == 0 && this->m_offset == 0 && this->m_size == activeRecords()
            && std::none_of(this->pending.begin(), this->pending.end(),
                            [](const auto &slot) { return slot.running; })
            && std::adjacent_find(this->pending.begin(), this->pending.end(), notRising)
            == this->pending.end();
    }

    /// What isWhole() says, and no dead record is left.
    bool isTidy() const { return isWhole() && this->m_size == this->pending.size(); }
};

/// A slot, or an argument, that runs an action the next time that it is copied.
class AtCopy {
public:
    explicit AtCopy(std::function<void()> &action)
        : m_action(&action)
    {
    }

    AtCopy(const AtCopy &other)
        : m_action(other.m_action)
    {
        if (const std::function<void()> action = std::exchange(*m_action, nullptr))
            action();
    }

    AtCopy(AtCopy &&) = default;

    void operator()() const { }

private:
    std::function<void()> *m_action;
};
