#pragma once

#include <string>

namespace brelk {

// What an item line of a map says: "NAME PART:SECONDS", where the name part
// may hold one icon token "ICO_WORD".
struct ItemLine {
    std::string ItemText;     // the name as shown, the icon's place as four blanks
    std::string ItemTitle;    // the name for the tooltip, "ICO_" removed
    std::string RespawnText;  // the seconds text, unconverted
    std::string IconWord;     // the catalogue word found, or ""
    int IconIndex = 0;
};

// Parses `item`, which is turned to upper case in place first. A line with no
// ":" and a line whose icon token has no ":" behind it raise error 5.
ItemLine parseItemLine(std::string& item);

// The row's tooltip: title, " : ", the seconds in their shortest form with a
// leading blank, " seconds respawn". A seconds text that is no number raises
// error 13; one beyond what a countdown can hold (16 bits) raises error 6.
std::string rowTip(const ItemLine& line);

// Number of characters the name takes in the row: each run of four blanks,
// from the left, counts as one character.
int nameLength(const std::string& itemText);

}  // namespace brelk
