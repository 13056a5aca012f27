// Names as the record file holds them.
#pragma once

#include <string>
#include <string_view>

namespace orvane::items {

// The CP932 bytes of a UTF-8 text; throws std::runtime_error on a character that CP932 lacks.
std::string Cp932Of(std::string_view utf8);

}  // namespace orvane::items
