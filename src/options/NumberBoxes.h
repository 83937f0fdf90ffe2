#pragma once

#include <cstdint>

namespace brelk {

class Program;

namespace options {

// The number of last seconds, taken when its box loses the focus.
void txtLastSeconds_LostFocus(Program& p);

// The match length shows as "20:00" outside the focus and as the bare
// minutes, "20", while the box has it; the arrow keys step the minutes
// between 1 and 98 and Enter takes the length at once.
void txtMatchDuration_GotFocus(Program& p);
void txtMatchDuration_KeyDown(Program& p, std::int16_t KeyCode, std::int16_t Shift);
void txtMatchDuration_LostFocus(Program& p);

}  // namespace options
}  // namespace brelk
