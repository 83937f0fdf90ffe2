#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace brelk {

class Control;

// The one clock of the program. Time moves only when its driver advances it:
// a test by "wait N ms", the window by the real time elapsed. A timer enabled
// at t ticks at t + Interval, t + 2 Interval, ... exactly; disabling drops the
// next tick; ticks due at the same moment fire in the order their timers were
// enabled. Ticks run one at a time, each handler to its end; a tick that falls
// due while its own timer's handler still runs (behind a modal box) is skipped.
class TimerScheduler {
public:
    std::int64_t now() const { return now_; }

    void start(Control& timer, int intervalMs);
    void stop(Control& timer);
    void stopAll();

    // Fires every tick due up to `t`, in time order, then stands at `t` (or
    // later, when a tick handler let time pass behind a modal box).
    void advanceTo(std::int64_t t);
    void advanceBy(std::int64_t ms) { advanceTo(now_ + ms); }

    // When the next tick is due, if any timer runs.
    std::optional<std::int64_t> nextDue() const;

    // Called whenever the set of running timers changes, so a real-time
    // driver can re-arm itself.
    void setChangeListener(std::function<void()> listener) { listener_ = std::move(listener); }

    // Ticks fired so far, for benchmarks and tests.
    std::uint64_t ticksFired() const { return fired_; }
    // Whether a tick's handler is running (also behind a modal box it opened).
    bool firing() const { return firing_ > 0; }

private:
    struct Entry {
        Control* timer;
        std::int64_t due;
        int interval;
        std::uint64_t order;
        bool busy;
    };
    Entry* nextEntry(std::int64_t limit);
    void changed();

    std::vector<Entry> entries_;
    std::int64_t now_ = 0;
    std::uint64_t nextOrder_ = 0;
    std::uint64_t fired_ = 0;
    int firing_ = 0;
    std::function<void()> listener_;
};

}  // namespace brelk
