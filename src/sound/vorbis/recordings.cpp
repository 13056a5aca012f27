#include "src/sound/vorbis/recordings.h"

// What the build makes of the rendered files: their names and bytes, and a last one without a name.
struct OrvaneRecording {
  const char* Name;
  const std::uint8_t* Begin;
  const std::uint8_t* End;
};
extern "C" const OrvaneRecording kOrvaneRecordings[];

namespace orvane {

std::span<const std::uint8_t> FindRecording(std::string_view name) {
  for (const auto* recording = kOrvaneRecordings; recording->Name != nullptr; ++recording) {
    if (recording->Name == name) return {recording->Begin, recording->End};
  }
  return {};
}

}  // namespace orvane
