// CP932 both ways, of any bytes.
#include "src/base/cp932.h"

#include "src/base/text.h"
#include "tests/fuzz/harness.h"

namespace orvane::fuzz {
namespace {

// How many bytes a character of UTF-8 has by its first; 0 for what begins none.
size_t LengthOf(unsigned char first) {
  if (first < 0x80) return 1;
  if (first >= 0xc2 && first < 0xe0) return 2;
  if (first >= 0xe0 && first < 0xf0) return 3;
  if (first >= 0xf0 && first < 0xf5) return 4;
  return 0;
}

bool IsUtf8(std::string_view text) {
  while (!text.empty()) {
    const size_t length = LengthOf(static_cast<unsigned char>(text.front()));
    if (length == 0 || length > text.size()) return false;
    for (size_t i = 1; i < length; ++i) {
      if ((static_cast<unsigned char>(text[i]) & 0xc0U) != 0x80U) return false;
    }
    text.remove_prefix(length);
  }
  return true;
}

}  // namespace

void Try(Input& input) {
  const int width = input.Below(64);
  const std::string bytes = input.Rest();
  const std::string read = FromCp932(bytes);
  Require(IsUtf8(read), "what is read is UTF-8");
  Require(FromCp932(ToCp932(read)) == read, "what is read comes back the same");
  const std::string written = ToCp932(bytes);
  Require(ToCp932(FromCp932(written)) == written || bytes.find('\0') != std::string::npos,
          "what is written comes back the same, but for zeros");
  Require(Cp932Field(bytes, width).size() == static_cast<size_t>(width), "a field has its width");
  Require(Cp932Field(read, width).size() == static_cast<size_t>(width), "a field has its width");
  Require(CharCount(PadChars(bytes, width)) == width, "a text is cut by characters");
  Require(CharCount(bytes) <= static_cast<int>(bytes.size()), "a character has a byte at least");
  Require(Trim(bytes).size() <= bytes.size(), "trimming adds nothing");
}

}  // namespace orvane::fuzz
