#pragma once

namespace brelk {

class Program;

// Carry the live settings onto the window's background, the row strips, the
// category headers and the map name, over what they show now.
void ChangeFormColor(Program& p);
void ChangeListColor(Program& p);
void ItemBackground(Program& p, bool test);
void ChangeCategoryColor(Program& p);
void ChangeMapNameColor(Program& p);

}  // namespace brelk
