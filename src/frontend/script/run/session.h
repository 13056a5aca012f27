// What a script works on: the program that it has started, with its folder and all that a player
// and a machine would give it.
#pragma once

#include <filesystem>
#include <lua.hpp>
#include <memory>
#include <optional>
#include <string>

#include "src/frontend/script/devices/boxes.h"
#include "src/frontend/script/devices/chance.h"
#include "src/frontend/script/devices/shown_texts.h"
#include "src/frontend/script/devices/sound_log.h"
#include "src/frontend/script/names/names.h"
#include "src/frontend/script/run/clock.h"
#include "src/frontend/script/run/scratch_folder.h"
#include "src/frontend/script/run/tally.h"
#include "src/frontend/shared/kept_play.h"
#include "src/game/program.h"
#include "src/ui/timer_queue.h"

namespace orvane {

struct StartOptions {
  std::string Folder;  // a game folder; empty for the one of the session
  bool Keep = false;   // go on in the scratch folder of the program before
};

class Session {
 public:
  // Programs start in copies of `game_folder`, unless a start names another. The Lua state outlives
  // the session.
  Session(lua_State* lua, std::filesystem::path game_folder, Tally& results);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  // Ends the running program and starts a fresh one. Throws ScriptError from within an event of the
  // program, as all that ends a program does.
  void Start(const StartOptions& options);
  // Ends the running program and copies a game folder, which the next start takes.
  void Prepare(const std::string& folder);
  // Ends the running program and removes its folder.
  void Clear();
  // Forgets the answers and the random values that wait.
  void ClearQueues();

  // The program; the two that return references throw ScriptError when none has been started.
  bool HasProgram() const { return program_ != nullptr; }
  Program& TheProgram();
  Names& TheNames();
  // The folder of the program, or the one prepared; throws ScriptError without either.
  ScratchFolder& Folder();

  // True when no program runs: none has been started, or it has ended.
  bool HasEnded();

  // Runs what an event does, answers the boxes that it brings, and lets the time pass that it
  // holds. Throws ScriptError for a box without an answer, which ends the program.
  void Run(const Handler& event);
  // Lets the clock run; timers tick when they are due.
  void Wait(double milliseconds);
  // Fires one tick of a timer.
  void Tick(Timer& timer);

  // Records the programs that start from now on, each in a file of its own: the first in this one,
  // the next in the same with ".2" behind its name, and so on.
  void RecordTo(const std::filesystem::path& file) { record_ = file; }

  // How often a program or a folder has been made: tells whether a test has made one.
  int Starts() const { return starts_; }
  // Whether a script runs within an event of the program: while a box stands.
  bool InEvent() const { return depth_ > 0; }

  // Names the Lua state or coroutine that works with the session, while it lives.
  class Caller {
   public:
    Caller(Session& session, lua_State* lua)
        : boxes_(session.Boxes), before_(session.Boxes.SetLua(lua)) {}
    ~Caller() { boxes_.SetLua(before_); }
    Caller(const Caller&) = delete;
    Caller& operator=(const Caller&) = delete;

   private:
    ScriptBoxes& boxes_;
    lua_State* before_;
  };

  Tally& Results;
  bool InTest = false;

  VirtualClock Clock;
  ScriptChance Luck;
  SoundLog Sound;
  ScriptBoxes Boxes;

 private:
  void EndProgram();
  void MakeProgram();
  // Answers the boxes beyond those that stood before, as long as there are any.
  void Settle(int boxes_before);
  void AnswerBox(const Box& box);
  // Lets the time pass that the last handler has asked to be held.
  void PassHold();

  std::filesystem::path game_folder_;
  std::unique_ptr<ScratchFolder> folder_;
  bool prepared_ = false;  // the folder waits for a start
  std::optional<std::filesystem::path> record_;
  int recorded_ = 0;
  std::unique_ptr<KeptPlay> play_;  // while programs are recorded
  std::unique_ptr<Program> program_;
  std::unique_ptr<Names> names_;
  std::unique_ptr<TimerQueue> timers_;
  ShownTexts shown_;
  int starts_ = 0;
  int depth_ = 0;
};

}  // namespace orvane
