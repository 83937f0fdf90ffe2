#pragma once

#include <string>

namespace brelk {

class Program;
struct ModVars;

// The match length as the clock uses it: MatchDuration when it is a time
// text, else the standard 20 minutes, so a hand-edited profile cannot stop
// the clock.
std::string matchDurationText(const ModVars& v);
double matchDurationSeconds(const ModVars& v);

// The hand-driven match clock. Its reading exists only as the caption of
// lblMatchTimer; timerMatch running is the gate for timing items.

// Start, pause or resume, by a left press on the clock or its status.
void StartStopGlobalTimer(Program& p);
// One second of the match, up or down as MatchTimerReverse says.
void timerMatch_Timer(Program& p);
// The match length is used up: the clock stops and every row blinks twice.
void EndOfMatch(Program& p);

}  // namespace brelk
