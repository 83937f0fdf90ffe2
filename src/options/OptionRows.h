#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace brelk {

class Program;

namespace options {

// One Yes/No row of the options window: its caption and tooltip, the shared
// variable it edits, and what shows a change on the main window at once.
// Stay-on-top has nothing here (the main window applies it when the options
// close) and neither has the clock's direction (the clock reads it as it
// runs).
struct FlagRow {
    const char* caption;
    const char* tip;
    std::string_view variable;
    void (*repaint)(Program&);
};

constexpr std::int16_t kFlagRows = 10;
const std::array<FlagRow, kFlagRows>& flagRows();

// A row's "Yes" or "No" became the row's value, by a click or by the
// program: stores it and repaints, unless the window is being filled.
void optYes_Click(Program& p, std::int16_t Index);
void optNo_Click(Program& p, std::int16_t Index);

}  // namespace options
}  // namespace brelk
