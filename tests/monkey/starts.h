// Where the monkey's lives begin.
#pragma once

#include <string>

#include "src/core/game_record.h"
#include "tests/monkey/dice.h"
#include "tests/monkey/world.h"

namespace orvane::monkey {

enum class Start {
  NewGame,
  Stage,         // a legal save of any stage of the story
  BeforeDragon,  // of a round, or of the last stage: by way of the third
  Ending,        // heroes that nothing withstands: they come to the end
  DamagedSave,
  DamagedFile,
};

struct Beginning {
  Start What = Start::NewGame;
  // Files and disk are sound: no run-time error may end the program.
  bool IsSound = true;
  // The heroes are such that the monkey may hurry on to the end.
  bool IsStrong = false;
};

// Makes the files that a life begins with; its save is Save01.sav.
Beginning Prepare(Dice& dice, Files& files);

}  // namespace orvane::monkey
