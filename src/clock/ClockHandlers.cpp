#include "clock/MatchClock.h"
#include "clock/TunePanel.h"
#include "platform/Dialogs.h"
#include "platform/Events.h"
#include "state/Handlers.h"
#include "state/Program.h"

namespace brelk {

void registerClockHandlers(Program& p) {
    auto& f = p.frmMain;
    for (const char* name : {"lblMatchStatus", "lblMatchTimer"}) {
        f.on(name, Event::MouseDown, [&p](const EventArgs& a) {
            if (a.button == button::Left) StartStopGlobalTimer(p);
        });
        f.on(name, Event::MouseUp, [&p](const EventArgs& a) {
            if (a.button != button::Right) return;
            if (Control* chosen = p.sys.dialogs.popupMenu(p.frmMain, p.frmMain.mnuMatchTimer()))
                p.frmMain.raise(*chosen, Event::Click);
        });
    }
    f.on("timerMatch", Event::Timer, [&p](const EventArgs&) { timerMatch_Timer(p); });
    f.on("mnuMatchTimerSet", Event::Click, [&p](const EventArgs&) { mnuMatchTimerSet_Click(p); });
    f.on("cmdCloseTune", Event::Click, [&p](const EventArgs&) { cmdCloseTune_Click(p); });
    f.on("cmdMinPlus", Event::Click, [&p](const EventArgs&) { cmdMinPlus_Click(p); });
    f.on("cmdSecPlus", Event::Click, [&p](const EventArgs&) { cmdSecPlus_Click(p); });
    f.on("cmdMinMoins", Event::Click, [&p](const EventArgs&) { cmdMinMoins_Click(p); });
    f.on("cmdSecMoins", Event::Click, [&p](const EventArgs&) { cmdSecMoins_Click(p); });
}

}  // namespace brelk
