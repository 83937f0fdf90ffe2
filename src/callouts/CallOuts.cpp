#include "callouts/CallOuts.h"

#include <utility>

#include "callouts/SpokenName.h"

namespace brelk::callouts {

namespace {
// The clock's last minute starts when this many seconds are left.
constexpr double kLastMinute = 60;
}  // namespace

CallOuts::CallOuts(seam::Seam& seam, Voice& voice) : seam_(seam), voice_(voice) {
    newMap(seam.map().get());
    clockLeft_ = seam.clock().matchSecondsLeft;
    listening_ = seam.listen([this](const seam::MatchEvent& e) { heard(e); });
}

void CallOuts::setChoices(const Choices& c) {
    choices_ = c;
    if (c.sound == Sound::Off) waiting_.clear();
}

void CallOuts::heard(const seam::MatchEvent& e) {
    using seam::Happening;
    switch (e.what) {
    case Happening::MapLoaded: newMap(e.map.get()); break;
    case Happening::MatchEnded:
        if (choices_.matchCalls) callMatch("match over");
        break;
    default: break;
    }
    if (e.row > 0) rowEvent(e);
    switch (e.what) {
    // Where the clock's reading may have moved.
    case Happening::ClockTicked:
    case Happening::MatchTuned:
    case Happening::ClockSet:
    case Happening::MatchStarted:
    case Happening::MapLoaded: clockEvent(e); break;
    default: break;
    }
}

void CallOuts::newMap(const seam::MapOutline* map) {
    ++map_;  // what was called for the old rows no longer holds
    rows_.clear();
    if (!map) return;
    for (const seam::MapRow& r : map->rows) rows_[r.index].name = spokenName(r.title, r.index);
}

void CallOuts::rowEvent(const seam::MatchEvent& e) {
    using seam::Happening;
    const auto it = rows_.find(e.row);
    if (it == rows_.end()) return;
    Row& r = it->second;
    const double before = r.left;
    r.left = e.secondsLeft;
    switch (e.what) {
    case Happening::RowStarted:
    case Happening::RowReset:
        ++r.countdown;
        r.due = false;
        break;
    case Happening::RowDue:
        if (r.due) return;
        r.due = true;
        if (choices_.upCall) callRow(e.row, " up", 2, false);
        return;
    case Happening::RowFlashEnded: r.due = false; return;
    case Happening::RowTicked: break;
    default: return;
    }
    // Reached by a tick, or set there by a start whose delay is the lead time itself.
    if (choices_.lead > 0 && r.left == choices_.lead && (e.what != Happening::RowTicked || before != r.left))
        callRow(e.row, "", 1, true);
}

void CallOuts::clockEvent(const seam::MatchEvent& e) {
    const double before = std::exchange(clockLeft_, e.matchSecondsLeft);
    if (choices_.matchCalls && e.matchState == "going" && before > kLastMinute && clockLeft_ <= kLastMinute &&
        clockLeft_ > 0)
        callMatch("one minute");
}

void CallOuts::callRow(std::int16_t i, const std::string& words, int tones, bool beforeDue) {
    if (choices_.sound == Sound::Off) return;
    Waiting w;
    w.call.text = rows_[i].name + words;
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
        seam_.announce(seam::Happening::CallOutSaid, w.call.text);
        voice_.say(w.call, [this, turn] {
            if (turn != turn_ || !speaking_) return;
            speaking_ = false;
            next();
        });
        return;
    }
}

}  // namespace brelk::callouts
