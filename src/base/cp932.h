// CP932, the Shift-JIS of the item file and the save files, to UTF-8 and back.
#pragma once

#include <string>
#include <string_view>

namespace orvane {

// The bytes of a UTF-8 text; a character that CP932 lacks becomes "？".
std::string ToCp932(std::string_view utf8);

// The UTF-8 text of CP932 bytes; a byte or pair that stands for nothing becomes "？", a zero byte a
// blank.
std::string FromCp932(std::string_view bytes);

// A text as a field of exactly `width` bytes: cut at a whole character, padded with blanks.
std::string Cp932Field(std::string_view utf8, int width);

}  // namespace orvane
