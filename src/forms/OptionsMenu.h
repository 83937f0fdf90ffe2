#pragma once

namespace brelk {

class Program;

// "Options ...": the options window, modal, over the main window, which
// takes the stay-on-top state of OnTop once it has closed.
void mnuOptions_Click(Program& p);

}  // namespace brelk
