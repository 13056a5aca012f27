// The pieces as they were rendered ahead, in the program itself.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace orvane {

// The Ogg Vorbis file of a piece by its name, "Round1"; empty for an unknown one.
std::span<const std::uint8_t> FindRecording(std::string_view name);

}  // namespace orvane
