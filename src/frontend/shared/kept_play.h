// The record of the play that goes on: always in memory, in a file if that is wished, and in a file
// after an error, which its box names.
#pragma once

#include <filesystem>
#include <fstream>
#include <optional>

#include "src/game/play_event.h"
#include "src/replay/play_recorder.h"

namespace orvane {

// The file in the game folder that takes the play after an error.
constexpr const char* kReplayAfterError = "error.replay";

class KeptPlay : public PlayWatcher {
 public:
  // `record` takes the whole play as it goes on. `after_error` takes it only when an error has
  // ended it, and only where `record` does not. Neither need be possible: then there is no file.
  KeptPlay(const Services& services, const std::optional<std::filesystem::path>& record,
           std::filesystem::path after_error);

  // What the program is given instead of the services.
  Services TheServices() { return recorder_.TheServices(); }
  // The program, once it stands; the play outlives it.
  void Watch(Program& program);

  // Ends the record before the program has ended, with what it has come to.
  void Finish();

  // The replay, and whether all that happened is in it.
  const std::string& Bytes() const { return recorder_.Bytes(); }
  bool IsWhole() const { return recorder_.IsWhole(); }

  void Comes(const PlayEvent& event) override;
  void Went() override;
  void Meddled() override { recorder_.Meddled(); }

 private:
  // Writes what is new into the file of the record.
  void Write();
  void FollowError();

  PlayRecorder recorder_;
  Program* program_ = nullptr;
  std::optional<std::filesystem::path> record_;
  std::filesystem::path after_error_;
  std::ofstream file_;
  size_t written_ = 0;  // of what stays as it is
  bool told_ = false;   // of an error
};

}  // namespace orvane
