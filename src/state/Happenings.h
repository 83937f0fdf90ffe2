#pragma once

#include <cstdint>
#include <string>

#include "seam/events/MatchEvent.h"

namespace brelk {

class Program;

// How the designed procedures tell what happens: one line each, at the
// moment it has happened. Nothing is built when nobody listens, and telling
// changes nothing in the program.

// A happening of the match, or of row `row`.
void tell(Program& p, seam::Happening what, std::int16_t row = 0);
// A happening that only words describe (a file not saved).
void tellWords(Program& p, seam::Happening what, std::string words);

// The outline of the map being loaded: begun once the old rows are gone,
// filled as the lines make categories and rows, told when the load ends.
void beginMapOutline(Program& p);
void noteCategory(Program& p, const std::string& name);
void noteRow(Program& p, std::int16_t index, const std::string& title, const std::string& text,
             const std::string& icon, double respawnSeconds);
// Tells MapLoaded, once, if a load begun an outline since the last one told.
void tellMapLoaded(Program& p);

}  // namespace brelk
