#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Value.h"

namespace brelk {

// The program's shared variables: the list cursor and counters, the live
// option and colour values (the fields of the profile file), the match state,
// the window's stored state and the usage counters. Flags hold -1 or 0,
// colours 0x00BBGGRR.
struct ModVars {
    // List cursor and counters.
    std::int32_t NextRowTop = 0;
    std::int16_t CategoryCount = 0;
    std::int16_t ItemCount = 0;

    // Options.
    std::int16_t ListColor = 0;
    std::int16_t LastSeconds = 0;
    std::int16_t LastFlash = 0;
    std::int16_t ActiveTimerBold = 0;
    std::int16_t IdleTimerBold = 0;
    std::int16_t ActiveItemBold = 0;
    std::int16_t IdleItemBold = 0;
    std::int16_t CategoryBold = 0;
    std::int16_t MapName3D = 0;
    std::int16_t MatchTimerReverse = 0;
    std::int16_t ShowItemsTimers = 0;
    std::string MatchDuration;

    // Colours.
    std::int32_t FormColor = 0;
    std::int32_t ListColor1 = 0;
    std::int32_t ListColor2 = 0;
    std::int32_t IdleTimerColor = 0;
    std::int32_t ActiveTimerColor = 0;
    std::int32_t IdleItemColor = 0;
    std::int32_t ActiveItemColor = 0;
    std::int32_t LastSecondsTimerColor = 0;
    std::int32_t CategoryColor = 0;
    std::int32_t MapNameColor = 0;
    std::int32_t MatchTimerColor = 0;
    std::int32_t LastMinuteMatchTimerColor = 0;
    std::int32_t PausedMatchTimerColor = 0;  // never stored in a file

    // Match, window and usage.
    std::string MatchState;
    std::int16_t OnTop = 0;
    std::int32_t PosX = 0;
    std::int32_t PosY = 0;
    std::int16_t Launched = 0;
    std::int16_t TimedItems = 0;
};

// Access to the shared variables by name, for tools and tests.
enum class VarKind { Int16, Int32, Flag, Colour, Text };

struct VarInfo {
    std::string_view name;
    VarKind kind;
};

const std::vector<VarInfo>& varTable();
std::optional<VarKind> varKind(std::string_view name);
// Raises error 5 for an unknown name; writing converts numbers with checks
// (error 6 on overflow) and rejects a number for a text (error 13).
Value readVar(const ModVars& vars, std::string_view name);
void writeVar(ModVars& vars, std::string_view name, const Value& value);

}  // namespace brelk
