#include "clock/TunePanel.h"

#include "state/ClockReading.h"
#include "state/Happenings.h"
#include "state/Program.h"

namespace brelk {

namespace {

// Adds `step` seconds; the reading stops at the largest value it can hold.
void tuneUp(Program& p, int step) {
    showReading(p, clockReading(p) + step);
    tell(p, seam::Happening::MatchTuned);
}

// Takes `step` seconds off, only when the reading stays above 00:00.
void tuneDown(Program& p, int step) {
    const double difference = clockReading(p) - step;
    if (difference <= 0) return;
    showReading(p, difference);
    tell(p, seam::Happening::MatchTuned);
}

}  // namespace

void mnuMatchTimerSet_Click(Program& p) { p.frmMain.picTune().setVisible(true); }
void cmdCloseTune_Click(Program& p) { p.frmMain.picTune().setVisible(false); }
void cmdMinPlus_Click(Program& p) { tuneUp(p, 60); }
void cmdSecPlus_Click(Program& p) { tuneUp(p, 1); }
void cmdMinMoins_Click(Program& p) { tuneDown(p, 60); }
void cmdSecMoins_Click(Program& p) { tuneDown(p, 1); }

}  // namespace brelk
