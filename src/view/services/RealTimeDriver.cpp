#include "view/services/RealTimeDriver.h"

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

std::int64_t RealTimeDriver::nowUs() const { return base_ * 1000 + elapsed_.nsecsElapsed() / 1000; }

std::int64_t RealTimeDriver::fireTime(std::int64_t due) const {
    if (!fired_ || due >= fired_->due + kFrameMs) return due;
    return std::max(due, std::min(fired_->at + kFrameMs, due + kMaxHoldMs));
}

void RealTimeDriver::rearm() {
    if (!running_) return;
    const auto due = scheduler_.nextDue();
    if (!due) {
        timer_.stop();
        return;
    }
    // Rounded up to whole milliseconds, so the wake-up never comes early.
    wakeUs_ = fireTime(*due) * 1000;
    const std::int64_t waitUs = wakeUs_ - nowUs();
    timer_.start(static_cast<int>(std::clamp<std::int64_t>((waitUs + 999) / 1000, 0, 1 << 30)));
}

void RealTimeDriver::catchUp() {
    if (!running_) return;
    const std::uint64_t before = scheduler_.ticksFired();
    const std::int64_t now = nowMs();
    scheduler_.advanceTo(now);
    if (scheduler_.ticksFired() != before) fired_ = Fired{now, now};
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
    const std::int64_t now = nowUs();
    if (onWake && scheduler_.nextDue() && now >= wakeUs_) onWake(now - wakeUs_);
    guard_([&] {
        // One moment at a time, until the next one is to wait for the screen.
        auto due = scheduler_.nextDue();
        for (; due && fireTime(*due) * 1000 <= now; due = scheduler_.nextDue()) {
            scheduler_.advanceTo(*due);
            fired_ = Fired{*due, nowMs()};
        }
        // Nothing left that is due: the clock stands at the present.
        if (!due || *due * 1000 > now) scheduler_.advanceTo(now / 1000);
    });
    rearm();
}

}  // namespace brelk::view
