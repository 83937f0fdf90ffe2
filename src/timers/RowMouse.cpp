#include "timers/RowMouse.h"

#include <string>

#include "platform/Events.h"
#include "state/Happenings.h"
#include "state/Program.h"
#include "timers/Countdown.h"

namespace brelk {

void rowMouseDown(Program& p, std::int16_t Index, int Button) {
    if (Button == button::Left) PauseTimer(p, std::to_string(Index));
}

void rowMouseUp(Program& p, std::int16_t Index, int Button) {
    // A row left half-made by a bad map line has no delay; it takes no clicks.
    if (!isCompleteRow(p, Index)) return;
    if (Button != button::Right) return DeclencheTimer(p, Index);
    TimerInit(p, Index);
    tell(p, seam::Happening::RowReset, Index);
}

}  // namespace brelk
