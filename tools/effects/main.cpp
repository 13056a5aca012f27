// orvane-effects: makes a WAV file from a recipe.
#include <exception>
#include <iostream>
#include <optional>

#include "src/platform/whole_file.h"
#include "tools/effects/synth.h"
#include "tools/effects/wav_file.h"

int main(int count, char** words) {
  if (count != 3) {
    std::cerr << "usage: orvane-effects RECIPE WAV\n";
    return 2;
  }
  const std::optional<std::string> text = orvane::ReadWholeFile(words[1]);
  if (!text) {
    std::cerr << words[1] << ": cannot be read\n";
    return 1;
  }
  try {
    orvane::effects::Wav wav;
    wav.Samples = orvane::effects::Finish(orvane::effects::Mix(orvane::effects::ReadRecipe(*text)));
    if (!orvane::WriteWholeFile(words[2], orvane::effects::WriteWav(wav))) {
      std::cerr << words[2] << ": cannot be written\n";
      return 1;
    }
  } catch (const std::exception& problem) {
    std::cerr << words[1] << ": " << problem.what() << "\n";
    return 1;
  }
  return 0;
}
