// What a script did wrong, or what it expected in vain.
#pragma once

#include <exception>
#include <string>
#include <utility>

namespace orvane {

// Ends the test that runs. The text says what was expected and what was found.
class ScriptError : public std::exception {
 public:
  // An error that still lacks its place, "FILE:LINE: ", which the call that meets it adds.
  explicit ScriptError(std::string text) : Text(std::move(text)) {}
  ScriptError(const std::string& expected, const std::string& found)
      : Text("expected " + expected + ", found " + found) {}
  const char* what() const noexcept override { return Text.c_str(); }

  // An error whose text begins with its place.
  static ScriptError At(std::string text) {
    ScriptError error(std::move(text));
    error.HasPlace = true;
    return error;
  }

  std::string Text;
  bool HasPlace = false;
};

}  // namespace orvane
