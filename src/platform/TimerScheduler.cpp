#include "platform/TimerScheduler.h"

#include <algorithm>

#include "platform/Control.h"
#include "platform/Form.h"

namespace brelk {

void TimerScheduler::start(Control& timer, int intervalMs) {
    stop(timer);
    // A timer without a positive interval never ticks, though it stays enabled.
    if (intervalMs <= 0) return;
    entries_.push_back({&timer, now_ + intervalMs, intervalMs, nextOrder_++, false});
    changed();
}

void TimerScheduler::stop(Control& timer) {
    auto it = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& e) { return e.timer == &timer; });
    if (it == entries_.end()) return;
    entries_.erase(it);
    changed();
}

void TimerScheduler::stopAll() {
    entries_.clear();
    changed();
}

std::optional<std::int64_t> TimerScheduler::nextDue() const {
    std::optional<std::int64_t> due;
    for (const auto& e : entries_)
        if (!e.busy && (!due || e.due < *due)) due = e.due;
    return due;
}

TimerScheduler::Entry* TimerScheduler::nextEntry(std::int64_t limit) {
    Entry* best = nullptr;
    for (auto& e : entries_) {
        if (e.due > limit) continue;
        if (!best || e.due < best->due || (e.due == best->due && e.order < best->order)) best = &e;
    }
    return best;
}

void TimerScheduler::advanceTo(std::int64_t t) {
    while (Entry* e = nextEntry(t)) {
        now_ = std::max(now_, e->due);
        e->due += e->interval;
        if (e->busy) continue;  // its handler waits behind a modal box: the tick is lost
        e->busy = true;
        Control* timer = e->timer;
        const std::uint64_t order = e->order;
        ++fired_;
        auto release = [&] {
            --firing_;
            // The entry may have been removed or re-created by the handler.
            for (auto& x : entries_)
                if (x.timer == timer && x.order == order) x.busy = false;
        };
        ++firing_;
        try {
            timer->form().raise(*timer, Event::Timer);
        } catch (...) {
            release();
            throw;
        }
        release();
    }
    now_ = std::max(now_, t);
}

void TimerScheduler::changed() {
    if (listener_) listener_();
}

}  // namespace brelk
