#pragma once

namespace brelk {

class Program;

// Loads a map chosen in the open dialog and rebuilds the list from it.
void mnuLoad_Click(Program& p);
// Removes every row, stops and resets the match clock, and gives the window
// its empty size.
void FormInit(Program& p);

}  // namespace brelk
