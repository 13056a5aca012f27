// From the program's start to the title.
#pragma once

namespace orvane {

struct Game;

// What Main does when it comes into being. Throws RunError(File) without a complete item file.
void StartUp(Game& game);

}  // namespace orvane
