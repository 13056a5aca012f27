// Takes a replay apart into its steps.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "src/game/play_event.h"
#include "src/platform/seeded_draws.h"
#include "src/replay/bytes.h"
#include "src/replay/format.h"

namespace orvane {

// What the program was given by its services. Which fields count is told in format.h.
struct ReplayNote {
  Mark What = Mark::Draws;
  uint64_t Number = 0;  // of draws, of the command, the length of a file
  uint64_t Sum = 0;     // of a file
  float Value = 0;
  std::string Name{};               // of a file or a pattern
  std::string Text{};               // a reply, the bytes of a file, what failed
  std::optional<uint32_t> Later{};  // of a seed that follows the last one, by how many ms
  SeededDraws::Words Words{};       // of any other
  uint64_t Drawn = 0;               // of a seed, how often was drawn since
  std::vector<std::string> Names{};
};

// An event, or ticks of one timer in a row. The notes belong to the last of them.
struct ReplayStep {
  enum class Sort { Start, Event, Kept };
  Sort What = Sort::Start;
  PlayEvent::Kind Kind = PlayEvent::Kind::Tick;  // of Event
  int Count = 1;                                 // of ticks
  std::string Screen{};
  std::string Control{};
  int Number = 0;  // as PlayEvent has it; of Kept, which of those that wait
  double X = 0;
  double Y = 0;
  std::string Text{};  // of EnterText; of Kept, what failed
  std::vector<ReplayNote> Notes{};
  std::optional<uint32_t> StateSum{};  // what the state came to, where it was noted
};

// All throw BrokenReplay for bytes that are no replay, or from another format of it.
class ReplayReader {
 public:
  explicit ReplayReader(std::string bytes);
  ReplayReader(const ReplayReader&) = delete;
  ReplayReader& operator=(const ReplayReader&) = delete;

  // Which version of the game has recorded it.
  const std::string& Version() const { return version_; }
  // What is told at the end: files by length and sum, and the sum of all. A replay that was cut has
  // no sum.
  const std::map<std::pair<uint64_t, uint64_t>, std::string>& Contents() const { return contents_; }
  const std::optional<uint64_t>& WholeSum() const { return whole_sum_; }

  // The next step, the start first; nothing behind the last.
  std::optional<ReplayStep> Next();

 private:
  struct Source {
    std::string Screen;
    std::string Control;
  };

  std::string Name();
  void ReadEvent(Mark mark, ReplayStep& step);
  bool ReadNote(ReplayStep& step);
  ReplayNote NoteOf(Mark mark);
  // Reads what is told at the end; false where the next byte tells nothing of that.
  bool ReadEnd();
  void Rewind();

  std::string bytes_;
  ByteReader in_;
  std::string version_;
  size_t begin_ = 0;
  bool started_ = false;
  std::vector<std::string> names_;
  std::vector<Source> timers_;
  std::map<std::pair<uint64_t, uint64_t>, std::string> contents_;
  std::optional<uint64_t> whole_sum_;
};

}  // namespace orvane
