#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

namespace brelk {

enum class Event {
    Load, Unload, Click, DblClick, MouseDown, MouseUp, MouseMove, Timer,
    KeyDown, GotFocus, LostFocus
};

std::string_view eventName(Event e);

// Mouse buttons as events report them.
namespace button {
constexpr int Left = 1;
constexpr int Right = 2;
constexpr int Middle = 4;
}  // namespace button

// Key codes the program reacts to.
namespace key {
constexpr int Return = 13;
constexpr int Escape = 27;
constexpr int Left = 37;
constexpr int Up = 38;
constexpr int Right = 39;
constexpr int Down = 40;
}  // namespace key

// What an event hands to its handler. `index` is the member's index in its
// control array (0 for a single control).
struct EventArgs {
    std::int16_t index = 0;
    int button = 0;
    int shift = 0;
    float x = 0;
    float y = 0;
    int keyCode = 0;
};

using Handler = std::function<void(const EventArgs&)>;

}  // namespace brelk
