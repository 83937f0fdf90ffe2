#include "timers/Blink.h"

#include "platform/Numbers.h"
#include "state/Markers.h"
#include "state/Program.h"
#include "timers/Countdown.h"

namespace brelk {

void restoreRowAfterBlink(Program& p, std::int16_t item) {
    auto& f = p.frmMain;
    if (!isCompleteRow(p, item)) return;
    f.lblFond(item).setVisible(true);
    f.lblItem(item).setVisible(true);
    f.ico(item).setVisible(!f.ico(item).get(Prop::Picture).text().empty());
    if (!f.timerFlash(item).enabled()) f.lblTimer(item).setVisible(true);
}

void timerClick_Timer(Program& p, std::int16_t Index) {
    auto& f = p.frmMain;
    for (Control* c : {&f.lblFond(Index), &f.lblTimer(Index), &f.lblItem(Index), &f.ico(Index)})
        c->setVisible(!c->visible());

    Control& blink = f.timerClick(Index);
    const double left = num::leadingValue(blink.tag()) - 1;
    blink.setTag(num::plainText(left));
    if (left <= 0) {
        const bool idle = f.lblTimer(Index).caption() == kZeroTime && !f.timerFlash(Index).enabled();
        blink.setTag(idle ? mark::Ready : mark::Started);
        blink.setEnabled(false);
        // Two blinks that overlapped (a start, then the end of the match) would
        // otherwise end with the row hidden.
        restoreRowAfterBlink(p, Index);
    }
}

}  // namespace brelk
