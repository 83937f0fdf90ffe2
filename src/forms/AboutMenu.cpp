#include "forms/AboutMenu.h"

#include "about/AboutForm.h"
#include "forms/ModalWindow.h"
#include "state/Program.h"

namespace brelk {

void mnuAbout_Click(Program& p) { showModalWindow(p, p.frmAbout, makeAboutForm(p)); }

}  // namespace brelk
