#pragma once

#include <memory>

namespace brelk {

class Form;
class Program;

// Opens a window of the program modally over the main window: stay-on-top is
// lifted while it is open, the form is loaded into `slot`, and the call
// returns once the form has been unloaded, the form gone. Then the main
// window takes the stay-on-top state that OnTop holds now, which the window
// may have changed.
void showModalWindow(Program& p, std::unique_ptr<Form>& slot, std::unique_ptr<Form> form);

}  // namespace brelk
