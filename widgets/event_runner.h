#pragma once

#include <functional>
#include <utility>

/// The way of every user event into the rules: the procedure runs, then the map is painted if need be and the
/// windows are brought in step. A failure that no trap caught must not run through the window system's loop.
class EventRunner {
  public:
    std::function<void()> after_event;
    std::function<void(int number)> untrapped_failure;

    void run(const std::function<void()>& procedure);
};
