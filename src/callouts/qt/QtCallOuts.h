#pragma once

#include "callouts/CallOuts.h"
#include "callouts/qt/QtVoice.h"
#include "extras/CoachSection.h"

namespace brelk::view {
class BrelkApp;
}

namespace brelk::callouts::qt {

// The call-outs of a running program: read from the profile file's [Coach]
// section at start, set from the "Call-outs" submenu of the ">" menu, heard
// through the speech engine or the tone, and written back at the program's
// end when the coach changed them. Lives as long as the program's window.
class QtCallOuts {
public:
    explicit QtCallOuts(view::BrelkApp& app);

private:
    void change(const Choices& c);

    extras::CoachSection section_;
    QtVoice voice_;
    CallOuts callOuts_;
};

}  // namespace brelk::callouts::qt
