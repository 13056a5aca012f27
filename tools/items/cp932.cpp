#include "tools/items/cp932.h"

#include <stdexcept>

#include "src/base/cp932.h"

namespace orvane::items {

std::string Cp932Of(std::string_view utf8) {
  // The game's own conversion puts a "？" for what CP932 lacks; a name must survive whole.
  std::string bytes = ToCp932(utf8);
  if (FromCp932(bytes) != utf8) {
    throw std::runtime_error("CP932 cannot hold \"" + std::string(utf8) + "\"");
  }
  return bytes;
}

}  // namespace orvane::items
