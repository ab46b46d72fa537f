#pragma once

// LeakSanitizer's own, absent without it.
extern "C" {
__attribute__((weak)) void __lsan_disable();
__attribute__((weak)) void __lsan_enable();
}

/// While it lives, what is allocated may be lost without a report of LeakSanitizer. For the two
/// losses that are part of the interface: what an assigned network request held before, and the
/// time-out object of a transfer that never began. By stack they can't be told from faults.
class IntendedLoss {
public:
    IntendedLoss()
    {
        if (__lsan_disable)
            __lsan_disable();
    }

    ~IntendedLoss()
    {
        if (__lsan_enable)
            __lsan_enable();
    }

    IntendedLoss(const IntendedLoss &) = delete;
    IntendedLoss &operator=(const IntendedLoss &) = delete;
};
