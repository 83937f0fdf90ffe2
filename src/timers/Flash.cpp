#include "timers/Flash.h"

#include "platform/Numbers.h"
#include "state/Happenings.h"
#include "state/Markers.h"
#include "state/Program.h"
#include "timers/Countdown.h"

namespace brelk {

void timerFlash_Timer(Program& p, std::int16_t Index) {
    auto& f = p.frmMain;
    Control& label = f.lblTimer(Index);
    label.setVisible(!label.visible());
    Control& flash = f.timerFlash(Index);
    double left = num::leadingValue(flash.tag());
    if (p.vars.MatchState != match::Paused) {
        left -= 1;
        flash.setTag(num::plainText(left));
    }
    if (left > 0) return;
    TimerInit(p, Index);
    tell(p, seam::Happening::RowFlashEnded, Index);
}

}  // namespace brelk
