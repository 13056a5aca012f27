// orvane-render: plays a piece or an effect through the game's own sound engine into a WAV file,
// for front ends that bring no synthesizer.
#include <cstdio>
#include <iostream>
#include <string>

#include "tools/render/rendering.h"

namespace {

int Run(const std::string& sound, const std::string& wav, const std::string& row) {
  const std::optional<orvane::Rendering> rendering = orvane::RenderSound(sound, wav);
  if (!rendering) {
    std::cerr << sound << ": cannot be played\n";
    return 1;
  }
  if (!orvane::WriteRow(sound, *rendering, row)) {
    std::cerr << row << ": cannot be written\n";
    return 1;
  }
  return 0;
}

}  // namespace

int main(int count, char** words) {
  if (count != 4) {
    std::cerr << "usage: orvane-render SOUND WAV ROW\n";
    return 2;
  }
  return Run(words[1], words[2], words[3]);
}
