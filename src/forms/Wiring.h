#pragma once

namespace brelk {

class Program;

// Connects the main window's events to the procedures that handle them.
void wireMainForm(Program& p);

}  // namespace brelk
