#pragma once

#include <QtCore/QVector>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <functional>
#include <type_traits>

/// A position in the table of virtual functions. The two forms of the destructor stand at 0 and 1.
/// By the C++ ABI of the platform a pointer to a virtual member holds its offset in the table, plus
/// 1 on most processors.
template <class Operation> int Position(Operation operation)
{
    static_assert(std::is_member_function_pointer_v<Operation>);
    std::uintptr_t offset = 0;
    std::memcpy(&offset, &operation, sizeof offset);
    return static_cast<int>(offset / sizeof(void *));
}

namespace BinaryInterfaceParts {

template <class Base> class Derived : public Base {
public:
    using Base::Base;

    virtual void Next() { }
};

} // namespace BinaryInterfaceParts

/// Where the first virtual operation of a deriving class comes to stand: behind all of the base's.
template <class Base> int PositionBehind()
{
    return Position(&BinaryInterfaceParts::Derived<Base>::Next);
}

/// Whether each of the fields stands behind the one before.
inline bool IsInOrder(const QVector<const void *> &fields)
{
    return std::is_sorted(fields.begin(), fields.end(), std::less_equal<>());
}
