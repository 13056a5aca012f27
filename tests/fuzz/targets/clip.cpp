// An effect: a WAV file, started, faded and mixed at any time. The first bytes say what is done
// with it.
#include "src/sound/clip.h"

#include <cmath>

#include "src/sound/clip_player.h"
#include "src/sound/wave_claims.h"
#include "tests/fuzz/harness.h"

namespace orvane::fuzz {
namespace {

constexpr int kRate = 44100;
constexpr size_t kMostFrames = size_t{121} * kRate;  // a clip has two minutes at most

}  // namespace

void Try(Input& input) {
  const std::string doings = input.Text();
  const std::string bytes = input.Rest();
  const std::span file(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  const size_t clipped = ClipWaveClaims(file).size();
  Require(clipped == file.size() || clipped == 0, "clipping claims leaves the length");
  const std::shared_ptr<const Clip> clip = ReadClip(file, kRate);
  if (clip == nullptr) return;
  Require(clip->Channels == 1 || clip->Channels == 2, "a clip has one side or two");
  Require(clip->Frames() <= kMostFrames, "a clip is no longer than two minutes");
  ClipPlayer player(clip, kRate);
  Limiter limiter;
  player.Start();
  for (const char doing : doings) {
    if (doing % 8 == 1) player.Start();
    if (doing % 32 == 2) player.Close();
    Block block{};
    player.Mix(block);
    limiter.Process(block);
    for (const float sample : block)
      Require(std::abs(sample) <= 1, "the mix stays below full scale");
  }
}

}  // namespace orvane::fuzz
