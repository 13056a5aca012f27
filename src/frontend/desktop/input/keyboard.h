// What the toolkit and the window system know of the keyboard.
#pragma once

#include <optional>

#include "src/frontend/shared/held_keys.h"
#include "src/game/program.h"

namespace orvane {

// The arrow key of a toolkit's key code.
std::optional<Key> ArrowKey(int key);

// Whether the menu bar has the keyboard, though no menu is open.
bool MenuBarHasKeys();

// The keys that are held down at this moment, whoever has the keyboard. Nothing where the window
// system does not tell.
std::optional<KeyCodes> AskKeyboard();

}  // namespace orvane
