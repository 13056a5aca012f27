#include "src/sound/synth.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

#include "src/sound/vorbis/decoder.h"
#include "src/sound/vorbis/recordings.h"

namespace orvane {
namespace {

// A piece sounds on while its next round, or another piece, has begun; and it may be open again
// while it fades.
constexpr size_t kDecoders = 3;
// What is cut off in its midst falls silent as quickly as instruments do.
constexpr double kReleaseSeconds = 0.25;
// The longest that last notes ring out.
constexpr int kRingSeconds = 8;

std::int64_t FramesOf(const Piece& piece, int rate) {
  return std::llround(piece.Notes.Seconds * rate);
}

}  // namespace

// Plays pieces from recordings of them. A recording goes on behind its piece's length until the
// last notes have rung out: so they ring on under the first bar of what follows.
struct Synth::Parts {
  // A recording, as often as it may sound at once.
  struct Source {
    std::string Name;
    std::array<std::unique_ptr<Decoder>, kDecoders> Decoders;
    std::array<bool, kDecoders> Busy{};
  };
  // One that sounds.
  struct Voice {
    Source* From = nullptr;
    size_t Number = 0;      // of its decoder
    std::int64_t Left = 0;  // frames of its piece that are still to come
    float Level = 1;
    bool Dies = false;
  };
  struct Bank {
    Voice Now;
    Voice Before;  // rings out
    float Volume = 1;
    float VolumeBefore = 1;  // at the end of the last block
  };

  Source* Find(const std::string& name) {
    const auto found = std::find_if(Sources.begin(), Sources.end(),
                                    [&](const auto& source) { return source->Name == name; });
    return found == Sources.end() ? nullptr : found->get();
  }

  static void End(Voice& voice) {
    if (voice.From != nullptr) voice.From->Busy.at(voice.Number) = false;
    voice = Voice();
  }

  void Mix(Voice& voice, const Bank& bank, Block& block) const {
    if (voice.From == nullptr) return;
    const float from = voice.Level;
    if (voice.Dies) voice.Level = std::max(0.0F, voice.Level - Release);
    const bool goes_on = voice.From->Decoders.at(voice.Number)
                             ->Mix(block, from * bank.VolumeBefore, voice.Level * bank.Volume);
    voice.Left -= kBlockFrames;
    if (!goes_on || voice.Level <= 0) End(voice);
  }

  int Rate = 0;
  float Release = 0;  // of the level, a block
  std::vector<std::unique_ptr<Source>> Sources;
  std::array<Bank, Banks> BankStates{};
};

std::unique_ptr<Synth> Synth::Load(const std::string& /*font*/, int rate) {
  auto parts = std::make_unique<Parts>();
  parts->Rate = rate;
  parts->Release = static_cast<float>(kBlockFrames / (kReleaseSeconds * rate));
  return std::unique_ptr<Synth>(new Synth(std::move(parts)));
}

Synth::Synth(std::unique_ptr<Parts> parts) : parts_(std::move(parts)) {}

Synth::~Synth() = default;

void Synth::Prepare(const Piece& piece, const std::stop_token& stop) {
  // No other thread adds to them.
  if (parts_->Find(piece.Name) != nullptr) return;
  const auto file = FindRecording(piece.Name);
  auto source = std::make_unique<Parts::Source>();
  source->Name = piece.Name;
  for (auto& decoder : source->Decoders) {
    if (stop.stop_requested()) return;
    decoder = Decoder::Open(file, parts_->Rate);
    if (!decoder) return;
  }
  // A piece of the player's own may have its name, but not its length.
  const std::int64_t ring = source->Decoders.front()->Frames() - FramesOf(piece, parts_->Rate);
  if (ring < 0 || ring > std::int64_t{kRingSeconds} * parts_->Rate) return;
  const std::scoped_lock turn(turn_);
  parts_->Sources.push_back(std::move(source));
}

void Synth::Begin(int bank, const Piece& piece) {
  Parts::Bank& state = parts_->BankStates.at(static_cast<size_t>(bank));
  if (state.Now.From != nullptr) {
    Parts::End(state.Before);
    state.Before = std::exchange(state.Now, {});
  }
  state.Volume = 1;
  state.VolumeBefore = 1;
  Parts::Source* const source = parts_->Find(piece.Name);
  if (source == nullptr) return;
  const auto free = std::find(source->Busy.begin(), source->Busy.end(), false);
  if (free == source->Busy.end()) return;
  *free = true;
  state.Now.From = source;
  state.Now.Number = static_cast<size_t>(free - source->Busy.begin());
  state.Now.Left = FramesOf(piece, parts_->Rate);
  source->Decoders.at(state.Now.Number)->Rewind();
}

void Synth::Send(int /*bank*/, const SongEvent& /*event*/) {
  // The recording has played it.
}

void Synth::ReleaseKeys(int bank) {
  // At its end the recording lets go by itself.
  Parts::Voice& now = parts_->BankStates.at(static_cast<size_t>(bank)).Now;
  if (now.Left > kBlockFrames) now.Dies = true;
}

void Synth::Fade(int bank, float level) {
  parts_->BankStates.at(static_cast<size_t>(bank)).Volume = level;
}

void Synth::Clear(int bank) {
  Parts::Bank& state = parts_->BankStates.at(static_cast<size_t>(bank));
  Parts::End(state.Now);
  Parts::End(state.Before);
}

void Synth::Render(Block& block) {
  for (Parts::Bank& bank : parts_->BankStates) {
    parts_->Mix(bank.Now, bank, block);
    parts_->Mix(bank.Before, bank, block);
    bank.VolumeBefore = bank.Volume;
  }
}

}  // namespace orvane
