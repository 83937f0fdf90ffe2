#pragma once

#include "state/Program.h"

namespace brelk {

// The whole program: its shared state with the main window laid out as
// designed and every event connected to its handler. What the window system
// runs, and what every test builds afresh.
class Brelk : public Program {
public:
    explicit Brelk(Services& services);
};

}  // namespace brelk
