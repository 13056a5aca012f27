#include "src/platform/system_message.h"

namespace orvane {

std::string SystemMessage(int error) {
  return std::generic_category().message(error);
}

std::string SystemMessage(const std::error_code& error) {
  return error.message();
}

}  // namespace orvane
