#include "timers/RowMouse.h"

#include <string>

#include "platform/Events.h"
#include "state/Handlers.h"
#include "state/Program.h"
#include "timers/Blink.h"
#include "timers/Countdown.h"
#include "timers/Flash.h"

namespace brelk {

void rowMouseDown(Program& p, std::int16_t Index, int Button) {
    if (Button == button::Left) PauseTimer(p, std::to_string(Index));
}

void rowMouseUp(Program& p, std::int16_t Index, int Button) {
    // A row left half-made by a bad map line has no delay; it takes no clicks.
    if (!isCompleteRow(p, Index)) return;
    if (Button == button::Right) TimerInit(p, Index);
    else DeclencheTimer(p, Index);
}

void registerRowHandlers(Program& p) {
    auto& f = p.frmMain;
    for (const char* name : {"ico", "lblFond", "lblItem", "lblTimer", "lblTimerGlobal"}) {
        f.on(name, Event::MouseDown, [&p](const EventArgs& a) { rowMouseDown(p, a.index, a.button); });
        f.on(name, Event::MouseUp, [&p](const EventArgs& a) { rowMouseUp(p, a.index, a.button); });
    }
    f.on("timerItem", Event::Timer, [&p](const EventArgs& a) { timerItem_Timer(p, a.index); });
    f.on("timerFlash", Event::Timer, [&p](const EventArgs& a) { timerFlash_Timer(p, a.index); });
    f.on("timerClick", Event::Timer, [&p](const EventArgs& a) { timerClick_Timer(p, a.index); });
}

}  // namespace brelk
