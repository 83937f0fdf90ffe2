#pragma once

namespace brelk {

class Control;
class Dialogs;

// The colour mode of a common dialog control: shows the colour dialog
// titled by its DialogTitle, starting on its Color. A choice goes into
// Color. Cancel raises run-time error 32755 when CancelError is set, and
// otherwise leaves Color as it was.
void ShowColor(Control& dialog, Dialogs& dialogs);

}  // namespace brelk
