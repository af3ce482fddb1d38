#include "widgets/event_runner.h"

#include "core/trap.h"

void EventRunner::run(const std::function<void()>& procedure, bool everything) {
    ++depth;
    const int number = failure_of(procedure);
    if (number != 0 && untrapped_failure) untrapped_failure(number);
    if (after_event) after_event(everything);
    if (--depth == 0 && after_outermost_event) after_outermost_event();
}
