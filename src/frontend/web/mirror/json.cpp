#include "src/frontend/web/mirror/json.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <system_error>

namespace orvane {

// By far the most of what is written; printing would take several times as long.
void AppendNumber(std::string& out, int value) {
  constexpr size_t most_digits = 24;
  char digits[most_digits];
  const auto [end, failed] = std::to_chars(std::begin(digits), std::end(digits), value);
  if (failed == std::errc()) out.append(digits, static_cast<size_t>(end - digits));
}

void AppendNumber(std::string& out, double value) {
  constexpr double farthest = 30000;
  constexpr int parts = 1000;
  const double kept = std::isnan(value) ? farthest : std::clamp(value, -farthest, farthest);
  const int thousandths = static_cast<int>(std::lround(kept * double{parts}));
  const int fraction = std::abs(thousandths % parts);
  if (thousandths < 0 && thousandths > -parts) out += '-';
  AppendNumber(out, thousandths / parts);
  if (fraction == 0) return;
  out += '.';
  for (int part = parts / 10; part > 0; part /= 10) {
    out += static_cast<char>('0' + fraction / part % 10);
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
