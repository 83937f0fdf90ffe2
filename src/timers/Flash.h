#pragma once

#include <cstdint>

namespace brelk {

class Program;

// One tick of a due row's flash: its timer label swaps visibility; the count
// stands still while the match is paused; at zero the row returns to idle.
void timerFlash_Timer(Program& p, std::int16_t Index);

}  // namespace brelk
