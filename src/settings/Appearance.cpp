#include "settings/Appearance.h"

#include <cstdint>

#include "clock/MatchClock.h"
#include "platform/Numbers.h"
#include "state/Program.h"
#include "state/RowRange.h"
#include "state/TimeText.h"
#include "timers/Countdown.h"

namespace brelk {

void ChangeFormColor(Program& p) { p.frmMain.self().setNumber(Prop::BackColor, p.vars.FormColor); }

void ChangeListColor(Program& p) {
    for (const std::int16_t i : rowsUpTo(p.vars.ItemCount))
        p.frmMain.lblFond(i).setNumber(Prop::BackColor, i % 2 == 0 ? p.vars.ListColor1 : p.vars.ListColor2);
}

void ItemBackground(Program& p, bool test) {
    ChangeListColor(p);
    for (const std::int16_t i : rowsUpTo(p.vars.ItemCount))
        p.frmMain.lblFond(i).setNumber(Prop::BackStyle, test ? 1 : 0);
}

void ChangeMapNameColor(Program& p) {
    p.frmMain.lblMapName(1).setNumber(Prop::ForeColor, p.vars.MapNameColor);
    p.frmMain.lblMapName(0).setVisible(num::isTrue(p.vars.MapName3D));
}

void ChangeTimerColor(Program& p) {
    auto& f = p.frmMain;
    auto& v = p.vars;
    for (const std::int16_t i : rowsUpTo(v.ItemCount)) {
        if (!isCompleteRow(p, i)) continue;  // a half-made row keeps showing only its background
        // A row held by a pause still counts as in use.
        const bool active = f.timerItem(i).enabled() || f.lblTimer(i).caption() != "00:00";
        f.lblTimer(i).setNumber(Prop::ForeColor, active ? v.ActiveTimerColor : v.IdleTimerColor);
        f.lblTimer(i).setFlag(Prop::FontBold, num::isTrue(active ? v.ActiveTimerBold : v.IdleTimerBold));
        f.lblItem(i).setNumber(Prop::ForeColor, active ? v.ActiveItemColor : v.IdleItemColor);
        f.lblItem(i).setFlag(Prop::FontBold, num::isTrue(active ? v.ActiveItemBold : v.IdleItemBold));
        if (active) f.lblTimerGlobal(i).setVisible(num::isTrue(v.ShowItemsTimers));
        f.lblTimerGlobal(i).setNumber(Prop::ForeColor, active ? v.ActiveTimerColor : v.IdleTimerColor);
    }
}

void ChangeCategoryColor(Program& p) {
    for (const std::int16_t i : rowsUpTo(p.vars.CategoryCount)) {
        p.frmMain.lblCat(i).setNumber(Prop::ForeColor, p.vars.CategoryColor);
        p.frmMain.lineCat(i).setNumber(Prop::BorderColor, p.vars.CategoryColor);
        p.frmMain.lblCat(i).setFlag(Prop::FontBold, num::isTrue(p.vars.CategoryBold));
    }
}

void ChangeGlobalTimerColor(Program& p) {
    auto& v = p.vars;
    std::int32_t colour = v.MatchTimerColor;
    if (v.MatchState == "paused") {
        colour = v.PausedMatchTimerColor;
    } else if (v.MatchState != "not started" && !v.MatchState.empty()) {
        const double reading = clockReading(p);
        const bool lastMinute = num::isTrue(v.MatchTimerReverse) ? reading <= 60
                                                                  : reading > matchDurationSeconds(v) - 60;
        if (lastMinute) colour = v.LastMinuteMatchTimerColor;
    }
    p.frmMain.lblMatchTimer().setNumber(Prop::ForeColor, colour);
    p.frmMain.lblMatchStatus().setNumber(Prop::ForeColor, colour);
}

}  // namespace brelk
