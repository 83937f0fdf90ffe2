#pragma once

#include <memory>

namespace brelk {

class Form;
class Program;

namespace options {

// Places the window beside the main window and fills it from the live
// settings, without any handler of the rows running.
void Form_Load(Program& p);
// Shows the live settings in the window's controls. Once the window is
// filled, a Yes/No row that changes runs its handler as a click would.
void UpdateForm(Program& p);

// A fresh options window, laid out as designed, every event connected.
std::unique_ptr<Form> makeOptionsForm(Program& p);

}  // namespace options
}  // namespace brelk
