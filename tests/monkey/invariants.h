// What holds after every action, whatever was done.
#pragma once

#include <string>

#include "src/game/program.h"

namespace orvane::monkey {

struct Known {
  bool DataIsSound = true;  // the program began with files and numbers in order: more holds then
  bool WalkGoesOn = false;  // behind a battle, where a menu's window that closes lets it go
};

// What does not hold, empty when all does.
std::string Broken(Program& program, const Known& known);

}  // namespace orvane::monkey
