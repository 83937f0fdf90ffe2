#pragma once

#include <memory>

#include "view/window/FormView.h"

namespace brelk::view {

// The main form's window: no frame of the window system but one drawn by
// the window itself, no task-bar entry, and the program's own icon.
std::unique_ptr<FormView> createMainWindow(Form& frmMain, Guard guard);

}  // namespace brelk::view
