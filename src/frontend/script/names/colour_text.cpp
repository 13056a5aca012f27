#include "src/frontend/script/names/colour_text.h"

#include <array>
#include <charconv>
#include <cstdio>

#include "src/frontend/script/names/value.h"
#include "src/frontend/script/run/script_error.h"

namespace orvane {

std::string ColourText(Colour colour) {
  std::array<char, 16> buffer{};
  std::snprintf(buffer.data(), buffer.size(), "%06X", static_cast<unsigned>(colour & 0xFFFFFF));
  return buffer.data();
}

Colour ParseColour(std::string_view text) {
  constexpr size_t digits = 6;
  constexpr int hexadecimal = 16;
  Colour colour = 0;
  const char* end = text.data() + text.size();
  const auto [stop, failed] = std::from_chars(text.data(), end, colour, hexadecimal);
  if (text.size() != digits || failed != std::errc() || stop != end) {
    throw ScriptError("a colour, \"RRGGBB\"", Quoted(text));
  }
  return colour;
}

}  // namespace orvane
