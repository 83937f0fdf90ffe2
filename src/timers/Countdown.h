#pragma once

#include <cstdint>
#include <string>

namespace brelk {

class Program;

// The respawn countdown of one item row. Its state lives in the row's
// controls: the caption of lblTimer is the time left, the Tags of the row's
// timers hold the delay, the flash count and the start mark.

// Puts row `item` in its idle look and state.
void TimerInit(Program& p, std::int16_t item);
// Starts the row's countdown, lets a held one go on, or refuses while the
// match clock does not run.
void DeclencheTimer(Program& p, std::int16_t item);
// Holds a counting row; `Index` is the row number as decimal text.
void PauseTimer(Program& p, const std::string& Index);
// One second of the row's countdown.
void timerItem_Timer(Program& p, std::int16_t Index);
// Hands a row that reached zero to its flash.
void TimerReset(Program& p, std::int16_t item);

// Whether row `item` was built whole: a map line whose seconds were no number
// leaves a row with no delay, which clicks leave alone.
bool isCompleteRow(Program& p, std::int16_t item);

}  // namespace brelk
