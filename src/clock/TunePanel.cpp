#include "clock/TunePanel.h"

#include <algorithm>

#include "state/Program.h"
#include "state/TimeText.h"

namespace brelk {

namespace {

// Adds `step` seconds; the reading stops at the largest value it can hold.
void tuneUp(Program& p, int step) {
    Control& clock = p.frmMain.lblMatchTimer();
    const double sum = std::min(Secondes(clock.caption()) + step, 32767.0);
    clock.setCaption(Minutes(static_cast<std::int16_t>(sum)));
}

void tuneDown(Program& p, int step) {
    Control& clock = p.frmMain.lblMatchTimer();
    const double difference = Secondes(clock.caption()) - step;
    if (difference > 0) clock.setCaption(Minutes(static_cast<std::int16_t>(std::min(difference, 32767.0))));
}

}  // namespace

void mnuMatchTimerSet_Click(Program& p) { p.frmMain.picTune().setVisible(true); }
void cmdCloseTune_Click(Program& p) { p.frmMain.picTune().setVisible(false); }
void cmdMinPlus_Click(Program& p) { tuneUp(p, 60); }
void cmdSecPlus_Click(Program& p) { tuneUp(p, 1); }
void cmdMinMoins_Click(Program& p) { tuneDown(p, 60); }
void cmdSecMoins_Click(Program& p) { tuneDown(p, 1); }

}  // namespace brelk
