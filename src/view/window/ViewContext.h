#pragma once

#include <functional>

namespace brelk {
class Form;
}

namespace brelk::view {

// Runs one piece of input through the program; false once it has ended.
using Guard = std::function<bool(const std::function<void()>&)>;

// What every widget of one form needs: the form it shows, the guard that
// all input passes through, so that the program's end stops the event, and
// the zoom its window is drawn at (1 for 100 %, see Twips.h).
struct ViewContext {
    Form& form;
    Guard guard;
    double zoom = 1.0;

    bool run(const std::function<void()>& action) const { return guard ? guard(action) : (action(), true); }
};

}  // namespace brelk::view
