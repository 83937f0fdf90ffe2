#pragma once

#include <string>

namespace brelk {

class Program;

// The web site of the program's makers.
inline constexpr const char* kWebHost = "www.railhold-crew.net";

// The program's own page on that site.
std::string webPageAddress();

// Shows the page at URL in the user's web browser, through the desktop's own
// way of opening an address; no command line is ever made of it. When the
// desktop can start nothing to show it, a message gives the address so that
// it can be typed in by hand. The caller's window stays open either way.
void OpenWebPage(Program& p, const std::string& URL);

}  // namespace brelk
