#include "src/frontend/script/names/value.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <optional>

#include "src/base/text.h"
#include "src/frontend/script/run/script_error.h"

namespace orvane {
namespace {

constexpr size_t kLongestShown = 200;  // bytes of a text that a failure shows

std::string Spelled(unsigned char byte) {
  std::array<char, 8> buffer{};
  std::snprintf(buffer.data(), buffer.size(), "\\x%02X", byte);
  return buffer.data();
}

// One character of a text as it may stand in a line.
std::string Shown(std::string_view character) {
  const auto first = static_cast<unsigned char>(character[0]);
  if (character == "\n") return "\\n";
  if (character == "\"") return "\\\"";
  if (character == "\\") return "\\\\";
  const bool broken = character.size() == 1 && first >= 0x80;
  return first < 0x20 || first == 0x7F || broken ? Spelled(first) : std::string(character);
}

std::string ShownNumber(double number) {
  std::array<char, 40> buffer{};
  std::snprintf(buffer.data(), buffer.size(), "%.14g", number);
  return buffer.data();
}

// The whole number that a value is, also when it came as 3.0.
std::optional<int64_t> WholeNumber(const Value& value) {
  if (const auto* whole = std::get_if<int64_t>(&value)) return *whole;
  const auto* number = std::get_if<double>(&value);
  if (number == nullptr || std::floor(*number) != *number || std::abs(*number) > 1e15) return {};
  return static_cast<int64_t>(*number);
}

}  // namespace

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const std::string_view character : Characters(text.substr(0, kLongestShown))) {
    quoted += Shown(character);
  }
  quoted += '"';
  if (text.size() > kLongestShown) quoted += "... (" + std::to_string(text.size()) + " bytes)";
  return quoted;
}

std::string Describe(const Value& value) {
  if (const auto* flag = std::get_if<bool>(&value)) return *flag ? "true" : "false";
  if (const auto* whole = std::get_if<int64_t>(&value)) return std::to_string(*whole);
  if (const auto* number = std::get_if<double>(&value)) return ShownNumber(*number);
  if (const auto* text = std::get_if<std::string>(&value)) return Quoted(*text);
  return "nil";
}

int AsInteger(const Value& value, int64_t least, int64_t greatest) {
  const std::optional<int64_t> whole = WholeNumber(value);
  if (!whole || *whole < least || *whole > greatest) {
    throw ScriptError(
        "a whole number from " + std::to_string(least) + " to " + std::to_string(greatest),
        Describe(value));
  }
  return static_cast<int>(*whole);
}

double AsNumber(const Value& value) {
  if (const auto* whole = std::get_if<int64_t>(&value)) return static_cast<double>(*whole);
  const auto* number = std::get_if<double>(&value);
  if (number == nullptr || !std::isfinite(*number)) throw ScriptError("a number", Describe(value));
  return *number;
}

bool AsFlag(const Value& value) {
  const auto* flag = std::get_if<bool>(&value);
  if (flag == nullptr) throw ScriptError("true or false", Describe(value));
  return *flag;
}

const std::string& AsText(const Value& value) {
  const auto* text = std::get_if<std::string>(&value);
  if (text == nullptr) throw ScriptError("a text", Describe(value));
  return *text;
}

}  // namespace orvane
