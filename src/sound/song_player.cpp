#include "src/sound/song_player.h"

#include <algorithm>
#include <cmath>

namespace orvane {
namespace {

// A little more than the slowest caller takes from one question to the next.
constexpr double kLeadSeconds = 0.15;
// Of a very short piece only this part, so that it does not end before it has well begun.
constexpr double kLeadPart = 0.125;
constexpr float kFadeSeconds = 0.25F;
// More than any beginning of a piece has in a block; what is beyond it waits for the next ones, so
// that no file can keep the sound from coming out.
constexpr int kMostEventsOfBlock = 256;

}  // namespace

SongPlayer::SongPlayer(std::shared_ptr<const Piece> piece, int bank, int rate)
    : piece_(std::move(piece)),
      bank_(bank),
      rate_(rate),
      length_(std::llround(piece_->Notes.Seconds * rate)),
      lead_(std::llround(std::min(kLeadSeconds, piece_->Notes.Seconds * kLeadPart) * rate)) {}

void SongPlayer::Start() {
  if (running_ && Left() <= lead_) {
    again_ = true;
    return;
  }
  running_ = true;
  again_ = false;
  fresh_ = true;
  position_ = 0;
  next_ = 0;
}

void SongPlayer::Step(Synth* synth) {
  if (bank_ < 0) synth = nullptr;
  if (closing_) {
    StepClosing(synth);
    return;
  }
  if (!running_ || !piece_->Ready.load(std::memory_order_acquire)) return;
  if (synth != nullptr) {
    const auto turn = synth->Turn();
    if (!turn) return;
    SendDue(*synth);
  }
  position_ += kBlockFrames;
  if (position_ < length_) return;
  running_ = again_;
  again_ = false;
  fresh_ = true;
  position_ = length_ > 0 ? (position_ - length_) % length_ : 0;
  next_ = 0;
}

void SongPlayer::SendDue(Synth& synth) {
  if (fresh_) {
    synth.ReleaseKeys(bank_);
    synth.Begin(bank_, *piece_);
    fresh_ = false;
  }
  const std::vector<SongEvent>& events = piece_->Notes.Events;
  const double until = static_cast<double>(position_ + kBlockFrames) / rate_;
  // At the last block what is left goes out, the last keys up above all.
  const bool last = position_ + kBlockFrames >= length_;
  for (int sent = 0; sent < kMostEventsOfBlock && next_ < events.size() &&
                     (last || events[next_].Seconds < until);
       ++sent, ++next_) {
    synth.Send(bank_, events[next_]);
  }
  if (last) synth.ReleaseKeys(bank_);
}

void SongPlayer::StepClosing(Synth* synth) {
  if (synth == nullptr) {
    closed_ = true;
    return;
  }
  const auto turn = synth->Turn();
  if (!turn) return;
  if (level_ >= 1) synth->ReleaseKeys(bank_);
  level_ -= kBlockFrames / (kFadeSeconds * static_cast<float>(rate_));
  synth->Fade(bank_, std::max(level_, 0.0F));
  if (level_ > 0) return;
  synth->Clear(bank_);
  closed_ = true;
}

}  // namespace orvane
