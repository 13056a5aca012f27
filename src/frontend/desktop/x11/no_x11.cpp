#include "src/frontend/desktop/x11/x11.h"

namespace orvane {

std::optional<KeyCodes> AskKeyboard() {
  return std::nullopt;
}

void LayGround(const QWidget& /*window*/) {}

}  // namespace orvane
