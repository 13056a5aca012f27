// The sound engine with its threads: files that are anything, and any commands in any order.
#include <array>
#include <chrono>
#include <thread>
#include <vector>

#include "src/platform/sound_channels.h"
#include "src/sound/sound_engine.h"
#include "tests/fuzz/harness.h"
#include "tests/fuzz/scratch.h"

namespace orvane::fuzz {
namespace {

constexpr int kMostCommands = 60;
constexpr std::array kNames = {"Round1.mid", "Battle1.mid", "Cut.wav", "Fire.wav"};
constexpr std::array kAliases = {"bgm1", "bgm4", "snd2", "snd3", "nobody"};

void Command(Input& input, SoundEngine& engine, const ScratchFolder& folder, bool pulls) {
  const char* const alias = kAliases.at(static_cast<size_t>(input.Below(kAliases.size())));
  switch (input.Below(8)) {
    case 0:
    case 1: {
      const char* const name = kNames.at(static_cast<size_t>(input.Below(kNames.size())));
      engine.Send(OpenCommand(folder.Path(), name, alias));
      break;
    }
    case 2:
      engine.Send(PlayCommand(alias));
      break;
    case 3:
      engine.Send(CloseCommand(alias));
      break;
    case 4: {
      const std::string reply = engine.Send(StatusCommand(alias));
      Require(reply.empty() || reply == "playing" || reply == "stopped", "a status is one of two");
      break;
    }
    case 5:
      engine.Send(input.Text());
      break;
    case 6: {
      std::vector<float> frames(2 * size_t{1000});
      if (pulls) engine.Pull(frames.data(), frames.size() / 2);
      for (const float sample : frames)
        Require(sample >= -1 && sample <= 1, "sound stays in scale");
      break;
    }
    default:
      if (pulls) engine.WaitUntilReady();
  }
}

}  // namespace

void Try(Input& input) {
  static const ScratchFolder folder;
  const int kind = input.Byte();
  for (const char* name : kNames) folder.Write(std::string("Sound/") + name, input.File());
  SoundOptions options;
  const bool pulls = kind % 4 != 0;
  options.Plays = pulls ? SoundOptions::Sink::Caller : SoundOptions::Sink::Clock;
  // An orchestra takes its time to come.
  if (kind % 8 != 1) options.FontFile = "/nowhere/none.sf2";
  SoundEngine engine(options);
  for (int command = 0; command < kMostCommands && !input.AtEnd(); ++command) {
    Command(input, engine, folder, pulls);
  }
}

}  // namespace orvane::fuzz
