// orvane-minute: judges a recorded minute of play.
//
//   orvane-minute [--once] RECORDING FOLDER
//
// RECORDING has its log beside it, FOLDER is the game folder that was played. With --once no piece
// was played to its end, else one of the field and one of a battle must have begun again. Exits
// with 1 if an effect is not heard with its frame, or music is missing or clicks; with 2 if there
// is nothing to read.
#include <cstdio>
#include <string>
#include <vector>

#include "tests/sound/minute.h"

int main(int argc, char** argv) {
  const std::vector<std::string> words(argv + 1, argv + argc);
  const bool once = words.size() == 3 && words[0] == "--once";
  if (words.size() != (once ? 3U : 2U)) return 2;
  const std::string& file = words[words.size() - 2];
  auto heard = orvane::test::ReadRecording(file);
  auto noted = orvane::test::ReadNotes(file + ".log");
  if (!heard || !noted) {
    std::fprintf(stderr, "orvane-minute: %s or its log cannot be read\n", file.c_str());
    return 2;
  }
  const orvane::test::Minute minute{std::move(*heard), std::move(*noted), words.back() + "/Sound",
                                    once};
  std::printf("%.1f s, effects heard %.1f ms behind the recording\n", minute.Heard.Seconds(),
              minute.Noted.Delay * 1000);
  const int faults = orvane::test::JudgeEffects(minute) + orvane::test::JudgeMusic(minute);
  return faults == 0 ? 0 : 1;
}
