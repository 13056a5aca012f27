// The buttons of message boxes.
#pragma once

#include <span>

#include "src/platform/services.h"

namespace orvane {

struct BoxChoice {
  const char* Caption;
  BoxAnswer Answer;
};

// The buttons of a box from left to right: the first is pressed by Enter, the last by Escape and
// when the box is closed.
std::span<const BoxChoice> ChoicesOf(BoxButtons buttons);

}  // namespace orvane
