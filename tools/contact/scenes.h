// Figures and effects in the places where the game shows them.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "src/ui/surface.h"

namespace orvane::contact {

// All sheets by their names.
using Sheets = std::map<std::string, Surface>;

// A battle's ground ("ground_open" for example) shrunk to the scene, 432 by 264.
Surface Ground(const Sheets& sheets, const std::string& ground);

// Both heroes at rest, or in the frame 0 to 2 of a step forward.
void PutHeroes(Surface& scene, const Sheets& sheets);
void PutSteppingHeroes(Surface& scene, const Sheets& sheets, int frame);

// Enemy row 0 to 18: an ordinary one in all four slots, a big one in its place.
void PutEnemies(Surface& scene, const Sheets& sheets, int row);

// Two rows of four effects, `row` of the sheet, each enlarged to `size` pixels.
void PutEffects(Surface& scene, const Sheets& sheets, int row, int size);

// All twelve cells of a hero on a ground of the tiles named, which are repeated.
Surface HeroOnTiles(const Sheets& sheets, const std::string& hero, const std::vector<int>& codes);

}  // namespace orvane::contact
