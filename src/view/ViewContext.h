#pragma once

#include <functional>

namespace brelk {
class Form;
}

namespace brelk::view {

// Runs one piece of input through the program; false once it has ended.
using Guard = std::function<bool(const std::function<void()>&)>;

// What every widget of one form needs: the form it shows and the guard that
// all input passes through, so that the program's end stops the event.
struct ViewContext {
    Form& form;
    Guard guard;

    bool run(const std::function<void()>& action) const { return guard ? guard(action) : (action(), true); }
};

}  // namespace brelk::view
