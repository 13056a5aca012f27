// Plays a replay again, without a player and without a front end, and finds the first step at which
// it comes out otherwise.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "src/game/program.h"
#include "src/platform/services.h"
#include "src/replay/reader.h"

namespace orvane {

// A play that comes out otherwise than it was recorded. The text says where and what.
class ReplayDiffers : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class Replayer {
 public:
  // `folder` is the game folder, from which come the files that everybody has; nothing is written
  // there. Throws BrokenReplay for bytes that are no replay.
  Replayer(std::string bytes, const Storage& folder);
  Replayer(std::string bytes, const Storage&& folder) = delete;  // it outlives the replayer
  ~Replayer();
  Replayer(const Replayer&) = delete;
  Replayer& operator=(const Replayer&) = delete;

  // Takes the next step, the start first. Null behind the last, which is compared with the sum of
  // all. Throws ReplayDiffers at the first difference.
  const ReplayStep* Next();

  // Who looks at the program right before the last event of each step.
  void LookBefore(std::function<void(const ReplayStep&)> look) { look_ = std::move(look); }

  // The program, once it has started.
  Program& TheProgram() { return *program_; }

  const std::string& Version() const { return reader_.Version(); }
  // Whether the replay has the sum of all at its end: otherwise it was cut.
  bool IsClosed() const { return reader_.WholeSum().has_value(); }
  // The bytes of the game folder's files that are in the replay, by length and sum.
  const std::map<std::pair<uint64_t, uint64_t>, std::string>& Contents() const {
    return reader_.Contents();
  }
  // What was done so far.
  int Events() const { return events_; }

  // Of the step that was taken last: what was drawn, why the last event was refused, and the
  // commands to the sound device with their replies.
  struct Command {
    std::string Text;
    std::string Reply;
  };
  const std::vector<float>& Draws() const { return draws_; }
  const Refusal& Refused() const { return refused_; }
  const std::vector<Command>& Commands() const { return commands_; }

 private:
  class Given;

  void Take();
  void TakeEvent();
  void Compare();
  [[noreturn]] void Differ(const std::string& what) const;
  Screen& FindScreen() const;
  // The control of the step; Differs where there is none of that name and type.
  template <class Type = Control>
  Type& Find() const;

  ReplayReader reader_;
  std::unique_ptr<Given> given_;
  std::unique_ptr<Program> program_;
  std::optional<ReplayStep> step_;
  int events_ = 0;
  std::vector<float> draws_;
  std::vector<Command> commands_;
  Refusal refused_;
  std::function<void(const ReplayStep&)> look_;
};

}  // namespace orvane
