#include "tools/render/rendering.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <memory>
#include <span>
#include <vector>

#include "src/platform/path_text.h"
#include "src/platform/sound_channels.h"
#include "src/platform/whole_file.h"
#include "src/sound/clip.h"
#include "src/sound/fluid/sound_font.h"
#include "src/sound/limiter.h"
#include "src/sound/recorder.h"
#include "src/sound/song.h"
#include "src/sound/sound_engine.h"

namespace orvane {
namespace {

// How much longer than its length a sound is listened to: by then the engine's synthesizer rests.
constexpr std::int64_t kMostRing = std::int64_t{10} * SoundEngine::Rate;
// What is softer than this, one step of 16 bits and a half, is not heard.
constexpr float kSilence = 1.5F / 32768;
constexpr size_t kChannels = 2;

// The frames until a sound has ended; nothing if the file is no sound.
std::optional<std::int64_t> LengthOf(const std::string& sound) {
  const std::string bytes = ReadWholeFile(PathOf(sound)).value_or("");
  const std::span file(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  if (const std::optional<Song> song = ReadSong(file)) {
    if (FindSoundFont().empty()) return std::nullopt;
    return std::llround(song->Seconds * SoundEngine::Rate);
  }
  const std::shared_ptr<const Clip> clip = ReadClip(file, SoundEngine::Rate);
  if (!clip) return std::nullopt;
  return static_cast<std::int64_t>(clip->Frames());
}

// Plays a sound on a channel that nothing else is on, from its first frame until all is silent.
std::vector<float> Play(const std::string& sound, std::int64_t length) {
  SoundOptions options;
  options.Plays = SoundOptions::Sink::Caller;
  SoundEngine engine(options);
  const std::string alias = kEndingMusic;
  engine.Send("open \"" + sound + "\" alias " + alias);
  engine.WaitUntilReady();
  engine.Send(PlayCommand(alias));
  // The engine looks a block ahead, so its first block is none of the sound's.
  std::vector<float> samples(kChannels * kBlockFrames);
  engine.Pull(samples.data(), kBlockFrames);
  const auto frames = static_cast<size_t>(length + kMostRing);
  samples.resize(kChannels * frames);
  engine.Pull(samples.data(), frames);
  return samples;
}

// Cuts off what is behind the last frame that can be heard, but nothing of the length itself.
void CutSilence(std::vector<float>& samples, std::int64_t length) {
  const auto loud = std::find_if(samples.rbegin(), samples.rend(),
                                 [](float sample) { return std::fabs(sample) > kSilence; });
  const auto heard = static_cast<size_t>(samples.rend() - loud);
  const size_t frames = (heard + kChannels - 1) / kChannels;
  samples.resize(kChannels * std::max(frames, static_cast<size_t>(length)));
}

}  // namespace

std::optional<Rendering> RenderSound(const std::string& sound, const std::string& wav) {
  const std::optional<std::int64_t> length = LengthOf(sound);
  if (!length) return std::nullopt;
  std::vector<float> samples = Play(sound, *length);
  CutSilence(samples, *length);
  const size_t frames = samples.size() / kChannels;
  Recorder recorder(wav, SoundEngine::Rate);
  if (!recorder.Open()) return std::nullopt;
  recorder.Write(samples.data(), frames);
  return Rendering{*length, static_cast<std::int64_t>(frames)};
}

bool WriteRow(const std::string& sound, const Rendering& rendering, const std::string& row) {
  const auto milliseconds =
      std::llround(static_cast<double>(rendering.Length) * 1000 / SoundEngine::Rate);
  std::ofstream file(PathOf(row), std::ios::binary);
  file << TextOf(PathOf(sound).stem()) << '\t' << milliseconds << '\t' << rendering.Length << '\t'
       << rendering.Frames << '\n';
  file.close();
  return !file.fail();
}

}  // namespace orvane
