#pragma once

#include <string_view>
#include <vector>

namespace brelk {

// How a profile value is written and read back.
enum class KeyKind {
    Flag,      // "True"/"False"; a number reads as True unless 0; anything else fails
    Integer,   // 16-bit, rounded half to even; empty, non-numeric or out of range fails
    Colour,    // the number at the text's start, 0 when none; never fails
    Position,  // as Colour, rounded to 32 bits
    Text,      // as it stands
};

// One key of a profile file, in the order the program writes them. `field`
// names the shared variable it mirrors; `builtIn` is the value a first start
// writes when there is no profile file yet.
struct ProfileKey {
    std::string_view section;
    std::string_view key;
    KeyKind kind;
    std::string_view field;
    std::string_view builtIn;
};

// The 29 keys: Form (1-3), Options (4-15), Colors (16-27), Stats (28-29).
const std::vector<ProfileKey>& profileKeys();

// Index ranges within profileKeys().
constexpr int kFirstSettingKey = 3;   // ListColor: the first key a settings read takes
constexpr int kLastSettingKey = 26;   // LastMinuteMatchTimerColor
constexpr int kLastWrittenKey = 26;   // keys 0..26 are written at exit and into sets

}  // namespace brelk
