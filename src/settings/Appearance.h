#pragma once

namespace brelk {

class Program;

// Carry the live settings onto the main window, over what it shows now.
void ChangeFormColor(Program& p);
void ChangeListColor(Program& p);
void ItemBackground(Program& p, bool test);
void ChangeMapNameColor(Program& p);
void ChangeTimerColor(Program& p);
void ChangeCategoryColor(Program& p);
void ChangeGlobalTimerColor(Program& p);

}  // namespace brelk
