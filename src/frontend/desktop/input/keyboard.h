// What the toolkit and the window system know of the keyboard.
#pragma once

#include <bitset>
#include <optional>

#include "src/game/program.h"

namespace orvane {

// The arrow key of a toolkit's key code.
std::optional<Key> ArrowKey(int key);

// Whether the menu bar has the keyboard, though no menu is open.
bool MenuBarHasKeys();

// One bit for each key, by the number that key events carry.
using KeyCodes = std::bitset<256>;

// The keys that are held down at this moment, whichever window has the keyboard. Nothing where the
// window system does not tell.
std::optional<KeyCodes> AskKeyboard();

}  // namespace orvane
