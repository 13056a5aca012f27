// What the toolkit knows of the keyboard.
#pragma once

#include <optional>

#include "src/game/program.h"

namespace orvane {

// The arrow key of a toolkit's key code.
std::optional<Direction> ArrowKey(int key);

// Whether the menu bar has the keyboard, though no menu is open.
bool MenuBarHasKeys();

}  // namespace orvane
