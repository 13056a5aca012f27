// The buttons of message boxes.
#pragma once

#include <span>

#include "src/ui/box.h"

namespace orvane {

struct BoxChoice {
  const char* Caption;
  BoxAnswer Answer;
};

// The buttons of a box from left to right: the first is pressed by Enter, the last by Escape.
std::span<const BoxChoice> ChoicesOf(BoxButtons buttons);

}  // namespace orvane
