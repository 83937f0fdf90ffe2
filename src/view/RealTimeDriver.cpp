#include "RealTimeDriver.h"

#include <algorithm>

#include "platform/TimerScheduler.h"

namespace brelk::view {

RealTimeDriver::RealTimeDriver(TimerScheduler& scheduler, Guard guard, QObject* parent)
    : QObject(parent), scheduler_(scheduler), guard_(std::move(guard)) {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &RealTimeDriver::wake);
}

RealTimeDriver::~RealTimeDriver() {
    // The program's timers may stop after the driver is gone (at the end).
    if (running_) scheduler_.setChangeListener(nullptr);
}

void RealTimeDriver::start() {
    base_ = scheduler_.now();
    elapsed_.start();
    running_ = true;
    scheduler_.setChangeListener([this] { rearm(); });
    rearm();
}

std::int64_t RealTimeDriver::nowMs() const { return base_ + elapsed_.nsecsElapsed() / 1000000; }

void RealTimeDriver::rearm() {
    if (!running_) return;
    const auto due = scheduler_.nextDue();
    if (!due) {
        timer_.stop();
        return;
    }
    // Rounded up to whole milliseconds, so the wake-up never comes early.
    const std::int64_t waitUs = *due * 1000 - (base_ * 1000 + elapsed_.nsecsElapsed() / 1000);
    timer_.start(static_cast<int>(std::clamp<std::int64_t>((waitUs + 999) / 1000, 0, 1 << 30)));
}

void RealTimeDriver::catchUp() {
    if (running_) scheduler_.advanceTo(nowMs());
}

Guard RealTimeDriver::inputGuard(Guard guard) {
    return [this, guard = std::move(guard)](const std::function<void()>& action) {
        return guard([&] {
            catchUp();
            action();
        });
    };
}

void RealTimeDriver::wake() {
    const auto due = scheduler_.nextDue();
    const std::int64_t nowUs = base_ * 1000 + elapsed_.nsecsElapsed() / 1000;
    if (due && onWake && nowUs >= *due * 1000) onWake(nowUs - *due * 1000);
    const std::int64_t now = nowMs();
    guard_([&] { scheduler_.advanceTo(now); });
    rearm();
}

}  // namespace brelk::view
