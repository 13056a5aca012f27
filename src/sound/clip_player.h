// Plays an effect on its channel.
#pragma once

#include <array>
#include <memory>

#include "src/sound/clip.h"
#include "src/sound/limiter.h"

namespace orvane {

// Some moves start their effect over on every frame. Cut off each time, that would be a row of
// clicks; so what sounded before dies away under the new start, and starts that follow each other
// within a tenth of a second come softer and from both sides in turn over the first, which goes on:
// a roll, not a fault.
class ClipPlayer {
 public:
  ClipPlayer(std::shared_ptr<const Clip> clip, int rate);

  // Starts from the beginning. Several starts within 4 ms are one.
  void Start();
  // Fades out quickly, without a click.
  void Close();
  // Whether the effect that was started last has not come to its end.
  bool Playing() const { return voices_[newest_].Sounding && !closed_; }
  // Whether it has fallen silent.
  bool Silent() const;
  // Adds the next block.
  void Mix(Block& block);

 private:
  struct Voice {
    bool Sounding = false;
    size_t Position = 0;  // in frames
    float Left = 1;
    float Right = 1;
    float Fade = 1;
    float FadeStep = 0;  // a frame
  };

  void MixVoice(Voice& voice, Block& block) const;
  void FadeOut(Voice& voice, double seconds) const;

  std::shared_ptr<const Clip> clip_;
  int rate_;
  std::array<Voice, 8> voices_{};
  size_t newest_ = 0;
  size_t body_ = 0;  // the voice that a roll began with
  int roll_ = 0;     // starts that followed each other closely
  bool closed_ = false;
};

}  // namespace orvane
