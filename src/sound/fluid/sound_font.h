// Where the instruments come from.
#pragma once

#include <string>

namespace orvane {

// The path of the best General MIDI sound font that is installed; empty if there is none.
std::string FindSoundFont();

}  // namespace orvane
