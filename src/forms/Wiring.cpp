#include "forms/Wiring.h"

#include "clock/MatchClock.h"
#include "clock/TunePanel.h"
#include "forms/AboutMenu.h"
#include "forms/Lifecycle.h"
#include "forms/OptionsMenu.h"
#include "map/Loader.h"
#include "platform/Events.h"
#include "state/Program.h"
#include "timers/Blink.h"
#include "timers/Countdown.h"
#include "timers/Flash.h"
#include "timers/RowMouse.h"

namespace brelk {

void wireMainForm(Program& p) {
    auto& f = p.frmMain;

    // Start, end and the main menu.
    f.on("frmMain", Event::Load, plain(p, Form_Load));
    f.on("frmMain", Event::Unload, plain(p, Form_Unload));
    f.on("cmdPopup", Event::Click, plain(p, cmdPopup_Click));
    f.on("mnuLoad", Event::Click, plain(p, mnuLoad_Click));
    f.on("mnuOptions", Event::Click, plain(p, mnuOptions_Click));
    f.on("mnuExit", Event::Click, plain(p, mnuExit_Click));
    f.on("mnuAbout", Event::Click, plain(p, mnuAbout_Click));
    f.on("lblMapName", Event::DblClick, plain(p, mnuLoad_Click));

    // The rows: any of a row's five controls takes the mouse.
    for (const char* name : {"ico", "lblFond", "lblItem", "lblTimer", "lblTimerGlobal"}) {
        f.on(name, Event::MouseDown, [&p](const EventArgs& a) { rowMouseDown(p, a.index, a.button); });
        f.on(name, Event::MouseUp, [&p](const EventArgs& a) { rowMouseUp(p, a.index, a.button); });
    }
    f.on("timerItem", Event::Timer, indexed(p, timerItem_Timer));
    f.on("timerFlash", Event::Timer, indexed(p, timerFlash_Timer));
    f.on("timerClick", Event::Timer, indexed(p, timerClick_Timer));

    // The match clock and its tune panel.
    for (const char* name : {"lblMatchStatus", "lblMatchTimer"}) {
        f.on(name, Event::MouseDown, [&p](const EventArgs& a) { lblMatchTimer_MouseDown(p, a.button); });
        f.on(name, Event::MouseUp, [&p](const EventArgs& a) { lblMatchTimer_MouseUp(p, a.button); });
    }
    f.on("timerMatch", Event::Timer, plain(p, timerMatch_Timer));
    f.on("mnuMatchTimerSet", Event::Click, plain(p, mnuMatchTimerSet_Click));
    f.on("cmdCloseTune", Event::Click, plain(p, cmdCloseTune_Click));
    f.on("cmdMinPlus", Event::Click, plain(p, cmdMinPlus_Click));
    f.on("cmdSecPlus", Event::Click, plain(p, cmdSecPlus_Click));
    f.on("cmdMinMoins", Event::Click, plain(p, cmdMinMoins_Click));
    f.on("cmdSecMoins", Event::Click, plain(p, cmdSecMoins_Click));
}

}  // namespace brelk
