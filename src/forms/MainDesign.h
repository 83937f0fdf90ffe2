#pragma once

namespace brelk {

class MainForm;

// The main window as designed: the map name and its shadow, the menu button,
// the match clock and its status, the tune panel, the catalogue pictures,
// the row prototypes beyond the window's right edge, the open dialog and the
// two popup menus.
void designMainForm(MainForm& f);

}  // namespace brelk
