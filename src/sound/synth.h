// The orchestra: what turns pieces into sound.
#pragma once

#include <memory>
#include <mutex>
#include <stop_token>
#include <string>

#include "src/sound/limiter.h"
#include "src/sound/piece.h"

namespace orvane {

// Each piece plays on a bank of its own, so that the last notes of one may ring on under the first
// of another. What a piece needs is read by a thread that has the time; the audio thread plays what
// is there.
class Synth {
 public:
  static constexpr int Banks = 8;

  // Opens a sound font, the best that is installed where none is named; an orchestra that plays
  // recordings needs none. May take tenths of a second. Null if there is nothing to play from.
  static std::unique_ptr<Synth> Load(const std::string& font, int rate);
  ~Synth();
  Synth(const Synth&) = delete;
  Synth& operator=(const Synth&) = delete;

  // For any thread that may wait: reads what a piece needs and keeps it, with what the pieces last
  // asked for need, in memory. What is not wholly read when it is asked to stop stays unread,
  // and may do so for good: only who leaves asks for it.
  void Prepare(const Piece& piece, const std::stop_token& stop = {});

  // The rest is the audio thread's. It gets its turn to send only if nothing is just being read,
  // and never waits for it.
  std::unique_lock<std::mutex> Turn() { return std::unique_lock(turn_, std::try_to_lock); }
  // Makes a bank ready for a piece's first event, its channels as a piece finds them: middle,
  // volume 100, no bend.
  void Begin(int bank, const Piece& piece);
  // Sends an event of its piece to a bank's channels.
  void Send(int bank, const SongEvent& event);
  // Lets go of every key and pedal; the notes die away as their instruments do.
  void ReleaseKeys(int bank);
  // Plays a bank at a part, 0 to 1, of its own volume until the next beginning.
  void Fade(int bank, float level);
  // Cuts what still sounds and gives back what the bank plays from.
  void Clear(int bank);
  // Adds the next block. Needs no turn.
  void Render(Block& block);

 private:
  struct Parts;

  explicit Synth(std::unique_ptr<Parts> parts);

  std::unique_ptr<Parts> parts_;
  std::mutex turn_;
};

}  // namespace orvane
