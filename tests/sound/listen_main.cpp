// orvane-listen: tells what is wrong with a recording of the game's sound.
//
//   orvane-listen FILE.wav [--gap SECONDS] [--level LEVEL] [--clicks COUNT]
//
// Prints length, level and peak, then every gap of at least --gap (0.05) in which both sides stay
// below --level (0.001 of full scale), and every click. Exits with 1 if there is a gap, if there
// are more clicks than --clicks (0), or if the recording is silent; with 2 if it cannot be read.
#include <cmath>
#include <cstdlib>
#include <iostream>
#include <string>

#include "tests/sound/listening.h"

namespace {

struct Options {
  std::string File;
  double Gap = 0.05;
  double Level = 0.001;
  double Clicks = 0;
};

// Takes the value of an option; false if the word is none of them.
bool TakeOption(Options& options, const std::string& word, const char* value) {
  const double number = value == nullptr ? 0 : std::atof(value);
  if (word == "--gap") {
    options.Gap = number;
  } else if (word == "--level") {
    options.Level = number;
  } else if (word == "--clicks") {
    options.Clicks = number;
  } else {
    return false;
  }
  return true;
}

double Decibels(double level) {
  return 20 * std::log10(std::max(level, 1e-9));
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  for (int i = 1; i < argc; ++i) {
    if (TakeOption(options, argv[i], i + 1 < argc ? argv[i + 1] : nullptr)) {
      ++i;
    } else {
      options.File = argv[i];
    }
  }
  const auto recording = orvane::test::ReadRecording(options.File);
  if (!recording) {
    std::cerr << "orvane-listen: " << options.File << " is no recording of 16 bits in stereo\n";
    return 2;
  }
  const double level = orvane::test::LevelOf(*recording);
  std::cout << recording->Seconds() << " s, level " << Decibels(level) << " dB, peak "
            << Decibels(orvane::test::PeakOf(*recording)) << " dB\n";
  const auto gaps = orvane::test::FindGaps(*recording, options.Gap, options.Level);
  for (const auto& gap : gaps) {
    std::cout << "gap of " << gap.Seconds * 1000 << " ms at " << gap.From << " s\n";
  }
  const auto clicks = orvane::test::FindClicks(*recording);
  for (const auto& click : clicks) {
    std::cout << "click of " << click.Leap << " at " << click.At << " s, " << click.Sharpness
              << " times sharper than around it\n";
  }
  const bool clean = static_cast<double>(clicks.size()) <= options.Clicks;
  return gaps.empty() && clean && level > options.Level ? 0 : 1;
}
