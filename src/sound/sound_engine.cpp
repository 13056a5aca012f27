#include "src/sound/sound_engine.h"

#include <array>
#include <cstdlib>
#include <filesystem>
#include <string_view>

#include "src/platform/file_stamp.h"
#include "src/platform/music_places.h"
#include "src/platform/path_text.h"
#include "src/platform/sound_channels.h"
#include "src/platform/whole_file.h"
#include "src/sound/job_thread.h"
#include "src/sound/mixer.h"
#include "src/sound/output.h"
#include "src/sound/play_log.h"
#include "src/sound/recorder.h"

namespace orvane {
namespace {

static_assert(kMusicChannels.size() + kEffectChannels.size() == Mixer::Channels);

// The sound font is read when the program has settled, unless music is wanted before.
constexpr std::chrono::milliseconds kSettled(2000);
// A larger file is no sound of a game.
constexpr std::uintmax_t kMostBytes = 16 << 20;

// The mixer's channels carry the music first, then the effects.
std::string_view AliasOf(size_t channel) {
  const size_t effect = channel - kMusicChannels.size();
  return channel < kMusicChannels.size() ? kMusicChannels.at(channel) : kEffectChannels.at(effect);
}

// The number of a channel; -1 for an unknown name.
int ChannelOf(std::string_view alias) {
  for (size_t channel = 0; channel < Mixer::Channels; ++channel) {
    if (AliasOf(channel) == alias) return static_cast<int>(channel);
  }
  return -1;
}

// All bytes of a file; none if it cannot be read or is no sound of a game.
std::vector<std::uint8_t> ReadSound(const std::string& path) {
  const std::filesystem::path file = PathOf(path);
  std::error_code error;
  // Of a file that has gone it is the largest number.
  if (std::filesystem::file_size(file, error) > kMostBytes) return {};
  const std::string bytes = ReadWholeFile(file).value_or("");
  return {bytes.begin(), bytes.end()};
}

// The file of the piece that most likely follows on that of the channel, which is in `path`; empty
// if none does.
std::string FollowerOf(size_t channel, const std::string& path) {
  const char* next = FightMusicAfter(AliasOf(channel));
  if (next == nullptr) return "";
  return TextOf(PathOf(path).replace_filename(PathOf(SoundFile(next))));
}

// The piece that the bytes of a file are; null if they are none.
std::shared_ptr<Piece> ReadPiece(const std::vector<std::uint8_t>& file, const std::string& path) {
  std::optional<Song> song = ReadSong(file);
  if (!song) return nullptr;
  auto piece = std::make_shared<Piece>();
  piece->Notes = *std::move(song);
  piece->Name = TextOf(PathOf(path).stem());
  return piece;
}

}  // namespace

// The parts of the engine, in the order in which they stand on each other.
class SoundEngine::Machine {
 public:
  explicit Machine(const SoundOptions& options) : options_(options) {
    if (!options.RecordFile.empty()) {
      recorder_.emplace(options.RecordFile, SoundEngine::Rate);
      log_.emplace(options.RecordFile + ".log", SoundEngine::Rate);
    }
    if (options.Plays == SoundOptions::Sink::Caller) return;
    jobs_.Post([this] { OpenOutput(); });
  }

  // Without a time all that was asked for takes effect at once. Returns whether anything plays.
  bool Pull(float* out, size_t frames, Mixer::TimePoint from = Mixer::TimePoint::max()) {
    if (log_) log_->Pulled(frames, from);
    const bool plays = mixer_.Pull(out, frames, from);
    if (recorder_) recorder_->Write(out, frames);
    return plays;
  }

  void Note(const std::string& what) {
    if (log_) log_->Write(what);
  }

  // Whether the channel has its sound now. A file that was found broken is not read again before it
  // changes: music that cannot be opened is asked for at every tick.
  bool Open(size_t channel, const std::string& path);
  void WaitUntilReady() { jobs_.Finish(); }
  Mixer& Channels() { return mixer_; }
  bool& IsOpen(size_t channel) { return open_.at(channel); }

 private:
  bool Load(size_t channel, const std::string& path);
  // These run on the job thread.
  void OpenOutput();
  void OpenSynth();
  void Prepare(Piece& piece, const std::string& follower);

  const SoundOptions options_;
  std::array<bool, Mixer::Channels> open_{};
  std::array<std::optional<FileStamp>, Mixer::Channels> broken_{};
  bool audible_ = true;
  bool synth_asked_ = false;
  std::unique_ptr<Synth> synth_;
  Mixer mixer_{SoundEngine::Rate};
  std::optional<Recorder> recorder_;
  std::optional<PlayLog> log_;
  std::unique_ptr<Output> output_;
  JobThread jobs_{[this] { OpenSynth(); }, kSettled};
};

void SoundEngine::Machine::OpenOutput() {
  const PullFunction pull = [this](float* out, size_t frames, Mixer::TimePoint from) {
    return Pull(out, frames, from);
  };
  if (options_.Plays == SoundOptions::Sink::Device) output_ = OpenDevice(SoundEngine::Rate, pull);
  audible_ = output_ != nullptr || recorder_;
  if (!output_) output_ = OpenClock(SoundEngine::Rate, pull);
  if (log_) log_->Begin(output_->Delay());
}

void SoundEngine::Machine::OpenSynth() {
  // A font that is not heard is not worth its memory.
  if (synth_asked_ || !audible_) return;
  synth_asked_ = true;
  synth_ = Synth::Load(options_.FontFile, SoundEngine::Rate);
  mixer_.UseSynth(synth_.get());
}

void SoundEngine::Machine::Prepare(Piece& piece, const std::string& follower) {
  OpenSynth();
  if (synth_) {
    // Now, as the field's first bar may wait a moment and a battle's may not; and first, as what
    // was kept first is the first to go.
    if (const auto next = follower.empty() ? nullptr : ReadPiece(ReadSound(follower), follower)) {
      synth_->Prepare(*next, jobs_.Leaving());
    }
    synth_->Prepare(piece, jobs_.Leaving());
  }
  piece.Ready.store(true, std::memory_order_release);
}

bool SoundEngine::Machine::Open(size_t channel, const std::string& path) {
  const std::optional<FileStamp> stamp = StampOf(path);
  std::optional<FileStamp>& broken = broken_.at(channel);
  if (!stamp || stamp == broken) return false;
  broken.reset();
  if (Load(channel, path)) return true;
  if (IsSettled(*stamp)) broken = stamp;
  return false;
}

bool SoundEngine::Machine::Load(size_t channel, const std::string& path) {
  const std::vector<std::uint8_t> file = ReadSound(path);
  if (file.empty()) return false;
  const auto number = static_cast<int>(channel);
  if (const auto piece = ReadPiece(file, path)) {
    mixer_.Open(number, std::shared_ptr<const Piece>(piece));
    jobs_.Post([this, piece, next = FollowerOf(channel, path)] { Prepare(*piece, next); });
  } else if (std::shared_ptr<const Clip> clip = ReadClip(file, SoundEngine::Rate)) {
    mixer_.Open(number, std::move(clip));
  } else {
    return false;
  }
  return true;
}

SoundOptions SoundOptions::FromEnvironment() {
  SoundOptions options;
  if (const char* file = std::getenv("ORVANE_RECORD")) options.RecordFile = file;
  return options;
}

SoundEngine::SoundEngine(const SoundOptions& options)
    : machine_(std::make_unique<Machine>(options)) {}

SoundEngine::~SoundEngine() = default;

std::string SoundEngine::Send(const std::string& text) {
  const SoundCommand command = ParseSoundCommand(text);
  const int channel = ChannelOf(command.Alias);
  if (channel < 0) return "";
  bool& open = machine_->IsOpen(static_cast<size_t>(channel));
  if (command.What == SoundCommand::Verb::Open) {
    if (open) return "";
    open = machine_->Open(static_cast<size_t>(channel), command.File);
    if (open) machine_->Note("open " + command.Alias);
    return open ? "1" : "";
  }
  if (!open) return "";
  switch (command.What) {
    case SoundCommand::Verb::Status:
      return machine_->Channels().Playing(channel) ? "playing" : "stopped";
    case SoundCommand::Verb::Play:
      machine_->Channels().Play(channel);
      machine_->Note("play " + command.Alias);
      break;
    case SoundCommand::Verb::Close:
      machine_->Channels().Close(channel);
      machine_->Note("close " + command.Alias);
      open = false;
      break;
    default:
      break;
  }
  return "";
}

void SoundEngine::Note(const std::string& what) {
  machine_->Note(what);
}

void SoundEngine::Pull(float* out, size_t frames) {
  machine_->Pull(out, frames);
}

void SoundEngine::WaitUntilReady() {
  machine_->WaitUntilReady();
}

}  // namespace orvane
