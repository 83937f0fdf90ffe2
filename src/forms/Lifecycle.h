#pragma once

namespace brelk {

class Program;

// The main window's start: position, stay-on-top and usage counters from the
// profile file, the start counted on disk, the settings read and applied,
// and the empty list.
void Form_Load(Program& p);
// The end: settings and counters stored, then the program stops.
void Form_Unload(Program& p);
void mnuExit_Click(Program& p);
// The "Coach" menu, popped up from the ">" button.
void cmdPopup_Click(Program& p);
// Applies the stay-on-top state to the main window.
void AlwaysOnTop(Program& p, int Top);
void SetWindowTopmost(Program& p, int topmost);

}  // namespace brelk
