#include "src/platform/text.h"

#include <algorithm>

namespace orvane {
namespace {

// Length in bytes of the character that starts with this byte.
size_t SequenceLength(unsigned char first) {
  if (first < 0xC0) return 1;
  if (first < 0xE0) return 2;
  if (first < 0xF0) return 3;
  return 4;
}

bool IsContinuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

}  // namespace

std::vector<std::string_view> Characters(std::string_view text) {
  std::vector<std::string_view> characters;
  size_t at = 0;
  while (at < text.size()) {
    const size_t length = SequenceLength(static_cast<unsigned char>(text[at]));
    size_t end = at + 1;
    while (end < text.size() && end < at + length && IsContinuation(text[end])) ++end;
    if (end != at + length) end = at + 1;
    characters.push_back(text.substr(at, end - at));
    at = end;
  }
  return characters;
}

int CharCount(std::string_view text) {
  return static_cast<int>(Characters(text).size());
}

std::string LeftChars(std::string_view text, int count) {
  std::string left;
  for (const std::string_view character : Characters(text)) {
    if (count-- <= 0) break;
    left += character;
  }
  return left;
}

std::string Trim(std::string_view text) {
  const size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return "";
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string LowerCase(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), [](char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
  });
  return lower;
}

std::string PadChars(std::string_view text, int count) {
  std::string padded = LeftChars(text, count);
  const int missing = count - CharCount(padded);
  padded.append(static_cast<size_t>(std::max(0, missing)), ' ');
  return padded;
}

}  // namespace orvane
