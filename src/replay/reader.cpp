#include "src/replay/reader.h"

#include "src/base/byte_sum.h"

namespace orvane {
namespace {

constexpr unsigned kLastMark = static_cast<unsigned>(Mark::Contents);
// The game seeds anew far sooner; so many draws take less than a second.
constexpr uint64_t kMostDrawn = 50'000'000;

Mark MarkOf(unsigned byte) {
  if (byte > kLastMark) throw BrokenReplay("it holds what this version does not know");
  return static_cast<Mark>(byte);
}

bool IsEvent(Mark mark) {
  return mark <= Mark::Kept;
}

bool IsNote(unsigned byte) {
  if (byte >= kNextSeed) return byte < kTicks;
  const Mark mark = MarkOf(byte);
  return mark >= Mark::Draws && mark <= Mark::KeptNow;
}

bool NamesControl(Mark mark) {
  return mark >= Mark::Click && mark <= Mark::Slide;
}

bool NamesScreen(Mark mark) {
  return mark >= Mark::Press && mark <= Mark::Activate;
}

}  // namespace

ReplayReader::ReplayReader(std::string bytes) : bytes_(std::move(bytes)), in_(bytes_) {
  constexpr std::string_view word = "version ";
  const size_t line_end = bytes_.find('\n', kReplayHead.size());
  if (!bytes_.starts_with(kReplayHead) || line_end == std::string::npos ||
      bytes_.compare(kReplayHead.size(), word.size(), word) != 0) {
    throw BrokenReplay("it is no replay");
  }
  const size_t version_at = kReplayHead.size() + word.size();
  version_ = bytes_.substr(version_at, line_end - version_at);
  begin_ = line_end + 1;
  // What the end tells is wanted from the start on.
  Rewind();
  while (Next()) {
  }
  Rewind();
}

void ReplayReader::Rewind() {
  in_.GoTo(begin_);
  started_ = false;
  names_.clear();
  timers_.clear();
}

std::string ReplayReader::Name() {
  const uint64_t number = in_.Number();
  if (number > names_.size()) throw BrokenReplay("a name in it is not known");
  if (number == names_.size()) names_.emplace_back(in_.Text());
  return names_[static_cast<size_t>(number)];
}

std::optional<ReplayStep> ReplayReader::Next() {
  ReplayStep step;
  if (!started_) {
    started_ = true;
  } else {
    while (!in_.AtEnd() && ReadEnd()) {
    }
    if (in_.AtEnd()) return std::nullopt;
    unsigned byte = in_.Byte();
    step.What = ReplayStep::Sort::Event;
    while (byte < kNextSeed && MarkOf(byte) == Mark::Timer) {
      std::string screen = Name();
      timers_.push_back({screen, Name()});
      byte = in_.Byte();
    }
    if (byte >= kTicks) {
      const size_t timer = byte >> kTimerShift & (kMostTimers - 1);
      if (timer >= timers_.size()) throw BrokenReplay("a timer in it is not known");
      step.Count = static_cast<int>(byte & (kMostTicks - 1)) + 1;
      step.Screen = timers_[timer].Screen;
      step.Control = timers_[timer].Control;
    } else if (byte < kNextSeed && IsEvent(MarkOf(byte))) {
      ReadEvent(MarkOf(byte), step);
    } else {
      throw BrokenReplay("an event was to come");
    }
  }
  while (!in_.AtEnd() && ReadNote(step)) {
  }
  return step;
}

void ReplayReader::ReadEvent(Mark mark, ReplayStep& step) {
  if (mark == Mark::Kept) {
    step.What = ReplayStep::Sort::Kept;
    step.Number = static_cast<int>(in_.Number());
    step.Text = Name();
    return;
  }
  step.Kind = static_cast<PlayEvent::Kind>(mark);
  if (NamesControl(mark) || NamesScreen(mark)) step.Screen = Name();
  if (NamesControl(mark)) step.Control = Name();
  switch (PayloadOf(step.Kind)) {
    case Payload::None:
      return;
    case Payload::Number:
      step.Number = static_cast<int>(in_.Signed());
      return;
    case Payload::Point:
      step.X = in_.Double();
      step.Y = in_.Double();
      return;
    case Payload::Text:
      step.Text = in_.Text();
      return;
  }
}

bool ReplayReader::ReadNote(ReplayStep& step) {
  const unsigned byte = in_.Peek();
  if (byte == static_cast<unsigned>(Mark::StateSum)) {
    in_.Byte();
    step.StateSum = in_.Fixed32();
    return true;
  }
  if (!IsNote(byte)) return false;
  in_.Byte();
  if (byte >= kNextSeed) {
    step.Notes.push_back({.What = Mark::Seed, .Later = byte & kMostDelay});
  } else {
    step.Notes.push_back(NoteOf(MarkOf(byte)));
  }
  return true;
}

ReplayNote ReplayReader::NoteOf(Mark mark) {
  ReplayNote note{.What = mark};
  switch (mark) {
    case Mark::Draws:
      note.Number = in_.Number();
      break;
    case Mark::Seed:
      for (uint64_t left = in_.Number(); left > 0; --left) {
        note.Words.push_back(static_cast<uint32_t>(in_.Number()));
      }
      note.Drawn = in_.Number();
      if (note.Drawn > kMostDrawn) throw BrokenReplay("a seed in it was drawn from too often");
      break;
    case Mark::Draw:
      note.Value = in_.Float();
      break;
    case Mark::Reply:
      note.Number = in_.Number();
      note.Text = Name();
      break;
    case Mark::NoFile:
      note.Name = Name();
      break;
    case Mark::File:
      note.Name = Name();
      note.Number = in_.Number();
      note.Sum = in_.Fixed64();
      break;
    case Mark::FileBytes:
      note.Name = Name();
      note.Text = in_.Text();
      break;
    case Mark::Names:
      note.Name = Name();
      for (uint64_t left = in_.Number(); left > 0; --left) note.Names.push_back(Name());
      break;
    default:  // KeptNow
      note.Text = Name();
      break;
  }
  return note;
}

bool ReplayReader::ReadEnd() {
  const unsigned byte = in_.Peek();
  if (byte == static_cast<unsigned>(Mark::Contents)) {
    in_.Byte();
    std::string bytes(in_.Text());
    const uint64_t sum = SumOfBytes(bytes);
    contents_[{bytes.size(), sum}] = std::move(bytes);
    return true;
  }
  if (byte != static_cast<unsigned>(Mark::WholeSum)) return false;
  in_.Byte();
  whole_sum_ = in_.Fixed64();
  return true;
}

}  // namespace orvane
