#include "src/frontend/web/mirror/json.h"

#include <algorithm>
#include <cmath>

namespace orvane {

void Json::Add(std::string_view name, double value) {
  constexpr double farthest = 30000;
  constexpr double parts = 1000;
  const double kept = std::isnan(value) ? farthest : std::clamp(value, -farthest, farthest);
  const auto thousandths = std::lround(kept * parts);
  Name(name);
  if (thousandths % 1000 == 0) {
    out_ += std::to_string(thousandths / 1000);
  } else {
    out_ += std::to_string(static_cast<double>(thousandths) / parts);
  }
}

void Json::Quote(std::string_view text) {
  constexpr char digits[] = "0123456789abcdef";
  out_ += '"';
  for (const char sign : text) {
    const auto code = static_cast<unsigned char>(sign);
    if (sign == '"' || sign == '\\') {
      out_ += '\\';
      out_ += sign;
    } else if (code < 0x20) {
      out_ += "\\u00";
      out_ += digits[code >> 4];
      out_ += digits[code & 15];
    } else {
      out_ += sign;
    }
  }
  out_ += '"';
}

}  // namespace orvane
