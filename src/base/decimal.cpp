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

}  // namespace

std::optional<double> ReadDecimal(std::string_view text) {
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
