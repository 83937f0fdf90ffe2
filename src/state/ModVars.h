#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
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

// How a variable holds its value, which is also how a profile file writes
// and reads it: a flag as "True"/"False", a 16-bit integer strictly, a
// colour or a 32-bit position by the number at the text's start, a text as
// it stands.
enum class VarKind { Int16, Int32, Flag, Colour, Text };

// Which profile files keep a variable, and who reads it back.
enum class Stored {
    Never,     // lives only while the program runs
    Window,    // [Form]: written with the settings, read only at start
    Settings,  // [Options] and [Colors]: written and read with the settings
    Stats,     // [Stats]: the program's own profile file only, read at start
};

using VarField = std::variant<std::int16_t ModVars::*, std::int32_t ModVars::*, std::string ModVars::*>;

// One shared variable: its name, which is also its profile key, how it is
// held, where it is stored and the value a first start gives it.
struct SharedVariable {
    std::string_view name;
    VarKind kind;
    VarField field;
    Stored stored = Stored::Never;
    std::string_view section;  // profile section, "" when never stored
    std::string_view builtIn;  // the built-in profile's text
};

// Every shared variable. The stored ones come first, in the order a profile
// file is written: Form, Options, Colors, then Stats.
const std::vector<SharedVariable>& sharedVariables();

// Access by name, for tools and tests. Reading or writing an unknown name
// raises error 5; writing converts numbers with checks (error 6 on overflow)
// and takes a number's text for a text variable.
std::optional<VarKind> varKind(std::string_view name);
Value readVar(const ModVars& vars, std::string_view name);
void writeVar(ModVars& vars, std::string_view name, const Value& value);
Value readVar(const ModVars& vars, const SharedVariable& v);
void writeVar(ModVars& vars, const SharedVariable& v, const Value& value);

}  // namespace brelk
