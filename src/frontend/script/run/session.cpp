#include "src/frontend/script/run/session.h"

#include <algorithm>
#include <utility>

#include "src/frontend/script/run/script_error.h"

namespace orvane {

Session::Session(lua_State* lua, std::filesystem::path game_folder, Tally& results)
    : Results(results), Boxes(lua, [this] { GiveUp(); }), game_folder_(std::move(game_folder)) {}

Session::~Session() {
  EndProgram();
}

void Session::Start(const StartOptions& options) {
  const bool takes_prepared = prepared_ && options.Folder.empty();
  const bool keeps = takes_prepared || (options.Keep && folder_ != nullptr);
  if (InEvent()) throw ScriptError("no start while a box stands", "one");
  EndProgram();
  prepared_ = false;
  ++starts_;
  if (!keeps) {
    folder_.reset();
    folder_ = std::make_unique<ScratchFolder>(
        options.Folder.empty() ? game_folder_ : std::filesystem::path(options.Folder));
  }
  Clock.Restart();
  Boxes.Restart();
  Sound.Restart(folder_->Path());
  try {
    Run([this] { MakeProgram(); });
  } catch (...) {
    EndProgram();
    throw;
  }
}

void Session::MakeProgram() {
  program_ = std::make_unique<Program>(folder_->Path(), Services{Sound, Luck, Boxes, Clock});
  names_ = std::make_unique<Names>(program_->TheState(), program_->TheStage());
  timers_ = std::make_unique<TimerQueue>(program_->TheStage(), Pacing::AsAsked);
}

void Session::Prepare(const std::string& folder) {
  if (InEvent()) throw ScriptError("no change of folders while a box stands", "one");
  EndProgram();
  prepared_ = false;
  ++starts_;
  folder_.reset();
  folder_ = std::make_unique<ScratchFolder>(folder.empty() ? game_folder_
                                                           : std::filesystem::path(folder));
  prepared_ = true;
}

void Session::Clear() {
  EndProgram();
  folder_.reset();
  prepared_ = false;
  Boxes.Restart();
  Sound.Restart("");
}

void Session::ClearQueues() {
  Boxes.ClearAnswers();
  Luck.Clear();
}

void Session::EndProgram() {
  timers_.reset();
  names_.reset();
  program_.reset();
  Sound.Silence();
}

void Session::GiveUp() {
  if (program_ != nullptr) program_->TheStage().MarkEnded(1);
}

Program& Session::TheProgram() {
  if (program_ == nullptr) throw ScriptError("a program that has been started", "none");
  return *program_;
}

Names& Session::TheNames() {
  TheProgram();
  return *names_;
}

ScratchFolder& Session::Folder() {
  if (folder_ == nullptr) throw ScriptError("a program or a prepared folder", "none");
  return *folder_;
}

bool Session::HasEnded() {
  return program_ == nullptr || program_->HasEnded();
}

void Session::Run(const Handler& event) {
  ++depth_;
  try {
    event();
  } catch (...) {
    --depth_;
    throw;
  }
  --depth_;
  if (HasEnded()) Sound.Silence();
  if (const std::optional<ScriptError> failure = Boxes.TakeFailure()) throw ScriptError(*failure);
}

void Session::Tick(Timer& timer) {
  Run([this, &timer] { program_->Tick(timer); });
}

void Session::Wait(double milliseconds) {
  Program& program = TheProgram();
  const double end = Clock.Now() + milliseconds;
  while (!program.HasEnded()) {
    const std::optional<double> due = timers_->NextDue(Clock.Now());
    if (!due || *due > end) break;
    Clock.MoveTo(*due);
    Timer* timer = timers_->FirstDue(Clock.Now());
    if (timer == nullptr) break;
    timers_->Begin(*timer, Clock.Now());
    Tick(*timer);
  }
  Clock.MoveTo(end);
}

}  // namespace orvane
