// What a page needs to know of a control, as JSON.
#pragma once

#include <string>

#include "src/frontend/shared/texts/translator.h"
#include "src/ui/controls.h"

namespace orvane {

// The name that the page gives a kind of control, "label"; nothing for what is not seen.
const char* KindName(ControlKind kind);

// Where a control is among the others.
struct Standing {
  int Number = 0;
  int Parent = -1;  // the number of what holds it, or -1
  int Stop = -1;    // its place among those that the keyboard goes to, or -1
};

// Writes what never changes of a control: its kind, name and border, and what screen readers call
// it in the game's own language.
void WriteNature(const Control& control, const Standing& standing, std::string& out);

// Writes what may change, as it is now. Of a control that is not to be seen that is all.
void WriteValues(const Control& control, int id, const Translator& texts, std::string& out);

}  // namespace orvane
