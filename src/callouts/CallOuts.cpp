#include "callouts/CallOuts.h"

#include <cmath>
#include <optional>
#include <utility>

#include "callouts/SpokenName.h"
#include "platform/Errors.h"
#include "platform/Numbers.h"
#include "state/ClockReading.h"
#include "state/Program.h"
#include "state/TimeText.h"

namespace brelk::callouts {

namespace {

// The status the clock shows once the match length is used up.
constexpr const char* kMatchEnded = "Match Ended";
// The clock's last minute starts when this many seconds are left.
constexpr double kLastMinute = 60;

}  // namespace

CallOuts::CallOuts(Program& p, Voice& voice) : p_(p), voice_(voice) {
    clockLeft_ = clockLeft();
    p_.frmMain.addObserver(this);
}

CallOuts::~CallOuts() { p_.frmMain.removeObserver(this); }

void CallOuts::setChoices(const Choices& c) {
    choices_ = c;
    if (c.sound == Sound::Off) waiting_.clear();
}

void CallOuts::propertyChanged(Control& c, Prop prop) {
    const std::string& name = c.name();
    if (name == "lblTimer" || name == "timerFlash") {
        const std::int16_t i = c.index();
        if (i == 0) return;  // the rows' prototypes
        if (name == "lblTimer" && prop == Prop::Caption) rowTime(i, c);
        else if (name == "timerFlash" && prop == Prop::Enabled) rowFlash(i, c);
        // The flash count is written while the flash is off only when the row is put back to idle.
        else if (name == "timerFlash" && prop == Prop::Tag && !c.enabled()) rowFlashCount(i, c);
    } else if (name == "lblMatchTimer" && prop == Prop::Caption) {
        clockTime();
    } else if (name == "lblMatchStatus" && prop == Prop::Caption && c.caption() == kMatchEnded) {
        if (choices_.matchCalls) callMatch("match over");
    } else if (name == "lblMapName" && c.index() == 0 && prop == Prop::Caption) {
        ++map_;  // a map is being loaded: what was called for the old one no longer holds
    }
}

void CallOuts::controlUnloading(Control& c) {
    if (c.name() != "lblTimer") return;
    rows_.erase(c.index());
    ++map_;
}

void CallOuts::rowTime(std::int16_t i, Control& label) {
    const auto left = timeSeconds(label.caption());
    if (!left) return;
    Row& r = rows_[i];
    const double before = r.left;
    r.left = *left;
    // Reached by a tick, or set there by a start whose delay is the lead time itself.
    if (choices_.lead > 0 && *left == choices_.lead && before != *left) callRow(i, "", 1, true);
}

void CallOuts::rowFlash(std::int16_t i, Control& flash) {
    Row& r = rows_[i];
    const bool on = flash.enabled();
    if (on && !r.due) {
        r.due = true;
        if (choices_.upCall) callRow(i, " up", 2, false);
    } else if (!on && r.due) {
        r.due = false;
        r.flashDone = num::leadingValue(flash.tag()) <= 0;
    }
}

void CallOuts::rowFlashCount(std::int16_t i, Control&) {
    Row& r = rows_[i];
    if (r.flashDone) r.flashDone = false;
    else ++r.countdown;  // reset by the coach, or started anew
}

double CallOuts::clockLeft() {
    const double reading = clockReading(p_);
    return num::isTrue(p_.vars.MatchTimerReverse) ? reading : matchDurationSeconds(p_.vars) - reading;
}

void CallOuts::clockTime() {
    const double before = clockLeft_;
    clockLeft_ = clockLeft();
    if (choices_.matchCalls && p_.frmMain.timerMatch().enabled() && before > kLastMinute &&
        clockLeft_ <= kLastMinute && clockLeft_ > 0)
        callMatch("one minute");
}

void CallOuts::callRow(std::int16_t i, const std::string& words, int tones, bool beforeDue) {
    if (choices_.sound == Sound::Off) return;
    const Control* item = p_.frmMain.find("lblItem", i);
    const std::string tip = item ? item->get(Prop::ToolTipText).text() : std::string();
    Waiting w;
    w.call.text = spokenName(titleOfTip(tip), i) + words;
    w.call.tones = tones;
    w.row = i;
    w.beforeDue = beforeDue;
    w.countdown = rows_[i].countdown;
    w.map = map_;
    waiting_.push_back(std::move(w));
    next();
}

void CallOuts::callMatch(const std::string& words) {
    if (choices_.sound == Sound::Off) return;
    Waiting w;
    w.call.text = words;
    w.call.tones = 3;
    w.map = map_;
    waiting_.push_back(std::move(w));
    next();
}

bool CallOuts::stale(const Waiting& w) const {
    if (w.map != map_) return true;
    if (w.row == 0) return false;
    const auto r = rows_.find(w.row);
    if (r == rows_.end() || r->second.countdown != w.countdown) return true;
    // A call before an item that is already due has nothing left to say.
    return w.beforeDue && (r->second.due || r->second.left <= 0);
}

void CallOuts::next() {
    if (speaking_) return;
    while (!waiting_.empty()) {
        Waiting w = std::move(waiting_.front());
        waiting_.pop_front();
        if (stale(w)) continue;
        // Said late behind other calls, it tells the time actually left.
        if (w.beforeDue) w.call.text += " in " + numberWords(static_cast<int>(rows_[w.row].left));
        w.call.sound = choices_.sound;
        w.call.volume = choices_.volume;
        speaking_ = true;
        const unsigned turn = ++turn_;
        voice_.say(w.call, [this, turn] {
            if (turn != turn_ || !speaking_) return;
            speaking_ = false;
            next();
        });
        return;
    }
}

}  // namespace brelk::callouts
