// Pieces as the game's synthesizer sounds them, without a sound card.
#pragma once

#include <string>
#include <vector>

namespace orvane::music {

// Stereo samples at 44100 Hz.
struct Rendering {
  std::vector<float> Left;
  std::vector<float> Right;
  int Voices = 0;  // the most voices that the synthesizer played at once
};

// The gain that the pieces are balanced for.
constexpr double kRenderGain = 1.2;

// The sound font that the game prefers, or the one it falls back to; empty where neither is.
std::string FindSoundFont();

// Plays a MIDI file from its start to its end, and `tail` seconds on; throws std::runtime_error
// where the synthesizer, the font or the file fails.
Rendering Render(const std::string& midi, const std::string& sound_font, double tail);

}  // namespace orvane::music
