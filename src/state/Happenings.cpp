#include "state/Happenings.h"

#include <utility>

#include "platform/Numbers.h"
#include "platform/TimerScheduler.h"
#include "state/ClockReading.h"
#include "state/Program.h"
#include "state/TimeText.h"

namespace brelk {

namespace {

seam::MatchEvent eventOf(Program& p, seam::Happening what) {
    seam::MatchEvent e;
    e.what = what;
    e.atMs = p.sys.timers.now();
    e.source = p.commandSource ? *p.commandSource
               : p.sys.timers.firing() ? seam::Source::Timer
                                       : seam::Source::Click;
    e.clock = p.frmMain.lblMatchTimer().caption();
    e.matchState = p.vars.MatchState;
    const double reading = clockReading(p);
    e.matchSecondsLeft = num::isTrue(p.vars.MatchTimerReverse) ? reading : matchDurationSeconds(p.vars) - reading;
    return e;
}

}  // namespace

void tell(Program& p, seam::Happening what, std::int16_t row) {
    if (!p.events.heard()) return;
    seam::MatchEvent e = eventOf(p, what);
    if (row > 0) {
        e.row = row;
        e.secondsLeft = timeSeconds(p.frmMain.lblTimer(row).caption()).value_or(0);
        e.nextRespawn = p.frmMain.lblTimerGlobal(row).caption();
    }
    p.events.publish(e);
}

void tellWords(Program& p, seam::Happening what, std::string words) {
    if (!p.events.heard()) return;
    seam::MatchEvent e = eventOf(p, what);
    e.words = std::move(words);
    p.events.publish(e);
}

void beginMapOutline(Program& p) { p.loading = {std::make_shared<seam::MapOutline>(), ""}; }

void noteCategory(Program& p, const std::string& name) { p.loading.category = name; }

void noteRow(Program& p, std::int16_t index, const std::string& title, const std::string& text,
             const std::string& icon, double respawnSeconds) {
    if (p.loading.outline)
        p.loading.outline->rows.push_back({index, p.loading.category, title, text, icon, respawnSeconds});
}

void tellMapLoaded(Program& p) {
    if (!p.loading.outline) return;
    p.loading.outline->name = p.frmMain.lblMapName(1).caption();
    p.map = std::exchange(p.loading.outline, nullptr);
    if (!p.events.heard()) return;
    seam::MatchEvent e = eventOf(p, seam::Happening::MapLoaded);
    e.map = p.map;
    p.events.publish(e);
}

}  // namespace brelk
