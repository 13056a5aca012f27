// What a WAV file says of itself.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace orvane {

// The bytes of a WAV file, where no part is said to be longer than what is there. Who reads it
// makes room for what a header says before it looks at the rest. What does not begin as a WAV file
// gives nothing.
std::vector<std::uint8_t> ClipWaveClaims(std::span<const std::uint8_t> file);

}  // namespace orvane
