#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include "view/window/ViewContext.h"

namespace brelk {
class TimerScheduler;
}

namespace brelk::view {

// Moves the program's one clock with real time. A single precise timer wakes
// when the next tick is due; the scheduler then fires every tick due up to the
// real elapsed time, one moment at a time, so a late wake-up delays ticks but
// never loses one: after a 20-minute match the clock reads what a perfect clock
// would.
//
// What ticks leave on the window stays there for one frame of the screen at
// least: a tick due less than a frame after the last ones waits until that
// frame has passed, so a row's 10 ms blink is seen. A tick is never held back
// more than kMaxHoldMs. The scheduler's times stay exact; only the moment the
// screen shows them moves.
class RealTimeDriver : public QObject {
    Q_OBJECT
public:
    // One frame of a 60 Hz screen, rounded up.
    static constexpr std::int64_t kFrameMs = 17;

    RealTimeDriver(TimerScheduler& scheduler, Guard guard, QObject* parent = nullptr);
    ~RealTimeDriver() override;

    // Starts following real time from the scheduler's present reading.
    void start();

    // Brings the clock up to the present, firing the ticks due by now. Input
    // must see the present time: a timer enabled by a click has its first
    // tick one full Interval after the click, however long the clock stood
    // still before. Runs inside the caller's guard.
    void catchUp();
    // `guard` with the clock brought up to the present before each input.
    Guard inputGuard(Guard guard);

    // How late each wake-up came after the moment it was set for, in
    // microseconds.
    std::function<void(std::int64_t lateUs)> onWake;

private:
    static constexpr std::int64_t kMaxHoldMs = 100;

    // The last ticks fired: the clock's time they were due at, and the real
    // time they were fired at.
    struct Fired {
        std::int64_t due;
        std::int64_t at;
    };

    std::int64_t nowUs() const;
    std::int64_t nowMs() const { return nowUs() / 1000; }
    // When a tick due at `due` may fire.
    std::int64_t fireTime(std::int64_t due) const;
    void rearm();
    void wake();

    TimerScheduler& scheduler_;
    Guard guard_;
    QTimer timer_;
    QElapsedTimer elapsed_;
    std::int64_t base_ = 0;
    std::int64_t wakeUs_ = 0;
    std::optional<Fired> fired_;
    bool running_ = false;
};

}  // namespace brelk::view
