#pragma once

#include <cstdint>
#include <functional>

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include "ViewContext.h"

namespace brelk {
class TimerScheduler;
}

namespace brelk::view {

// Moves the program's one clock with real time. A single precise timer wakes
// when the next tick is due; the scheduler then fires every tick due up to the
// real elapsed time, one by one, so a late wake-up delays ticks but never loses
// one: after a 20-minute match the clock reads what a perfect clock would.
class RealTimeDriver : public QObject {
    Q_OBJECT
public:
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

    // How late each wake-up came after the tick it was for, in microseconds.
    std::function<void(std::int64_t lateUs)> onWake;

private:
    std::int64_t nowMs() const;
    void rearm();
    void wake();

    TimerScheduler& scheduler_;
    Guard guard_;
    QTimer timer_;
    QElapsedTimer elapsed_;
    std::int64_t base_ = 0;
    bool running_ = false;
};

}  // namespace brelk::view
