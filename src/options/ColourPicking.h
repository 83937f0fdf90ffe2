#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace brelk {

class Program;

namespace options {

// One colour row: its caption and tooltip, the shared variable that holds
// the colour, and what shows a new colour on the main window.
struct ColourRow {
    const char* caption;
    const char* tip;
    std::string_view variable;
    void (*repaint)(Program&);
};

constexpr std::int16_t kColourRows = 13;
const std::array<ColourRow, kColourRows>& colourRows();

// A click on a row's swatch or caption: the colour dialog opens on the
// swatch's colour, and whatever it gives becomes the row's colour at once.
void lblColor_Click(Program& p, std::int16_t Index);
void lblName_Click(Program& p, std::int16_t Index);
// Shows the colour dialog and puts a chosen colour on the swatch.
void PickColor(Program& p, std::int16_t Index);

}  // namespace options
}  // namespace brelk
