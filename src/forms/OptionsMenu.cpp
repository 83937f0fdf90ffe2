#include "forms/OptionsMenu.h"

#include "forms/ModalWindow.h"
#include "options/OptionsWindow.h"
#include "state/Program.h"

namespace brelk {

void mnuOptions_Click(Program& p) { showModalWindow(p, p.frmOptions, options::makeOptionsForm(p)); }

}  // namespace brelk
