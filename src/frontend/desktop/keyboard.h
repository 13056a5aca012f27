// What the window system knows of the keyboard.
#pragma once

#include <cstdint>
#include <optional>

namespace orvane {

// Whether a key is held down at this moment, whoever has the keyboard; `native_code` is the number
// that key events carry. Nothing where the window system does not tell.
std::optional<bool> IsKeyDown(uint32_t native_code);

}  // namespace orvane
