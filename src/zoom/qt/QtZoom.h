#pragma once

#include "seam/CoachSection.h"
#include "zoom/qt/WindowZoom.h"

namespace brelk::zoom::qt {

// The zoom of a running program: read from the profile file's [Coach]
// section before the main window is placed, set from the "Zoom" submenu of
// the ">" menu and by the keys and wheel of the window, and written back at
// the program's end when the coach changed it. Made before the program
// starts; lives as long as the program's window.
class QtZoom {
public:
    explicit QtZoom(seam::qt::Host& host);

private:
    seam::CoachSection section_;
    WindowZoom zoom_;
};

}  // namespace brelk::zoom::qt
