// Plays a piece of music on its channel.
#pragma once

#include <memory>

#include "src/sound/piece.h"
#include "src/sound/synth.h"

namespace orvane {

// Music is kept going by a caller that asks now and then whether the piece has ended and, if so,
// starts it over, which comes too late for the next bar. So a piece counts as ended shortly before
// its last tick, and a start within that time waits for the tick: the bars join without a gap.
class SongPlayer {
 public:
  // `bank` is the synth's that it may use, or -1: then it only counts the time.
  SongPlayer(std::shared_ptr<const Piece> piece, int bank, int rate);

  // Starts from the beginning, at once or at the coming end.
  void Start();
  // Fades out; when that is done the player is silent.
  void Close() { closing_ = true; }
  // Whether the piece has not yet come to its end, in the sense above.
  bool Playing() const { return running_ && (again_ || Left() > lead_); }
  bool Silent() const { return closed_ || (!running_ && !closing_); }
  int Bank() const { return bank_; }
  // Sends what is due in the next block. Without a synth time passes all the same.
  void Step(Synth* synth);

 private:
  std::int64_t Left() const { return length_ - position_; }
  void SendDue(Synth& synth);
  void StepClosing(Synth* synth);

  std::shared_ptr<const Piece> piece_;
  int bank_;
  int rate_;
  std::int64_t length_;        // in frames
  std::int64_t lead_;          // in frames
  std::int64_t position_ = 0;  // in frames
  size_t next_ = 0;            // event
  bool running_ = false;
  bool again_ = false;
  bool fresh_ = false;  // the channels must be reset before the next event
  bool closing_ = false;
  bool closed_ = false;
  float level_ = 1;
};

}  // namespace orvane
