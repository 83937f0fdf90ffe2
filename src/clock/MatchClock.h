#pragma once

#include <cstdint>

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

// The mouse on the clock or its status: a left press starts, pauses or
// resumes; a right release offers the clock's menu.
void lblMatchTimer_MouseDown(Program& p, int Button);
void lblMatchTimer_MouseUp(Program& p, int Button);

// Gives the clock and its status the colour of the present match state.
void ChangeGlobalTimerColor(Program& p);

}  // namespace brelk
