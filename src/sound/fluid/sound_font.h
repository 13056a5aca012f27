// Where the instruments come from.
#pragma once

#include <filesystem>
#include <span>
#include <string>

namespace orvane {

// The path of the best General MIDI sound font that is installed; empty if there is none.
std::string FindSoundFont();
// The same in these folders: the best one, and of that the one in the first folder.
std::string FindSoundFontIn(std::span<const std::filesystem::path> folders);

}  // namespace orvane
