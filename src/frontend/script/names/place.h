// Where in a script something went wrong.
#pragma once

#include <lua.hpp>
#include <string>

namespace orvane {

// "FILE:LINE: " of the innermost line of a script that runs, with the file's whole path as it was
// given; empty outside any.
std::string PlaceOf(lua_State* lua);

// A message handler for lua_pcall: turns an error of any kind into a text on one line that begins
// with its place.
int PlaceMessage(lua_State* lua);

// A message of the Lua compiler with the shortened name of its source written out.
std::string WithWholeSource(std::string message, const std::string& source);

// The text with its line breaks spelled out.
std::string OnOneLine(const std::string& text);

}  // namespace orvane
