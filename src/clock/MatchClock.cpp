#include "clock/MatchClock.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "platform/Errors.h"
#include "platform/Numbers.h"
#include "state/Program.h"
#include "state/RowRange.h"
#include "state/TimeText.h"
#include "timers/Countdown.h"

namespace brelk {

namespace {

constexpr const char* kStandardLength = "20:00";

// Seconds of a time text, or nothing when it is no time text.
std::optional<double> timeSeconds(const std::string& text) {
    try {
        const double s = Secondes(text);
        if (std::isnan(s)) return std::nullopt;
        return s;
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

}  // namespace

std::string matchDurationText(const ModVars& v) {
    const auto length = timeSeconds(v.MatchDuration);
    if (!length) return kStandardLength;
    const double whole = std::clamp(num::roundHalfEven(*length), 0.0, kLargestReading);
    return whole == *length ? v.MatchDuration : Minutes(static_cast<std::int16_t>(whole));
}

double matchDurationSeconds(const ModVars& v) { return Secondes(matchDurationText(v)); }

double clockReading(Program& p) {
    if (const auto reading = timeSeconds(p.frmMain.lblMatchTimer().caption())) return num::roundHalfEven(*reading);
    return num::isTrue(p.vars.MatchTimerReverse) ? matchDurationSeconds(p.vars) : 0;
}

void showReading(Program& p, double seconds) {
    const double held = std::clamp(seconds, -32768.0, kLargestReading);
    p.frmMain.lblMatchTimer().setCaption(Minutes(static_cast<std::int16_t>(held)));
}

void StartStopGlobalTimer(Program& p) {
    auto& f = p.frmMain;
    auto& v = p.vars;
    Control& clock = f.lblMatchTimer();
    Control& status = f.lblMatchStatus();

    f.timerMatch().setEnabled(!f.timerMatch().enabled());
    if (f.timerMatch().enabled()) {
        if (v.MatchState == "not started")
            clock.setCaption(num::isTrue(v.MatchTimerReverse) ? matchDurationText(v) : "00:00");
        clock.setNumber(Prop::ForeColor, v.MatchTimerColor);
        clock.setFlag(Prop::FontBold, true);
        status.setCaption("");
        status.setNumber(Prop::ForeColor, v.MatchTimerColor);
        v.MatchState = "going";
        for (const std::int16_t i : rowsUpTo(v.ItemCount)) {
            if (!isCompleteRow(p, i)) continue;  // a row left half-made by a bad map line stays still
            if (f.lblTimer(i).caption() != "00:00") {
                f.timerItem(i).setEnabled(true);
                f.lblTimerGlobal(i).setVisible(true);
            } else {
                f.lblTimerGlobal(i).setVisible(false);
            }
        }
    } else {
        clock.setNumber(Prop::ForeColor, v.PausedMatchTimerColor);
        clock.setFlag(Prop::FontBold, false);
        status.setNumber(Prop::ForeColor, v.PausedMatchTimerColor);
        status.setCaption("Paused");
        v.MatchState = "paused";
        for (const std::int16_t i : rowsUpTo(v.ItemCount)) f.timerItem(i).setEnabled(false);
    }
}

void timerMatch_Timer(Program& p) {
    auto& v = p.vars;
    Control& clock = p.frmMain.lblMatchTimer();
    const double reading = clockReading(p);
    if (num::isTrue(v.MatchTimerReverse)) {
        // Counting down the reading stops at 00:00, also for a match of no length.
        showReading(p, std::max(reading - 1, 0.0));
        const double now = clockReading(p);
        if (now <= 60) clock.setNumber(Prop::ForeColor, v.LastMinuteMatchTimerColor);
        if (now <= 0) EndOfMatch(p);
    } else {
        // The length is at most the largest reading, where counting up stays:
        // a match always ends.
        const double length = matchDurationSeconds(v);
        showReading(p, reading + 1);
        const double now = clockReading(p);
        if (now > length - 60) clock.setNumber(Prop::ForeColor, v.LastMinuteMatchTimerColor);
        if (now >= length) EndOfMatch(p);
    }
}

void EndOfMatch(Program& p) {
    auto& f = p.frmMain;
    f.timerMatch().setEnabled(false);
    f.lblMatchStatus().setCaption("Match Ended");
    p.vars.MatchState = "not started";
    for (const std::int16_t i : rowsUpTo(p.vars.ItemCount)) {
        f.timerClick(i).setTag("4");
        f.timerClick(i).setEnabled(true);
    }
}

}  // namespace brelk
