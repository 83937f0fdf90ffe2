#include "clock/MatchClock.h"

#include <algorithm>

#include "platform/Errors.h"
#include "platform/Numbers.h"
#include "state/Program.h"
#include "state/RowRange.h"
#include "state/TimeText.h"
#include "timers/Countdown.h"

namespace brelk {

namespace {

// The clock holds whole seconds in 16 bits; a reading that would leave that
// range stays at its limit, and counting up ends the match there.
std::int16_t clampSeconds(double s) {
    return static_cast<std::int16_t>(std::clamp(s, -32768.0, 32767.0));
}

}  // namespace

std::string matchDurationText(const ModVars& v) {
    try {
        Secondes(v.MatchDuration);
        return v.MatchDuration;
    } catch (const RuntimeError&) {
        return "20:00";
    }
}

double matchDurationSeconds(const ModVars& v) { return Secondes(matchDurationText(v)); }

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
    const double reading = Secondes(clock.caption());
    if (num::isTrue(v.MatchTimerReverse)) {
        // Counting down the reading stops at zero, also for a match of no length.
        clock.setCaption(Minutes(clampSeconds(std::max(reading - 1, 0.0))));
        const double now = Secondes(clock.caption());
        if (now <= 60) clock.setNumber(Prop::ForeColor, v.LastMinuteMatchTimerColor);
        if (now <= 0) EndOfMatch(p);
    } else {
        const double duration = matchDurationSeconds(v);
        clock.setCaption(Minutes(clampSeconds(reading + 1)));
        const double now = Secondes(clock.caption());
        if (now > duration - 60) clock.setNumber(Prop::ForeColor, v.LastMinuteMatchTimerColor);
        if (now >= duration || now >= 32767) EndOfMatch(p);
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
