#pragma once

#include <string>

namespace brelk {

class Program;

// Adds a category header at the list's cursor.
void AddCategory(Program& p, const std::string& CatName);
// Parses an item line (upper-casing its own copy) and builds its row. Fails
// by raising an error; a seconds text that is no number leaves the row
// half-made, with only its background shown.
void AddItem(Program& p, std::string item);
// Fits the window's width, the top strip and the rows to ShowItemsTimers.
void AjusteLargeur(Program& p);

}  // namespace brelk
