#include "src/frontend/script/run/session.h"

#include <algorithm>
#include <utility>

#include "src/frontend/script/run/script_error.h"
#include "src/platform/path_text.h"
#include "src/ui/stage.h"

namespace orvane {

Session::Session(lua_State* lua, std::filesystem::path game_folder, Tally& results)
    : Results(results), Boxes(lua), game_folder_(std::move(game_folder)) {}

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
    folder_ = std::make_unique<ScratchFolder>(options.Folder.empty() ? game_folder_
                                                                     : PathOf(options.Folder));
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
  Services services{Sound, Luck, folder_->Files()};
  if (record_) {
    std::filesystem::path file = *record_;
    if (++recorded_ > 1) file += "." + std::to_string(recorded_);
    play_ = std::make_unique<KeptPlay>(services, file, std::filesystem::path());
  }
  program_ = std::make_unique<Program>(play_ ? play_->TheServices() : services);
  if (play_) play_->Watch(*program_);
  shown_.Begin();
  names_ = std::make_unique<Names>(program_->TheState(), program_->TheStage());
  timers_ = std::make_unique<TimerQueue>(program_->TheStage(), Pacing::AsAsked);
}

void Session::Prepare(const std::string& folder) {
  if (InEvent()) throw ScriptError("no change of folders while a box stands", "one");
  EndProgram();
  prepared_ = false;
  ++starts_;
  folder_.reset();
  folder_ = std::make_unique<ScratchFolder>(folder.empty() ? game_folder_ : PathOf(folder));
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
  if (play_ && program_) play_->Finish();
  program_.reset();
  play_.reset();
  Sound.Silence();
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
  const int stood = program_ == nullptr ? 0 : program_->TheStage().BoxCount();
  event();
  if (program_ != nullptr) shown_.Look(*program_);
  Settle(stood);
  if (HasEnded()) Sound.Silence();
}

void Session::Settle(int boxes_before) {
  if (program_ == nullptr) return;
  const Stage& stage = program_->TheStage();
  PassHold();
  while (stage.BoxCount() > boxes_before || (stage.BoxStands() && !stage.IsRunning())) {
    shown_.Look(*program_);
    const Box box = stage.Boxes().back().Shown;
    if (!stage.IsRunning()) {
      Boxes.KeepError(box);
      program_->Answer(BoxAnswer::Ok);
      return;
    }
    AnswerBox(box);
    PassHold();
  }
}

// The box that has come stands while a function of the script finds the answer. A program whose box
// finds none cannot go on.
void Session::AnswerBox(const Box& box) {
  ++depth_;
  try {
    const int number = program_->TheStage().Boxes().back().Number;
    const BoxAnswer answer = Boxes.AnswerTo(box);
    const Stage& stage = program_->TheStage();
    if (stage.BoxStands() && stage.Boxes().back().Number == number) program_->Answer(answer);
  } catch (const ScriptError&) {
    --depth_;
    program_->End(1);
    Sound.Silence();
    throw;
  }
  --depth_;
}

void Session::PassHold() {
  Clock.MoveTo(Clock.Now() + program_->TheStage().HeldFor());
  program_->EndHold();
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
