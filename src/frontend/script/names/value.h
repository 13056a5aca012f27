// A value on its way between a script and the program.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <variant>

namespace orvane {

// Nothing, a truth value, a whole number, a floating number, or a text.
using Value = std::variant<std::monostate, bool, int64_t, double, std::string>;

// A value as a failure shows it: 5, 0.25, true, nothing, or a text in quotes on one line.
std::string Describe(const Value& value);

// A text in quotes, control characters and broken bytes spelled out, cut when it is very long.
std::string Quoted(std::string_view text);

// The value as what must stand in a field; any other value throws ScriptError.
int AsInteger(const Value& value, int64_t least, int64_t greatest);
double AsNumber(const Value& value);
bool AsFlag(const Value& value);
const std::string& AsText(const Value& value);

// How a named field is read and written.
struct Accessor {
  std::function<Value()> Read;
  std::function<void(const Value&)> Write;  // empty where it cannot be set
};

}  // namespace orvane
