#include "src/replay/play_recorder.h"

#include <algorithm>
#include <memory>
#include <optional>

#include "src/base/byte_sum.h"
#include "src/game/program.h"
#include "src/platform/clock_seed.h"
#include "src/replay/sums.h"
#include "src/ui/controls.h"

namespace orvane {
namespace {

// Days of play; beyond them the rest of it is not recorded.
constexpr size_t kMostBytes = size_t{32} << 20;
// So many events apart it is noted what the state has come to.
constexpr unsigned kEventsToSum = 64;

// Events have the same numbers in a replay.
static_assert(static_cast<int>(PlayEvent::Kind::Tick) == static_cast<int>(Mark::Timer));
static_assert(static_cast<int>(PlayEvent::Kind::Choose) == static_cast<int>(Mark::Choose));
static_assert(static_cast<int>(PlayEvent::Kind::End) == static_cast<int>(Mark::End));
Mark MarkOf(PlayEvent::Kind kind) {
  return static_cast<Mark>(kind);
}

// A draw is never -0 or no number, so equal ones have the same bits.
bool SameDraw(float one, float other) {
  return one == other;
}

}  // namespace

PlayRecorder::PlayRecorder(const Services& services)
    : sound_(*this, services.Sound), chance_(*this, services.Luck), files_(*this, services.Files) {
  bytes_.append(kReplayHead).append("version ").append(ORVANE_VERSION).append("\n");
}

void PlayRecorder::Stop() {
  if (!closed_) whole_ = false;
}

void PlayRecorder::BeginEvent() {
  ticks_ = 0;
  commands_ = 0;
  passed_ = 0;
  ++events_;
  if (bytes_.size() > kMostBytes) Stop();
}

void PlayRecorder::PutName(const std::string& name) {
  const auto [at, is_new] = names_.try_emplace(name, names_.size());
  out_.Number(at->second);
  if (is_new) out_.Text(name);
}

void PlayRecorder::PutControl(Mark mark, const PlayEvent& event) {
  Put(mark);
  PutName(event.On->Owner().Name());
  PutName(event.On->Name());
}

void PlayRecorder::PutTick(const PlayEvent& event) {
  const unsigned ticks = event.On == ticking_ ? ticks_ : 0;
  BeginEvent();
  if (ticks > 0 && ticks < kMostTicks) {
    ++bytes_.back();
    ticks_ = ticks + 1;
    return;
  }
  auto timer = std::find(timers_.begin(), timers_.end(), event.On);
  if (timer == timers_.end()) {
    if (timers_.size() == kMostTimers) return Stop();
    PutControl(Mark::Timer, event);
    timer = timers_.insert(timers_.end(), event.On);
  }
  out_.Byte(kTicks | static_cast<unsigned>(timer - timers_.begin()) << kTimerShift);
  ticking_ = event.On;
  ticks_ = 1;
}

void PlayRecorder::Comes(const PlayEvent& event) {
  if (!Records()) return;
  if (event.What == PlayEvent::Kind::Tick) return PutTick(event);
  BeginEvent();
  const Mark mark = MarkOf(event.What);
  if (event.On != nullptr) {
    PutControl(mark, event);
  } else {
    Put(mark);
  }
  if (event.Where != nullptr) PutName(event.Where->Name());
  switch (PayloadOf(event.What)) {
    case Payload::None:
      return;
    case Payload::Number:
      return out_.Signed(event.Number);
    case Payload::Point:
      out_.Double(event.X);
      return out_.Double(event.Y);
    case Payload::Text:
      return out_.Text(event.Text);
  }
}

void PlayRecorder::Went() {
  if (!Records() || events_ < kEventsToSum) return;
  events_ = 0;
  BeginNote();
  Put(Mark::StateSum);
  out_.Fixed32(static_cast<uint32_t>(SumOfState(*program_)));
}

void PlayRecorder::Close(bool with_contents) {
  if (!Records()) return;
  BeginNote();
  if (with_contents) {
    for (const auto& [sum, bytes] : contents_) {
      Put(Mark::Contents);
      out_.Text(bytes);
    }
  }
  Put(Mark::WholeSum);
  out_.Fixed64(SumOfAll(*program_));
  closed_ = true;
}

// ---- sound

std::string PlayRecorder::SoundTap::Send(const std::string& command) {
  std::string reply = device_.Send(command);
  recorder_.NoteReply(command, reply);
  return reply;
}

void PlayRecorder::NoteReply(const std::string& command, const std::string& reply) {
  if (!Records()) return;
  std::string& last = replies_[command];
  if (last != reply) {
    last = reply;
    BeginNote();
    Put(Mark::Reply);
    out_.Number(commands_);
    PutName(reply);
  }
  ++commands_;
}

// ---- chance

float PlayRecorder::ChanceTap::Draw() {
  const SeededDraws* source = luck_.Source();
  const uint64_t drawn = source != nullptr ? source->Drawn() : 0;
  const float value = luck_.Draw();
  recorder_.NoteDraw(value, source, drawn);
  return value;
}

void PlayRecorder::NoteSeed(float value, const SeededDraws& source, uint64_t drawn) {
  const SeededDraws::Words words = source.LastSeed();
  const std::optional<uint32_t> delay = DelayBetween(expected_.LastSeed(), words);
  expected_.Seed(words);
  for (uint64_t i = 0; i < drawn; ++i) expected_.Draw();
  next_ = expected_.Draw();
  seedings_ = source.Seedings();
  // The seeds of the clock differ by the time that has passed, which is short.
  if (delay && *delay <= kMostDelay && drawn == 0 && SameDraw(next_, value)) {
    next_ = expected_.Draw();
    return out_.Byte(kNextSeed | *delay);
  }
  Put(Mark::Seed);
  out_.Number(words.size());
  for (const uint32_t word : words) out_.Number(word);
  out_.Number(drawn);
  if (!SameDraw(next_, value)) return NoteDraw(value, &source, drawn);
  ++passed_;
  next_ = expected_.Draw();
}

void PlayRecorder::NoteDraw(float value, const SeededDraws* source, uint64_t drawn) {
  if (!Records()) return;
  const bool is_seeded = source != nullptr && source->Seedings() != seedings_;
  if (!is_seeded && source != nullptr && SameDraw(value, next_)) {
    ++passed_;
    next_ = expected_.Draw();
    return;
  }
  BeginNote();
  if (passed_ > 0) {
    Put(Mark::Draws);
    out_.Number(passed_);
    passed_ = 0;
  }
  if (is_seeded) return NoteSeed(value, *source, drawn);
  Put(Mark::Draw);
  out_.Float(value);
}

// ---- files

std::optional<std::string> PlayRecorder::FileTap::Read(const std::string& name) const {
  auto bytes = files_.Read(name);
  recorder_.NoteFile(name, bytes ? &*bytes : nullptr);
  return bytes;
}

std::shared_ptr<const std::string> PlayRecorder::FileTap::Open(const std::string& name) const {
  auto bytes = files_.Open(name);
  recorder_.NoteFile(name, bytes.get());
  return bytes;
}

std::vector<std::string> PlayRecorder::FileTap::List(const std::string& pattern) const {
  auto names = files_.List(pattern);
  recorder_.NoteNames(pattern, names);
  return names;
}

void PlayRecorder::NoteFile(const std::string& name, const std::string* bytes) {
  if (!Records()) return;
  const Known found = bytes == nullptr ? Known() : Known{true, bytes->size(), SumOfBytes(*bytes)};
  const auto [known, is_new] = known_.try_emplace(name, found);
  if (!is_new && known->second == found) return;
  known->second = found;
  BeginNote();
  // Saves are the player's own; of the game folder's other files everybody has the same.
  const bool is_own = MatchesPattern(name, "*.sav");
  Put(bytes == nullptr ? Mark::NoFile : is_own ? Mark::FileBytes : Mark::File);
  PutName(name);
  if (bytes == nullptr) return;
  if (is_own) return out_.Text(*bytes);
  out_.Number(found.Length);
  out_.Fixed64(found.Sum);
  contents_[{found.Length, found.Sum}] = *bytes;
}

void PlayRecorder::NoteNames(const std::string& pattern, const std::vector<std::string>& names) {
  if (!Records()) return;
  const auto [known, is_new] = listed_.try_emplace(pattern, names);
  if (!is_new && known->second == names) return;
  known->second = names;
  BeginNote();
  Put(Mark::Names);
  PutName(pattern);
  out_.Number(names.size());
  for (const std::string& name : names) PutName(name);
}

void PlayRecorder::FileTap::Replace(const std::string& name, const std::string& bytes,
                                    Outcome outcome) {
  const int number = ++recorder_.replacements_;
  recorder_.waiting_.push_back(number);
  const auto in_call = std::make_shared<bool>(true);
  const Known written{true, bytes.size(), SumOfBytes(bytes)};
  files_.Replace(name, bytes,
                 [this, number, name, written, in_call, outcome](const std::string& failure) {
                   if (failure.empty()) recorder_.known_[name] = written;
                   if (!*in_call) return recorder_.Kept(number, failure, outcome);
                   std::erase(recorder_.waiting_, number);
                   if (recorder_.Records()) {
                     recorder_.BeginNote();
                     recorder_.Put(Mark::KeptNow);
                     recorder_.PutName(failure);
                   }
                   outcome(failure);
                 });
  *in_call = false;
}

void PlayRecorder::Kept(int number, const std::string& failure, const Storage::Outcome& outcome) {
  const auto at = std::find(waiting_.begin(), waiting_.end(), number);
  if (Records()) {
    BeginEvent();
    Put(Mark::Kept);
    out_.Number(static_cast<uint64_t>(at - waiting_.begin()));
    PutName(failure);
  }
  waiting_.erase(at);
  outcome(failure);
  Went();
}

}  // namespace orvane
