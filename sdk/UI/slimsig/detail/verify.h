#pragma once

#include <cassert>

#ifdef NDEBUG
// What assert() calls when it fails; the C library declares it only where NDEBUG is not defined.
extern "C" void __assert_fail(const char *assertion, const char *file, unsigned int line,
                              const char *function) noexcept __attribute__((__noreturn__));
#endif

namespace slimsig::detail {

/// Ends the process through the ordinary assertion failure unless \a holds. Unlike assert() it is
/// live in every build, whatever NDEBUG says: going on with a damaged signal would be worse. \a
/// expression is what the failure prints; the place printed is the caller's.
inline void verify(bool holds, const char *expression, const char *file = __builtin_FILE(),
                   unsigned int line = __builtin_LINE(),
                   const char *function = __builtin_FUNCTION()) noexcept
{
    if (__builtin_expect(!holds, false))
        __assert_fail(expression, file, line, function);
}

} // namespace slimsig::detail
