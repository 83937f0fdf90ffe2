#include "clock/MatchClock.h"

#include <algorithm>

#include "platform/Dialogs.h"
#include "platform/Events.h"
#include "platform/Numbers.h"
#include "state/ClockReading.h"
#include "state/Happenings.h"
#include "state/Markers.h"
#include "state/Program.h"
#include "state/RowRange.h"
#include "timers/Countdown.h"

namespace brelk {

void StartStopGlobalTimer(Program& p) {
    auto& f = p.frmMain;
    auto& v = p.vars;
    Control& clock = f.lblMatchTimer();
    Control& status = f.lblMatchStatus();
    const bool resuming = v.MatchState == match::Paused;

    f.timerMatch().setEnabled(!f.timerMatch().enabled());
    if (f.timerMatch().enabled()) {
        if (v.MatchState == match::NotStarted)
            clock.setCaption(num::isTrue(v.MatchTimerReverse) ? matchDurationText(v) : kZeroTime);
        clock.setNumber(Prop::ForeColor, v.MatchTimerColor);
        clock.setFlag(Prop::FontBold, true);
        status.setCaption("");
        status.setNumber(Prop::ForeColor, v.MatchTimerColor);
        v.MatchState = match::Going;
        for (const std::int16_t i : rowsUpTo(v.ItemCount)) {
            if (!isCompleteRow(p, i)) continue;  // a row left half-made by a bad map line stays still
            if (f.lblTimer(i).caption() != kZeroTime) {
                f.timerItem(i).setEnabled(true);
                f.lblTimerGlobal(i).setVisible(true);
            } else {
                f.lblTimerGlobal(i).setVisible(false);
            }
        }
        tell(p, resuming ? seam::Happening::MatchResumed : seam::Happening::MatchStarted);
    } else {
        clock.setNumber(Prop::ForeColor, v.PausedMatchTimerColor);
        clock.setFlag(Prop::FontBold, false);
        status.setNumber(Prop::ForeColor, v.PausedMatchTimerColor);
        status.setCaption("Paused");
        v.MatchState = match::Paused;
        for (const std::int16_t i : rowsUpTo(v.ItemCount)) f.timerItem(i).setEnabled(false);
        tell(p, seam::Happening::MatchPaused);
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
        tell(p, seam::Happening::ClockTicked);
        if (now <= 0) EndOfMatch(p);
    } else {
        // The length is at most the largest reading, where counting up stays:
        // a match always ends.
        const double length = matchDurationSeconds(v);
        showReading(p, reading + 1);
        const double now = clockReading(p);
        if (now > length - 60) clock.setNumber(Prop::ForeColor, v.LastMinuteMatchTimerColor);
        tell(p, seam::Happening::ClockTicked);
        if (now >= length) EndOfMatch(p);
    }
}

void EndOfMatch(Program& p) {
    auto& f = p.frmMain;
    f.timerMatch().setEnabled(false);
    f.lblMatchStatus().setCaption("Match Ended");
    p.vars.MatchState = match::NotStarted;
    for (const std::int16_t i : rowsUpTo(p.vars.ItemCount)) {
        f.timerClick(i).setTag(mark::EndBlink);
        f.timerClick(i).setEnabled(true);
    }
    tell(p, seam::Happening::MatchEnded);
}

void lblMatchTimer_MouseDown(Program& p, int Button) {
    if (Button == button::Left) StartStopGlobalTimer(p);
}

void lblMatchTimer_MouseUp(Program& p, int Button) {
    if (Button != button::Right) return;
    if (Control* chosen = p.dialogs().popupMenu(p.frmMain, p.frmMain.mnuMatchTimer()))
        p.frmMain.raise(*chosen, Event::Click);
}

void ChangeGlobalTimerColor(Program& p) {
    auto& v = p.vars;
    std::int32_t colour = v.MatchTimerColor;
    if (v.MatchState == match::Paused) {
        colour = v.PausedMatchTimerColor;
    } else if (v.MatchState != match::NotStarted && !v.MatchState.empty()) {
        const double reading = clockReading(p);
        const bool lastMinute = num::isTrue(v.MatchTimerReverse) ? reading <= 60
                                                                  : reading > matchDurationSeconds(v) - 60;
        if (lastMinute) colour = v.LastMinuteMatchTimerColor;
    }
    p.frmMain.lblMatchTimer().setNumber(Prop::ForeColor, colour);
    p.frmMain.lblMatchStatus().setNumber(Prop::ForeColor, colour);
    tell(p, seam::Happening::LookChanged);
}

}  // namespace brelk
