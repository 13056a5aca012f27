#include "src/sound/clip_player.h"

#include <algorithm>

namespace orvane {
namespace {

constexpr double kFadeOfRestart = 0.09;
constexpr double kFadeOfClose = 0.008;
// Starts nearer than this to the last are the same: a frame may ask several times.
constexpr double kSameSeconds = 0.004;
// Starts nearer than this to the last belong to a roll.
constexpr double kRollSeconds = 0.1;
// The strong and the weak side of a start within a roll.
constexpr float kRollNear = 0.6F;
constexpr float kRollFar = 0.4F;
constexpr float kFullScale = 32768.0F;

}  // namespace

ClipPlayer::ClipPlayer(std::shared_ptr<const Clip> clip, int rate)
    : clip_(std::move(clip)), rate_(rate) {}

void ClipPlayer::Start() {
  Voice& last = voices_[newest_];
  const double since = static_cast<double>(last.Position) / rate_;
  if (last.Sounding && since < kSameSeconds) return;
  const bool close = last.Sounding && since < kRollSeconds;
  roll_ = close ? roll_ + 1 : 0;
  // The first start of a roll goes on as its body; without it an effect that swells would never
  // come further than its beginning.
  if (roll_ == 1) body_ = newest_;
  for (size_t i = 0; i < voices_.size(); ++i) {
    if (roll_ == 0 || i != body_) FadeOut(voices_[i], kFadeOfRestart);
  }
  // Of eight voices the next is the oldest: it has faded away, or nearly.
  newest_ = (newest_ + 1) % voices_.size();
  if (roll_ > 0 && newest_ == body_) newest_ = (newest_ + 1) % voices_.size();
  Voice voice;
  voice.Sounding = clip_->Frames() > 0;
  if (roll_ > 0) {
    voice.Left = roll_ % 2 == 1 ? kRollNear : kRollFar;
    voice.Right = roll_ % 2 == 1 ? kRollFar : kRollNear;
  }
  voices_[newest_] = voice;
}

void ClipPlayer::Close() {
  closed_ = true;
  for (Voice& voice : voices_) FadeOut(voice, kFadeOfClose);
}

bool ClipPlayer::Silent() const {
  return std::none_of(voices_.begin(), voices_.end(), [](const Voice& v) { return v.Sounding; });
}

void ClipPlayer::FadeOut(Voice& voice, double seconds) const {
  const auto step = static_cast<float>(1.0 / (seconds * rate_));
  voice.FadeStep = std::max(voice.FadeStep, step);
}

void ClipPlayer::Mix(Block& block) {
  for (Voice& voice : voices_) {
    if (voice.Sounding) MixVoice(voice, block);
  }
}

void ClipPlayer::MixVoice(Voice& voice, Block& block) const {
  const size_t count = std::min<size_t>(kBlockFrames, clip_->Frames() - voice.Position);
  const auto channels = static_cast<size_t>(clip_->Channels);
  const std::int16_t* sample = clip_->Samples.data() + voice.Position * channels;
  for (size_t i = 0; i < count; ++i, sample += channels) {
    block[2 * i] += static_cast<float>(sample[0]) / kFullScale * voice.Left * voice.Fade;
    block[2 * i + 1] +=
        static_cast<float>(sample[channels - 1]) / kFullScale * voice.Right * voice.Fade;
    voice.Fade = std::max(0.0F, voice.Fade - voice.FadeStep);
  }
  voice.Position += count;
  voice.Sounding = voice.Position < clip_->Frames() && voice.Fade > 0;
}

}  // namespace orvane
