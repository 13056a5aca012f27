#include "src/frontend/script/names/place.h"

#include <algorithm>
#include <cctype>
#include <string_view>

namespace orvane {
namespace {

bool IsDigit(char letter) {
  return std::isdigit(static_cast<unsigned char>(letter)) != 0;
}

// Whether a message begins with a place, "name:12: ".
bool BeginsWithPlace(std::string_view message) {
  for (size_t at = message.find(':'); at != std::string_view::npos;
       at = message.find(':', at + 1)) {
    size_t end = at + 1;
    while (end < message.size() && IsDigit(message[end])) ++end;
    if (end > at + 1 && message.substr(end, 2) == ": ") return true;
  }
  return false;
}

// The innermost line of a script, from this level of the stack on.
bool FindLine(lua_State* lua, lua_Debug& found) {
  for (int level = 0; lua_getstack(lua, level, &found) != 0; ++level) {
    lua_getinfo(lua, "Sl", &found);
    if (found.currentline > 0) return true;
  }
  return false;
}

std::string SourceName(const lua_Debug& line) {
  return line.source[0] == '@' ? line.source + 1 : line.short_src;
}

// Lua shortens a long source to "...end of its name" in its own messages; here it is whole again.
std::string WithWholeSources(lua_State* lua, std::string message) {
  lua_Debug line{};
  for (int level = 0; lua_getstack(lua, level, &line) != 0; ++level) {
    lua_getinfo(lua, "S", &line);
    if (line.source[0] == '@') message = WithWholeSource(std::move(message), line.source + 1);
  }
  return message;
}

}  // namespace

std::string PlaceOf(lua_State* lua) {
  lua_Debug line{};
  if (!FindLine(lua, line)) return "";
  return SourceName(line) + ":" + std::to_string(line.currentline) + ": ";
}

int PlaceMessage(lua_State* lua) {
  luaL_tolstring(lua, 1, nullptr);  // may raise an error itself, so before anything is made
  size_t length = 0;
  const char* text = lua_tolstring(lua, -1, &length);
  std::string message(text, length);
  message = OnOneLine(WithWholeSources(lua, std::move(message)));
  if (!BeginsWithPlace(message)) message = PlaceOf(lua) + message;
  lua_pushlstring(lua, message.data(), message.size());
  return 1;
}

std::string WithWholeSource(std::string message, const std::string& source) {
  constexpr std::string_view dots = "...";
  if (message.compare(0, dots.size(), dots) != 0) return message;
  const size_t colon = message.find(':');
  if (colon == std::string::npos) return message;
  const std::string end = message.substr(dots.size(), colon - dots.size());
  const bool matches = source.size() > end.size() &&
                       source.compare(source.size() - end.size(), end.size(), end) == 0;
  return matches ? source + message.substr(colon) : message;
}

std::string OnOneLine(const std::string& text) {
  std::string line;
  for (const char letter : text)
    line += letter == '\n' ? std::string("\\n") : std::string(1, letter);
  return line;
}

}  // namespace orvane
