#pragma once

namespace brelk {

class AboutForm;
class Program;

// The About window's procedures and handlers. The window is open while they
// run: it is the one in the program's frmAbout.
namespace about {

AboutForm& frmAbout(Program& p);

// Fills the texts from the version and the usage counters, panel closed.
void Form_Load(Program& p);
// Closes the window.
void cmdOK_Click(Program& p);
// Opens or closes the thanks panel, then gives the focus back to "OK".
void cmdThx_Click(Program& p);
// Opens the panel and starts the roll from the bottom.
void StartScroll(Program& p);
// Closes the panel and stops the roll, the text back at its start.
void StopScroll(Program& p);
// One step of the roll; at its end the panel closes by itself.
void timerThx_Timer(Program& p);
// The link and the icon both open the program's web page.
void Label2_Click(Program& p);
void picIcon_Click(Program& p);
// The link lights up under the pointer and goes out over the bare window.
void Label2_MouseMove(Program& p);
void Form_MouseMove(Program& p);

}  // namespace about
}  // namespace brelk
