// The orchestra: a sound font and the voices that play from it.
#pragma once

#include <array>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "src/sound/limiter.h"
#include "src/sound/song.h"

namespace orvane {

struct SynthHandles;

// Each piece plays on a bank of sixteen MIDI channels of its own, so that the last notes of one may
// ring on under the first of another. Instruments are read from the font when a piece needs them,
// by a thread that has the time; the audio thread plays what is there.
class Synth {
 public:
  static constexpr int Banks = 8;

  // Opens the font, which takes tenths of a second. Null if it is none.
  static std::unique_ptr<Synth> Load(const std::string& font, int rate);
  ~Synth();
  Synth(const Synth&) = delete;
  Synth& operator=(const Synth&) = delete;

  // For any thread that may wait: reads an instrument and keeps it, and the ones last asked for
  // with it, in memory.
  void Keep(const Patch& patch);

  // The rest is the audio thread's. It gets its turn to send only if no instrument is just being
  // read, and never waits for it.
  std::unique_lock<std::mutex> Turn() { return std::unique_lock(turn_, std::try_to_lock); }
  // Sends an event to a bank's channels.
  void Send(int bank, const SongEvent& event);
  // Lets go of every key and pedal; the notes die away as their instruments do.
  void ReleaseKeys(int bank);
  // Brings the channels back to how a piece finds them: middle, volume 100, no bend.
  void Reset(int bank);
  // Plays a bank at a part, 0 to 1, of its own volume until it is reset.
  void Fade(int bank, float level);
  // Cuts what still sounds and gives the bank's instruments back.
  void Clear(int bank);
  // Adds the next block. Needs no turn.
  void Render(Block& block);

 private:
  struct Bank {
    PatchReader Patches;
    std::array<int, 16> Expression{};
  };

  explicit Synth(std::unique_ptr<SynthHandles> fluid);
  // The instrument that the font has in a patch's place.
  Patch Resolve(const Patch& patch) const;
  void Select(int channel, const Patch& patch);

  std::unique_ptr<SynthHandles> handles_;
  std::mutex turn_;
  std::array<Bank, Banks> banks_{};
  std::vector<Patch> kept_;   // in the order in which they were asked for
  std::vector<int> keepers_;  // the channel that keeps each
};

}  // namespace orvane
