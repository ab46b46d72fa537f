#pragma once
#include <functional>
#include <vector>
#pragma push_macro("emit")
#undef emit
namespace slimsig {
template <class S> struct signal_traits {};
template <class T, class A, class S> class signal_base;
template <class T, class A, class R, class... Args> class signal_base<T, A, R(Args...)> {
public:
    signal_base() = default;
    signal_base(const signal_base &) = delete;
    void connect(std::function<R(Args...)> f) { p.push_back(f); }
    void emit(Args... a) { for (size_t i = 0; i < p.size(); ++i) p[i](a...); }
    std::vector<std::function<R(Args...)>> p;
};
}
#pragma pop_macro("emit")
