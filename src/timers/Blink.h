#pragma once

#include <cstdint>

namespace brelk {

class Program;

// One step of a row's acknowledging blink: its background, name, timer and
// icon swap visibility; when the count runs out the start mark comes back.
void timerClick_Timer(Program& p, std::int16_t Index);

// Shows the row's background, name and icon (when it has one), and its timer
// unless it is flashing: the look of a row between blinks.
void restoreRowAfterBlink(Program& p, std::int16_t item);

}  // namespace brelk
