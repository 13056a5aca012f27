// orvane-music: makes a standard MIDI file from a score.
#include <exception>
#include <iostream>
#include <optional>
#include <string>

#include "src/platform/whole_file.h"
#include "tools/music/performance.h"

namespace {

int Run(const std::string& score_file, const std::string& midi_file) {
  const std::optional<std::string> text = orvane::ReadWholeFile(score_file);
  if (!text) {
    std::cerr << score_file << ": cannot be read\n";
    return 1;
  }
  try {
    const orvane::music::Score score = orvane::music::ReadScore(*text);
    const orvane::music::Sheet sheet = orvane::music::WriteOut(score);
    const std::string midi = orvane::music::WriteMidi(orvane::music::Perform(sheet));
    if (!orvane::WriteWholeFile(midi_file, midi)) {
      std::cerr << midi_file << ": cannot be written\n";
      return 1;
    }
  } catch (const std::exception& problem) {
    std::cerr << score_file << ": " << problem.what() << "\n";
    return 1;
  }
  return 0;
}

}  // namespace

int main(int count, char** words) {
  if (count != 3) {
    std::cerr << "usage: orvane-music SCORE MIDI\n";
    return 2;
  }
  return Run(words[1], words[2]);
}
