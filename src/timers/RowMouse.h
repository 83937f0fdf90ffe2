#pragma once

#include <cstdint>

namespace brelk {

class Program;

// Mouse on any of a row's five controls (icon, background, name, timer, next
// respawn): the left press holds the countdown; the right release resets the
// row; any other release starts it or lets it go on.
void rowMouseDown(Program& p, std::int16_t Index, int Button);
void rowMouseUp(Program& p, std::int16_t Index, int Button);

}  // namespace brelk
