#include "timers/Countdown.h"

#include <algorithm>

#include "platform/Dialogs.h"
#include "platform/Numbers.h"
#include "state/ClockReading.h"
#include "state/Happenings.h"
#include "state/Markers.h"
#include "state/Program.h"
#include "state/TimeText.h"
#include "timers/Blink.h"

namespace brelk {

namespace {

// The next respawn reading, worked out once at the start: the match clock
// plus the delay when it counts up, minus the delay when it counts down,
// kept within what a time text can show.
std::string nextRespawnText(Program& p, double delay) {
    const double clock = clockReading(p);
    const double value = num::isTrue(p.vars.MatchTimerReverse) ? clock - delay : clock + delay;
    const double rounded = std::clamp(num::roundHalfEven(value), -32768.0, 32767.0);
    return Minutes(static_cast<std::int16_t>(rounded));
}

}  // namespace

bool isCompleteRow(Program& p, std::int16_t item) {
    return num::isStrictNumber(p.frmMain.timerItem(item).tag());
}

void TimerInit(Program& p, std::int16_t item) {
    auto& f = p.frmMain;
    auto& v = p.vars;
    const bool wasBlinking = f.timerClick(item).enabled();

    Control& timer = f.lblTimer(item);
    timer.setFlag(Prop::FontBold, num::isTrue(v.IdleTimerBold));
    timer.setNumber(Prop::ForeColor, v.IdleTimerColor);
    timer.setNumber(Prop::FontSize, 8);
    timer.setVisible(true);
    timer.setCaption(kZeroTime);

    Control& global = f.lblTimerGlobal(item);
    global.setFlag(Prop::FontBold, num::isTrue(v.IdleTimerBold));
    global.setNumber(Prop::ForeColor, v.IdleTimerColor);
    global.setNumber(Prop::FontSize, 8);
    global.setVisible(v.MatchState == match::Going ? false : num::isTrue(v.ShowItemsTimers));
    global.setCaption(kZeroTime);

    Control& name = f.lblItem(item);
    name.setNumber(Prop::ForeColor, v.IdleItemColor);
    name.setFlag(Prop::FontBold, num::isTrue(v.IdleItemBold));

    f.timerItem(item).setEnabled(false);
    f.timerFlash(item).setEnabled(false);
    f.timerClick(item).setEnabled(false);

    f.timerFlash(item).setTag(num::plainText(v.LastFlash));
    f.timerClick(item).setTag(mark::Ready);

    // A blink cut short would leave the row half hidden.
    if (wasBlinking) restoreRowAfterBlink(p, item);
}

void DeclencheTimer(Program& p, std::int16_t item) {
    auto& f = p.frmMain;
    auto& v = p.vars;
    if (!f.timerMatch().enabled()) {
        p.MsgBox("Match " + v.MatchState + "\r\nStart/unpause the Match Timer first !", msgbox::OkOnly,
                 "Cannot time items now !");
        return;
    }
    if (!isCompleteRow(p, item)) return;

    if (num::leadingValue(f.timerClick(item).tag()) == mark::StartedValue) {
        if (f.lblTimer(item).caption() != kZeroTime) {
            const bool held = !f.timerItem(item).enabled();
            f.timerItem(item).setEnabled(true);
            if (held) tell(p, seam::Happening::RowReleased, item);
        }
        return;
    }

    const double delay = num::strictValue(f.timerItem(item).tag());
    // The lifetime counter stops at its largest value instead of failing.
    if (v.TimedItems < 32767) v.TimedItems = num::add16(v.TimedItems, 1);
    TimerInit(p, item);
    f.timerClick(item).setEnabled(true);

    // A delay of zero or less is due at once: the row goes straight to its flash.
    const std::int16_t start = std::max<std::int16_t>(num::toInt16(delay), 0);
    Control& timer = f.lblTimer(item);
    timer.setCaption(Minutes(start));
    timer.setNumber(Prop::ForeColor, v.ActiveTimerColor);
    timer.setFlag(Prop::FontBold, num::isTrue(v.ActiveTimerBold));

    Control& global = f.lblTimerGlobal(item);
    global.setVisible(true);
    global.setCaption(start > 0 ? nextRespawnText(p, delay) : "");
    global.setNumber(Prop::ForeColor, v.ActiveTimerColor);

    Control& name = f.lblItem(item);
    name.setNumber(Prop::ForeColor, v.ActiveItemColor);
    name.setFlag(Prop::FontBold, num::isTrue(v.ActiveItemBold));
    tell(p, seam::Happening::RowStarted, item);

    if (start > 0) {
        f.timerItem(item).setEnabled(true);
    } else {
        if (0 <= v.LastSeconds) {
            timer.setNumber(Prop::ForeColor, v.LastSecondsTimerColor);
            timer.setNumber(Prop::FontSize, 9);
        }
        TimerReset(p, item);
    }
    f.timerClick(item).setTag(mark::Started);
}

void PauseTimer(Program& p, const std::string& Index) {
    const std::int16_t item = num::toInt16(num::strictValue(Index));
    Control& timer = p.frmMain.timerItem(item);
    if (!timer.enabled()) return;
    timer.setEnabled(false);
    tell(p, seam::Happening::RowHeld, item);
}

void timerItem_Timer(Program& p, std::int16_t Index) {
    auto& f = p.frmMain;
    Control& timer = f.lblTimer(Index);
    const double left = Secondes(timer.caption()) - 1;
    timer.setCaption(Minutes(num::toInt16(left)));
    tell(p, seam::Happening::RowTicked, Index);
    const double now = Secondes(timer.caption());
    if (now <= p.vars.LastSeconds) {
        const bool entering = timer.number(Prop::FontSize) != 9;
        timer.setNumber(Prop::ForeColor, p.vars.LastSecondsTimerColor);
        timer.setNumber(Prop::FontSize, 9);
        if (entering) tell(p, seam::Happening::RowLastSeconds, Index);
    }
    if (now == 0) {
        f.lblTimerGlobal(Index).setCaption("");
        TimerReset(p, Index);
    }
}

void TimerReset(Program& p, std::int16_t item) {
    p.frmMain.timerItem(item).setEnabled(false);
    p.frmMain.timerFlash(item).setEnabled(true);
    tell(p, seam::Happening::RowDue, item);
}

}  // namespace brelk
