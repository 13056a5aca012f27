// All that is written on a control at a moment.
#pragma once

#include <string>
#include <vector>

#include "src/ui/control.h"

namespace orvane {

// The texts of the game that a control shows: its caption, its rows, its tabs' captions. What the
// player writes and the names of files are none.
std::vector<std::string> TextsOf(const Control& control);

}  // namespace orvane
