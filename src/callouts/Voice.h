#pragma once

#include <functional>
#include <string>

namespace brelk::callouts {

// How call-outs sound: not at all, said by the system's speech engine, or as
// short tones for a coach who talks to the team over voice chat.
enum class Sound { Off, Voice, Tone };

// One call as it is to sound.
struct Call {
    std::string text;  // "red armor in ten", "quad up", "one minute"
    int tones = 1;     // the tone's count: one before an item, two when due, three for the match
    Sound sound = Sound::Voice;
    int volume = 100;  // percent
};

// What makes the calls heard. The program's is the speech engine and a tone;
// tests put a recorder in its place.
class Voice {
public:
    virtual ~Voice() = default;
    // Starts one call. `done` is run once it has been heard, or could not
    // be; it may run before `say` returns. One call at a time.
    virtual void say(const Call& call, std::function<void()> done) = 0;
};

}  // namespace brelk::callouts
