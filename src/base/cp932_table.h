// The double-byte characters of CP932.
#pragma once

#include <array>

namespace orvane {

// The characters of one lead byte, for the trail bytes 0x40 to 0x7E and 0x80 to 0xFC in order;
// U+FFFD where there is none.
struct Cp932Row {
  unsigned char Lead;
  const char16_t* Characters;
};

extern const std::array<Cp932Row, 45> kCp932Rows;

}  // namespace orvane
