// The instruments that a score may name, with the range that each plays well.
#pragma once

#include <string_view>
#include <vector>

namespace orvane::music {

// A General MIDI instrument; `program` counts from 0, `low` and `high` are sounding MIDI pitches.
struct Instrument {
  std::string_view Name;
  int Program;
  int Low;
  int High;
  bool Drums = false;
};

// Every instrument of the table, in the order of its programs; the drum kits come last.
const std::vector<Instrument>& Instruments();

// The instrument of this name, or nullptr.
const Instrument* FindInstrument(std::string_view name);

// The instrument that plays a program (on the drum channel: a kit), or nullptr.
const Instrument* FindProgram(int program, bool drums);

// The key of a drum by its name in a grid, such as "kick" or "hat"; -1 for no drum.
int FindDrum(std::string_view name);

}  // namespace orvane::music
