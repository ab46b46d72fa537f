// The macros are Qt's, word for word.
#define emit
#define signals public
#define slots
#define foreach(variable, container) for (variable : container)

#include "SignalProbe.h"
#include "UI/slimsig/detail/connection.h"
#include "UI/slimsig/detail/signal_base.h"

#include "Keywords.h"

#if !defined(emit) || !defined(signals) || !defined(slots) || !defined(foreach)
#error "the headers have swallowed a macro"
#endif

int callsWithKeywordsAlive()
{
    Signal<void(int)> signal;
    int calls = 0;
    signal.connect([&calls](int number) { calls += number; });
    signal(1);
    emit signal(2);
    return calls;
}
