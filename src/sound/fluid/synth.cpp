#include "src/sound/synth.h"

#include <fluidsynth.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "src/sound/fluid/font_file.h"
#include "src/sound/fluid/sound_font.h"

namespace orvane {
namespace {

constexpr int kBankChannels = 16;
constexpr int kPlayChannels = Synth::Banks * kBankChannels;
// Channels that never play: choosing an instrument on one keeps its samples in memory. As many as
// two pieces use, so that field and battle find theirs ready, and no more: one may take a megabyte.
constexpr size_t kUsualKeepers = 20;
// A piece with more of them keeps all its own, up to so many; those behind play as one of these.
constexpr size_t kMostOfPiece = 48;
// The synth has its channels by sixteens; there is one keeper more while one makes room for
// another.
constexpr int kChannels = kPlayChannels + 64;
constexpr int kPolyphony = 128;
// The pieces are balanced against the effects at this gain.
constexpr double kGain = 1.2;

constexpr int kVolume = 7;
constexpr int kExpression = 11;
constexpr int kSustain = 64;
constexpr int kResetControllers = 121;
constexpr int kBendMiddle = 8192;
constexpr int kBendSemitones = 2;

struct Setting {
  int Control = 0;
  int Value = 0;
};
// What resetting the controllers leaves as it is: volume, balance, place and effects.
constexpr std::array<Setting, 5> kFresh = {{{kVolume, 100}, {8, 64}, {10, 64}, {91, 0}, {93, 0}}};

}  // namespace

struct Synth::Parts {
  struct Bank {
    PatchReader Patches;
    std::array<int, 16> Expression{};
  };

  explicit Parts(const std::string& font) : File(font) {}
  Parts(const Parts&) = delete;
  Parts& operator=(const Parts&) = delete;
  ~Parts() {
    if (Voices != nullptr) delete_fluid_synth(Voices);
    if (Settings != nullptr) delete_fluid_settings(Settings);
  }

  // The instrument that the font has in a patch's place.
  Patch Resolve(const Patch& patch) const;
  void Select(int channel, const Patch& patch) const;
  // Reads an instrument that the font has and keeps it in memory, and with it the ones last asked
  // for, `most` in all. Nothing of it stays if the reading is stopped.
  void Keep(const Patch& wanted, size_t most);
  // Whether a channel can play an instrument that the font has without reading anything.
  bool IsReady(int channel, const Patch& patch) const;

  FontFile File;
  fluid_settings_t* Settings = nullptr;
  fluid_synth_t* Voices = nullptr;
  int Font = FLUID_FAILED;
  std::array<Bank, Banks> BankStates{};
  std::vector<Patch> Kept;   // in the order in which they were asked for
  std::vector<int> Keepers;  // the channel that keeps each
};

std::unique_ptr<Synth> Synth::Load(const std::string& font, int rate) {
  const std::string path = font.empty() ? FindSoundFont() : font;
  if (path.empty()) return nullptr;
  for (int level = 0; level < LAST_LOG_LEVEL; ++level) {
    fluid_set_log_function(level, nullptr, nullptr);  // sound never complains
  }
  auto fluid = std::make_unique<Parts>(path);
  fluid->Settings = new_fluid_settings();
  if (fluid->Settings == nullptr) return nullptr;
  fluid_settings_setnum(fluid->Settings, "synth.sample-rate", rate);
  fluid_settings_setnum(fluid->Settings, "synth.gain", kGain);
  fluid_settings_setint(fluid->Settings, "synth.polyphony", kPolyphony);
  fluid_settings_setint(fluid->Settings, "synth.midi-channels", kChannels);
  // A whole font unpacked is over a hundred megabytes; a piece needs a dozen of its instruments.
  fluid_settings_setint(fluid->Settings, "synth.dynamic-sample-loading", 1);
  fluid_settings_setint(fluid->Settings, "synth.lock-memory", 0);
  fluid->Voices = new_fluid_synth(fluid->Settings);
  if (fluid->Voices == nullptr) return nullptr;
  fluid->Font = fluid->File.LoadInto(fluid->Voices, fluid->Settings);
  if (fluid->Font == FLUID_FAILED) return nullptr;
  return std::unique_ptr<Synth>(new Synth(std::move(fluid)));
}

Synth::Synth(std::unique_ptr<Parts> parts) : parts_(std::move(parts)) {
  for (int channel = 0; channel < kPlayChannels; ++channel) {
    const bool drums = channel % kBankChannels == kDrumChannel;
    fluid_synth_set_channel_type(parts_->Voices, channel,
                                 drums ? CHANNEL_TYPE_DRUM : CHANNEL_TYPE_MELODIC);
  }
}

Synth::~Synth() = default;

Patch Synth::Parts::Resolve(const Patch& patch) const {
  fluid_sfont_t* font = fluid_synth_get_sfont_by_id(Voices, Font);
  const int bank = patch.Bank == kDrumBank ? kDrumBank : 0;
  for (const Patch& choice : {patch, Patch{bank, patch.Program}}) {
    if (fluid_sfont_get_preset(font, choice.Bank, choice.Program) != nullptr) return choice;
  }
  return {bank, 0};
}

void Synth::Parts::Select(int channel, const Patch& patch) const {
  fluid_synth_program_select(Voices, channel, Font, patch.Bank, patch.Program);
}

void Synth::Parts::Keep(const Patch& wanted, size_t most) {
  const auto found = std::find(Kept.begin(), Kept.end(), wanted);
  if (found != Kept.end()) {
    const auto keeper = Keepers.begin() + (found - Kept.begin());
    std::rotate(keeper, keeper + 1, Keepers.end());
    std::rotate(found, found + 1, Kept.end());
    return;
  }
  int channel = kPlayChannels;
  while (std::find(Keepers.begin(), Keepers.end(), channel) != Keepers.end()) ++channel;
  Select(channel, wanted);
  if (File.IsStopped()) {  // it may lack samples, and must not be played
    fluid_synth_unset_program(Voices, channel);
    return;
  }
  Keepers.push_back(channel);
  Kept.push_back(wanted);
  while (Kept.size() > most) {
    fluid_synth_unset_program(Voices, Keepers.front());
    Keepers.erase(Keepers.begin());
    Kept.erase(Kept.begin());
  }
}

bool Synth::Parts::IsReady(int channel, const Patch& patch) const {
  if (std::find(Kept.begin(), Kept.end(), patch) != Kept.end()) return true;
  int font = 0;
  Patch now;
  return fluid_synth_get_program(Voices, channel, &font, &now.Bank, &now.Program) == FLUID_OK &&
         font == Font && now == patch;
}

void Synth::Prepare(const Piece& piece, const std::stop_token& stop) {
  std::vector<Patch> wanted;
  for (const Patch& patch : PatchesOf(piece.Notes)) {
    if (wanted.size() == kMostOfPiece || stop.stop_requested()) break;
    const std::scoped_lock turn(turn_);
    const Patch found = parts_->Resolve(patch);
    // A font that lacks a bank has the same instrument for many patches.
    if (std::find(wanted.begin(), wanted.end(), found) == wanted.end()) wanted.push_back(found);
  }
  for (const Patch& patch : wanted) {
    if (stop.stop_requested()) return;
    const std::scoped_lock turn(turn_);
    parts_->File.StopBy(stop);
    parts_->Keep(patch, std::max(kUsualKeepers, wanted.size()));
  }
}

void Synth::Send(int bank, const SongEvent& event) {
  const int channel = bank * kBankChannels + event.Channel();
  Parts::Bank& state = parts_->BankStates.at(static_cast<size_t>(bank));
  if (const std::optional<Patch> patch = state.Patches.Read(event)) {
    // To read one now would make the sound wait. Prepare has left out what is beyond its measure.
    const Patch found = parts_->Resolve(*patch);
    if (parts_->IsReady(channel, found)) return parts_->Select(channel, found);
    if (!parts_->Kept.empty()) parts_->Select(channel, parts_->Kept.back());
    return;
  }
  const int bend = event.First | (event.Second << 7);
  switch (event.Kind()) {
    case 8:
      fluid_synth_noteoff(parts_->Voices, channel, event.First);
      break;
    case kNoteOn:
      fluid_synth_noteon(parts_->Voices, channel, event.First, event.Second);
      break;
    case 10:
      fluid_synth_key_pressure(parts_->Voices, channel, event.First, event.Second);
      break;
    case kControl:
      // Bank numbers are the patch reader's, and the modes above would join the channels up.
      if (event.First == 0 || event.First == 32 || event.First > kResetControllers + 2) break;
      if (event.First == kExpression) {
        state.Expression.at(static_cast<size_t>(event.Channel())) = event.Second;
      }
      fluid_synth_cc(parts_->Voices, channel, event.First, event.Second);
      break;
    case 13:
      fluid_synth_channel_pressure(parts_->Voices, channel, event.First);
      break;
    case 14:
      fluid_synth_pitch_bend(parts_->Voices, channel, bend);
      break;
  }
}

void Synth::ReleaseKeys(int bank) {
  for (int i = 0; i < kBankChannels; ++i) {
    const int channel = bank * kBankChannels + i;
    fluid_synth_cc(parts_->Voices, channel, kSustain, 0);
    fluid_synth_all_notes_off(parts_->Voices, channel);
  }
}

void Synth::Begin(int bank, const Piece& /*piece*/) {
  Parts::Bank& state = parts_->BankStates.at(static_cast<size_t>(bank));
  state.Patches = PatchReader();
  state.Expression.fill(127);
  for (int i = 0; i < kBankChannels; ++i) {
    const int channel = bank * kBankChannels + i;
    fluid_synth_cc(parts_->Voices, channel, kResetControllers, 0);
    for (const Setting& fresh : kFresh) {
      fluid_synth_cc(parts_->Voices, channel, fresh.Control, fresh.Value);
    }
    fluid_synth_pitch_wheel_sens(parts_->Voices, channel, kBendSemitones);
    fluid_synth_pitch_bend(parts_->Voices, channel, kBendMiddle);
  }
}

void Synth::Fade(int bank, float level) {
  const Parts::Bank& state = parts_->BankStates.at(static_cast<size_t>(bank));
  for (int i = 0; i < kBankChannels; ++i) {
    const auto full = static_cast<float>(state.Expression.at(static_cast<size_t>(i)));
    fluid_synth_cc(parts_->Voices, bank * kBankChannels + i, kExpression,
                   static_cast<int>(std::lround(full * level)));
  }
}

void Synth::Clear(int bank) {
  for (int i = 0; i < kBankChannels; ++i) {
    fluid_synth_all_sounds_off(parts_->Voices, bank * kBankChannels + i);
    fluid_synth_unset_program(parts_->Voices, bank * kBankChannels + i);
  }
}

void Synth::Render(Block& block) {
  Block voices;
  fluid_synth_write_float(parts_->Voices, kBlockFrames, voices.data(), 0, 2, voices.data(), 1, 2);
  for (size_t i = 0; i < block.size(); ++i) block[i] += voices[i];
}

}  // namespace orvane
