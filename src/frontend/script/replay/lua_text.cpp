#include "src/frontend/script/replay/lua_text.h"

#include <array>
#include <cstdio>

namespace orvane {

std::string LuaText(std::string_view text) {
  std::string quoted = "\"";
  for (const char letter : text) {
    const auto byte = static_cast<unsigned char>(letter);
    if (byte < ' ' || byte > '~') {
      std::array<char, 8> digits{};
      std::snprintf(digits.data(), digits.size(), "\\%03u", unsigned{byte});
      quoted += digits.data();
    } else {
      if (letter == '"' || letter == '\\') quoted += '\\';
      quoted += letter;
    }
  }
  return quoted + '"';
}

std::string LuaNumber(double number) {
  std::array<char, 40> digits{};
  std::snprintf(digits.data(), digits.size(), "%.17g", number);
  return digits.data();
}

}  // namespace orvane
