// Text is UTF-8 inside the program; these routines count it in characters.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// The characters of a UTF-8 text, each as its bytes; a broken byte counts as one character.
std::vector<std::string_view> Characters(std::string_view text);

// How many characters a text has.
int CharCount(std::string_view text);

// The first `count` characters, or all of them if there are fewer.
std::string LeftChars(std::string_view text, int count);

// The text without the blanks (0x20) at both ends.
std::string Trim(std::string_view text);

// The text with A to Z turned into a to z.
std::string LowerCase(std::string_view text);

// The text cut at, or padded with blanks to, exactly `count` characters.
std::string PadChars(std::string_view text, int count);

// Text of exactly N characters: what is assigned is cut or padded with blanks.
template <int N>
class FixedText {
 public:
  static constexpr int Width = N;

  FixedText() : text_(PadChars("", N)) {}
  FixedText(std::string_view text) : text_(PadChars(text, N)) {}  // NOLINT: reads as an assignment
  FixedText(const char* text) : text_(PadChars(text, N)) {}       // NOLINT: reads as an assignment
  FixedText(const std::string& text)
      : text_(PadChars(text, N)) {}  // NOLINT: reads as an assignment

  // All N characters, blanks included.
  const std::string& Full() const { return text_; }
  std::string Trimmed() const { return Trim(text_); }

 private:
  std::string text_;
};

}  // namespace orvane
