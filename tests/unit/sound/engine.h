// An engine that plays to the test, and a folder of short pieces and effects.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "src/platform/sound_channels.h"
#include "src/sound/sound_engine.h"
#include "tests/unit/sound/sound_files.h"

namespace orvane::test {

constexpr int kRate = SoundEngine::Rate;

inline SoundOptions ForCaller() {
  SoundOptions options;
  options.Plays = SoundOptions::Sink::Caller;
  return options;
}

class SoundEngineTest : public ::testing::Test {
 protected:
  SoundEngineTest() {
    folder_.Write("Round1.mid", SimpleSong(2));
    folder_.Write("Battle1.mid", SimpleSong(4));
    folder_.Write("Cut.wav", Wave(kRate, 1, Tone(440, kRate, 0.5, 0.5)));
    folder_.Write("Fire.wav", Wave(22050, 2, Tone(440, 22050, 1, 0.5)));
  }

  std::string Open(SoundEngine& engine, const std::string& file, const std::string& alias) {
    return engine.Send(OpenCommand(folder_.Path(), file, alias));
  }

  Folder folder_;
};

inline std::string Status(SoundEngine& engine, const std::string& alias) {
  return engine.Send(StatusCommand(alias));
}

inline std::vector<float> Pull(SoundEngine& engine, double seconds) {
  std::vector<float> out(2 * static_cast<size_t>(seconds * kRate));
  engine.Pull(out.data(), out.size() / 2);
  return out;
}

inline double LevelOf(const std::vector<float>& samples) {
  double sum = 0;
  for (const float sample : samples) sum += static_cast<double>(sample) * sample;
  return std::sqrt(sum / static_cast<double>(samples.size()));
}

}  // namespace orvane::test
