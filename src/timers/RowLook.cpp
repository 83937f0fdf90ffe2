#include "timers/RowLook.h"

#include "platform/Numbers.h"
#include "state/Happenings.h"
#include "state/Markers.h"
#include "state/Program.h"
#include "state/RowRange.h"
#include "timers/Countdown.h"

namespace brelk {

void ChangeTimerColor(Program& p) {
    auto& f = p.frmMain;
    auto& v = p.vars;
    for (const std::int16_t i : rowsUpTo(v.ItemCount)) {
        if (!isCompleteRow(p, i)) continue;  // a half-made row keeps showing only its background
        // A row held by a pause still counts as in use.
        const bool active = f.timerItem(i).enabled() || f.lblTimer(i).caption() != kZeroTime;
        f.lblTimer(i).setNumber(Prop::ForeColor, active ? v.ActiveTimerColor : v.IdleTimerColor);
        f.lblTimer(i).setFlag(Prop::FontBold, num::isTrue(active ? v.ActiveTimerBold : v.IdleTimerBold));
        f.lblItem(i).setNumber(Prop::ForeColor, active ? v.ActiveItemColor : v.IdleItemColor);
        f.lblItem(i).setFlag(Prop::FontBold, num::isTrue(active ? v.ActiveItemBold : v.IdleItemBold));
        if (active) f.lblTimerGlobal(i).setVisible(num::isTrue(v.ShowItemsTimers));
        f.lblTimerGlobal(i).setNumber(Prop::ForeColor, active ? v.ActiveTimerColor : v.IdleTimerColor);
    }
    tell(p, seam::Happening::LookChanged);
}

}  // namespace brelk
