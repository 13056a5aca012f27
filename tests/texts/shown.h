// What a play has shown, as the script player writes it to the file that ORVANE_SHOWN names.
#pragma once

#include <string>
#include <vector>

#include "src/ui/control.h"
#include "src/ui/stage.h"

namespace orvane::test {

struct ShownText {
  std::string Where;  // "Battle.Command1", "Battle", "box", "box title"
  std::string Text;
};

// All of them, from the file that ORVANE_SHOWN names.
std::vector<ShownText> ReadShown();

// The control that has shown a text, or null where none has.
const Control* ControlOf(const Stage& stage, const ShownText& shown);

}  // namespace orvane::test
