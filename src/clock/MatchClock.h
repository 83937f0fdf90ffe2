#pragma once

namespace brelk {

class Program;

// The hand-driven match clock. Its reading exists only as the caption of
// lblMatchTimer; timerMatch running is the gate for timing items.

// Start, pause or resume, by a left press on the clock or its status.
void StartStopGlobalTimer(Program& p);
// One second of the match, up or down as MatchTimerReverse says.
void timerMatch_Timer(Program& p);
// The match length is used up: the clock stops and every row blinks twice.
void EndOfMatch(Program& p);

}  // namespace brelk
