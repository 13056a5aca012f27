#include "tools/items/cp932.h"

#include <iconv.h>

#include <stdexcept>

namespace orvane::items {

std::string Cp932Of(std::string_view utf8) {
  const iconv_t converter = iconv_open("CP932", "UTF-8");
  if (converter == reinterpret_cast<iconv_t>(-1)) {
    throw std::runtime_error("this system cannot write CP932");
  }
  std::string input(utf8);
  std::string output(utf8.size() * 2, '\0');
  char* from = input.data();
  char* to = output.data();
  size_t from_left = input.size();
  size_t to_left = output.size();
  const size_t result = iconv(converter, &from, &from_left, &to, &to_left);
  iconv_close(converter);
  if (result == static_cast<size_t>(-1)) {
    throw std::runtime_error("CP932 cannot hold \"" + std::string(utf8) + "\"");
  }
  output.resize(output.size() - to_left);
  return output;
}

}  // namespace orvane::items
