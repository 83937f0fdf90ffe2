#pragma once

#include "callouts/CallOuts.h"
#include "callouts/qt/QtVoice.h"
#include "seam/CoachSection.h"

namespace brelk::seam::qt {
class Host;
}

namespace brelk::callouts::qt {

// The call-outs of a running program: read from the profile file's [Coach]
// section at start, set from the "Call-outs" submenu of the ">" menu, heard
// through the speech engine or the tone, and written back at the program's
// end when the coach changed them. Lives as long as the program's window.
class QtCallOuts {
public:
    explicit QtCallOuts(seam::qt::Host& host);

private:
    void change(const Choices& c);

    seam::CoachSection section_;
    QtVoice voice_;
    CallOuts callOuts_;
};

}  // namespace brelk::callouts::qt
