#pragma once

namespace brelk {

class Program;

// "About Brelk" in the main menu: the About window, modal, made anew, with
// stay-on-top lifted while it is open and applied again after it.
void mnuAbout_Click(Program& p);

}  // namespace brelk
