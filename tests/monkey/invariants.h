// What holds after every action, whatever was done.
#pragma once

#include <string>

#include "src/game/program.h"

namespace orvane::monkey {

// What does not hold, empty when all does. `sound_data` says that the program began with files and
// numbers that are in order: more holds then.
std::string Broken(Program& program, bool sound_data);

}  // namespace orvane::monkey
