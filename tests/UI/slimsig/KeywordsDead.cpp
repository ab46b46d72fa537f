#include "SignalProbe.h"
#include "UI/slimsig/detail/connection.h"
#include "UI/slimsig/detail/signal_base.h"

#include "Keywords.h"

#ifdef emit
#error "the headers have left a macro behind"
#endif

int callsWithKeywordsDead()
{
    Signal<void(int)> signal;
    int calls = 0;
    signal.connect([&calls](int number) { calls += number; });
    signal.emit(1);
    signal(2);
    return calls;
}
