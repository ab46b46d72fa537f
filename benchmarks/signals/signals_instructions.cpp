// Emits a thousand times to as many slots as the argument says, for report.py, which counts
// the instructions between the call of emitOnce and its return.

#include "UI/slimsig/detail/signal_base.h"

#include <cstdlib>

using Signal = slimsig::signal_base<slimsig::signal_traits<void()>,
                                    std::allocator<std::function<void()>>, void()>;

[[gnu::noinline]] void emitOnce(Signal &signal)
{
    signal.emit();
}

int main(int argc, char **argv)
{
    Signal signal;
    for (int slot = argc > 1 ? std::atoi(argv[1]) : 0; slot > 0; --slot)
        signal.connect([] {});
    for (int i = 0; i < 1000; ++i)
        emitOnce(signal);
    return 0;
}
