// Judges a recorded minute of play by what is heard in it and what was noted beside it.
#pragma once

#include <string>

#include "tests/sound/notes.h"
#include "tests/sound/recording.h"

namespace orvane::test {

struct Minute {
  Recording Heard;
  Notes Noted;
  std::string Sounds;  // the folder of the sound files
  bool Once = false;   // no piece was played to its end
};

// Each prints what it finds and returns the number of faults.

// Every effect that was asked for is heard, within 20 ms of the painting of its frame.
int JudgeEffects(const Minute& minute);

// Music begins again on time at its end, is nowhere missing, and nothing clicks.
int JudgeMusic(const Minute& minute);

}  // namespace orvane::test
