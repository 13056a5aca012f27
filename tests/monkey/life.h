// One life of the monkey: a program from its start on, some hundred actions, and the way home.
#pragma once

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>

#include "src/game/program.h"
#include "src/replay/play_recorder.h"
#include "tests/monkey/starts.h"
#include "tests/monkey/world.h"

namespace orvane::monkey {

// Something that must not be; the text says what.
class Fault : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class Life {
 public:
  // Begins where the seed says, over the files of a game folder.
  Life(uint64_t seed, const Files& folder);

  // Plays so many actions at most, then goes home. Throws Fault.
  void Play(int actions);
  // Plays the record of the life again, which comes to the same end. Throws Fault.
  void PlayAgain();

  int Actions() const { return actions_; }
  // What the life has come to.
  struct Reached {
    bool Battle = false;
    bool Technique = false;
    bool Spell = false;
    bool Thing = false;  // used in a battle
    bool Dragon = false;
    bool LastStage = false;
    bool LastDragon = false;
    bool Ending = false;
  };
  const Reached& Came() const { return reached_; }
  // The record so far.
  std::string Replay();

 private:
  // Carries out an action, and looks whether all holds.
  template <class Action>
  void Do(Action action);
  void Check();
  void NoteReached();

  void Begin();
  void Act();
  void ActOn(Control& control);
  void ActOnList(Control& list, int rows);
  void HurryOn();
  void RunErrand();
  void TakeTurn();
  void Meddle();
  void GoHome();

  // The windows of menus that stand beside a battle for which the field has gone.
  int MenusBesideBattle() const;
  Screen& AnyScreen();
  Timer* TickingTimer();
  std::string AnyText();

  Dice dice_;
  WildDisk disk_;
  WildSound sound_;
  WildChance luck_;
  Beginning begins_;
  PlayRecorder recorder_;
  std::unique_ptr<Program> program_;
  int actions_ = 0;
  Reached reached_;
  Timer* burst_ = nullptr;  // ticks for a while
  int ticks_left_ = 0;
  bool walk_goes_on_ = false;  // behind a battle beside which a menu's window has closed
};

}  // namespace orvane::monkey
