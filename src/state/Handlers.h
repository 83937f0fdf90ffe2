#pragma once

namespace brelk {

class Program;

// Each part of the program connects its event handlers to the main window.
void registerRowHandlers(Program& p);        // item rows: mouse, countdown, blink, flash
void registerClockHandlers(Program& p);      // match clock and tune panel
void registerMapHandlers(Program& p);        // map loading
void registerLifecycleHandlers(Program& p);  // window start and end, main menu

}  // namespace brelk
