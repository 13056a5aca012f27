#include "src/base/read_double.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <string>
#include <string_view>
#include <system_error>

namespace orvane {

#if defined(__cpp_lib_to_chars) || defined(__GLIBCXX__)

std::from_chars_result ReadDouble(const char* first, const char* last, double& value) {
  return std::from_chars(first, last, value);
}

#else

std::from_chars_result ReadDouble(const char* first, const char* last, double& value) {
  // Beyond what is asked for strtod takes leading blanks, a plus sign, and numbers to the base
  // of 16.
  const auto is_beyond = [](char letter) { return letter == 'x' || letter == 'X'; };
  const std::string text(first, std::find_if(first, last, is_beyond));
  const bool begins_beyond =
      !text.empty() && (text[0] == '+' || std::isspace(static_cast<unsigned char>(text[0])) != 0);
  char* end = nullptr;
  const double found = std::strtod(text.c_str(), &end);
  if (begins_beyond || end == text.c_str()) return {first, std::errc::invalid_argument};
  const char* stop = first + (end - text.c_str());
  const std::string_view number(text.c_str(), static_cast<size_t>(end - text.c_str()));
  const std::string_view digits = number.substr(0, number.find_first_of("eE"));
  const bool is_too_small = found == 0 && digits.find_first_of("123456789") != digits.npos;
  const bool is_too_large = std::isinf(found) && number.find_first_of("iI") == number.npos;
  if (is_too_large || is_too_small) return {stop, std::errc::result_out_of_range};
  value = found;
  return {stop, std::errc()};
}

#endif

}  // namespace orvane
