#include "src/sound/limiter.h"

#include <algorithm>
#include <cmath>

namespace orvane {
namespace {

// The part of the way back to full volume that is made in a block: about a fifth of a second.
constexpr float kRecovery = 0.02F;

float NeedOf(const Block& block) {
  float peak = 0;
  for (const float sample : block) peak = std::max(peak, std::fabs(sample));
  return peak > Limiter::Ceiling ? Limiter::Ceiling / peak : 1.0F;
}

}  // namespace

void Limiter::Process(Block& block) {
  const float need = NeedOf(block);
  // The gain runs in a straight line through the held block; as both its ends are no more than the
  // block can bear, every frame between them is safe too.
  const float recovered = gain_ + (1.0F - gain_) * kRecovery;
  const float end = std::min({held_need_, need, recovered});
  const float step = (end - gain_) / kBlockFrames;
  std::swap(block, held_);
  if (gain_ < 1.0F || end < 1.0F) {
    for (size_t frame = 0; frame < kBlockFrames; ++frame) {
      const float gain = gain_ + step * static_cast<float>(frame);
      block[2 * frame] *= gain;
      block[2 * frame + 1] *= gain;
    }
  }
  gain_ = end;
  held_need_ = need;
}

}  // namespace orvane
