// The field's frame: one tick of Main's WalkTimer.
#pragma once

namespace orvane {

struct Game;

// Keeps the music going, repaints the map, moves the party one step and shows the frame.
void FieldTick(Game& game);

// Repaints the whole map on Main's FieldPicture. Code 0 and codes above 240 leave their cells as
// they are.
void DrawMap(Game& game);

}  // namespace orvane
