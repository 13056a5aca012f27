#include "src/platform/sound_channels.h"

#include <gtest/gtest.h>

#include <vector>

namespace orvane {
namespace {

class Recorder : public SoundDevice {
 public:
  std::string Send(const std::string& command) override {
    Commands.push_back(command);
    return "";
  }
  std::vector<std::string> Commands;
};

TEST(Sound, SendsTheExactTexts) {
  Recorder device;
  SoundChannels sound(device, "/games/orvane");
  sound.Open("bgm1");
  sound.Status("bgm1");
  sound.Play("snd10");
  sound.Close("snd9");
  EXPECT_EQ(device.Commands,
            (std::vector<std::string>{R"(open "/games/orvane\Sound\Round1.mid" alias bgm1)",
                                      "status bgm1 mode", "play snd10 from 0", "close snd9"}));
}

TEST(Sound, ADeviceReadsThemBack) {
  const SoundCommand open = ParseSoundCommand(OpenCommand("/a b/c", "Ice.wav", "snd10"));
  EXPECT_EQ(open.What, SoundCommand::Verb::Open);
  EXPECT_EQ(open.File, "/a b/c/Sound/Ice.wav");
  EXPECT_EQ(open.Alias, "snd10");
  EXPECT_EQ(ParseSoundCommand("status bgm4 mode").What, SoundCommand::Verb::Status);
  EXPECT_EQ(ParseSoundCommand("play snd2 from 0").Alias, "snd2");
  EXPECT_EQ(ParseSoundCommand("close bgm5").What, SoundCommand::Verb::Close);
  EXPECT_EQ(ParseSoundCommand("").What, SoundCommand::Verb::Unknown);
  EXPECT_EQ(ParseSoundCommand("open \"half").What, SoundCommand::Verb::Open);
}

TEST(Sound, EveryChannelHasItsFile) {
  EXPECT_EQ(SoundFile("bgm4"), "Battle1.mid");
  EXPECT_EQ(SoundFile("bgm8"), "Doukutu.mid");
  EXPECT_EQ(SoundFile("snd9"), "Bom.wav");
  EXPECT_EQ(SoundFile("snd11"), "");
}

}  // namespace
}  // namespace orvane
