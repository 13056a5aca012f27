// Sounds of the game folder as the game plays them, without a device.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace orvane {

// What came of a sound, at SoundEngine::Rate frames a second.
struct Rendering {
  std::int64_t Length = 0;  // frames until the sound has ended and, if it repeats, begins again
  std::int64_t Frames = 0;  // frames that were written: behind its length the last notes ring out
};

// Plays a standard MIDI file or a WAV file from its start until nothing is heard any more, and
// writes that as a WAV file of two channels and 16 bits. To repeat a piece, its next round is laid
// over the ring-out of the one before. The same bytes for the same sound, sound font and
// libraries. Nothing where there is no sound font for a piece, or a file cannot be read or written.
std::optional<Rendering> RenderSound(const std::string& sound, const std::string& wav);

// Writes the line that tells of a sound to other programs: its name without the file's ending, its
// length in ms, its length in frames, and the frames that were written, tabs between them. False if
// that cannot be done.
bool WriteRow(const std::string& sound, const Rendering& rendering, const std::string& row);

}  // namespace orvane
