#include "src/base/text.h"

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

// Takes the first character off a text that is not empty; a broken byte counts as one.
std::string_view TakeCharacter(std::string_view& text) {
  const size_t length = SequenceLength(static_cast<unsigned char>(text.front()));
  size_t end = 1;
  while (end < text.size() && end < length && IsContinuation(text[end])) ++end;
  if (end != length) end = 1;
  const std::string_view character = text.substr(0, end);
  text.remove_prefix(end);
  return character;
}

}  // namespace

std::vector<std::string_view> Characters(std::string_view text) {
  std::vector<std::string_view> characters;
  while (!text.empty()) characters.push_back(TakeCharacter(text));
  return characters;
}

int CharCount(std::string_view text) {
  int count = 0;
  for (; !text.empty(); ++count) TakeCharacter(text);
  return count;
}

std::string LeftChars(std::string_view text, int count) {
  std::string_view rest = text;
  for (; count > 0 && !rest.empty(); --count) TakeCharacter(rest);
  return std::string(text.substr(0, text.size() - rest.size()));
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
