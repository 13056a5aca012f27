#include "src/base/decimal.h"

#include <algorithm>
#include <limits>
#include <locale>
#include <sstream>
#include <string>

namespace orvane {
namespace {

// Takes the digits off the front and says how many they were.
size_t TakeDigits(std::string_view& text) {
  const size_t digits = std::min(text.find_first_not_of("0123456789"), text.size());
  text.remove_prefix(digits);
  return digits;
}

// Takes the character off the front if it is one of those given.
bool TakeOneOf(std::string_view& text, std::string_view wanted) {
  if (text.empty() || wanted.find(text.front()) == std::string_view::npos) return false;
  text.remove_prefix(1);
  return true;
}

bool IsDecimal(std::string_view text) {
  TakeOneOf(text, "-");
  size_t digits = TakeDigits(text);
  if (TakeOneOf(text, ".")) digits += TakeDigits(text);
  if (digits == 0) return false;
  if (!TakeOneOf(text, "eE")) return text.empty();
  TakeOneOf(text, "+-");
  return TakeDigits(text) > 0 && text.empty();
}

// The value of up to 15 digits, which a double holds exactly.
std::optional<double> ReadShortWhole(std::string_view text) {
  constexpr size_t most = 15;
  std::string_view rest = text;
  if (text.empty() || text.size() > most || TakeDigits(rest) < text.size()) return std::nullopt;
  double number = 0;
  for (const char digit : text) number = number * 10 + (digit - '0');
  return number;
}

}  // namespace

std::optional<double> ReadDecimal(std::string_view text) {
  // Making a stream takes far longer than reading a tile's code.
  if (const std::optional<double> whole = ReadShortWhole(text)) return whole;
  if (!IsDecimal(text)) return std::nullopt;
  std::istringstream stream{std::string(text)};
  stream.imbue(std::locale::classic());
  double number = 0;
  stream >> number;
  // Libraries differ in what they give for a number that is too large.
  constexpr double largest = std::numeric_limits<double>::max();
  return std::clamp(number, -largest, largest);
}

}  // namespace orvane
