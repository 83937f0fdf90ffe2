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

// A procedure over the program's context as a handler: `plain` for one that
// takes none of its event's arguments, `indexed` for one that takes the
// member's index.
template <typename Context>
Handler plain(Context& c, void (*procedure)(Context&)) {
    return [&c, procedure](const EventArgs&) { procedure(c); };
}
template <typename Context>
Handler indexed(Context& c, void (*procedure)(Context&, std::int16_t)) {
    return [&c, procedure](const EventArgs& a) { procedure(c, a.index); };
}

}  // namespace brelk
