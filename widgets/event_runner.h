#pragma once

#include <functional>
#include <utility>

/// The way of every user event into the rules: the procedure runs, then the map is painted if need be and the
/// windows are brought in step. A failure that no trap caught must not run through the window system's loop.
class EventRunner {
  public:
    /// `everything` may have changed, or, after a small event, nothing but what the map tells of itself.
    std::function<void(bool everything)> after_event;
    std::function<void()> after_outermost_event;
    std::function<void(int number)> untrapped_failure;

    void run(const std::function<void()>& procedure) { run(procedure, true); }
    /// For events that come by the hundred and mostly change nothing on the map: pointer moves, blinks.
    void run_small(const std::function<void()>& procedure) { run(procedure, false); }

  private:
    void run(const std::function<void()>& procedure, bool everything);

    int depth = 0; // a dialog's events run inside the event that opened it
};
