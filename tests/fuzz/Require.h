#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// Ends the program with a message unless \a holds is true: a finding of a fuzz target.
inline void Require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size);
