// Sound goes through text commands on named channels. Failures are never reported: without sound
// the game goes on silently.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "src/platform/services.h"

namespace orvane {

// The channels of the music, by the places where it is heard.
constexpr const char* kFirstRoundMusic = "bgm1";
constexpr const char* kSecondRoundMusic = "bgm2";
constexpr const char* kThirdRoundMusic = "bgm3";
constexpr const char* kFightMusic = "bgm4";
constexpr const char* kDragonMusic = "bgm5";
constexpr const char* kLastDragonMusic = "bgm6";
constexpr const char* kEndingMusic = "bgm7";
constexpr const char* kLastStageMusic = "bgm8";
constexpr std::array<const char*, 8> kMusicChannels = {
    kFirstRoundMusic, kSecondRoundMusic, kThirdRoundMusic, kFightMusic,
    kDragonMusic,     kLastDragonMusic,  kEndingMusic,     kLastStageMusic};

// The channels of the effects.
constexpr const char* kItemGotSound = "snd1";
constexpr const char* kCutSound = "snd2";
constexpr const char* kFireSound = "snd3";
constexpr const char* kAtomicSound = "snd4";
constexpr const char* kHealingSound = "snd5";
constexpr const char* kQuakeSound = "snd6";
constexpr const char* kVictorySound = "snd7";
constexpr const char* kThunderSound = "snd8";
constexpr const char* kBlastSound = "snd9";
constexpr const char* kIceSound = "snd10";
constexpr std::array<const char*, 10> kEffectChannels = {
    kItemGotSound, kCutSound,     kFireSound,    kAtomicSound, kHealingSound,
    kQuakeSound,   kVictorySound, kThunderSound, kBlastSound,  kIceSound};

// The commands, for a game folder whose path has no separator at its end.
std::string OpenCommand(const std::string& folder, const std::string& file,
                        const std::string& alias);
std::string StatusCommand(const std::string& alias);
std::string PlayCommand(const std::string& alias);
std::string CloseCommand(const std::string& alias);

// A command as a sound device reads it.
struct SoundCommand {
  enum class Verb { Open, Status, Play, Close, Unknown };
  Verb What = Verb::Unknown;
  std::string Alias;
  std::string File;  // of Open: the path, with "/" between its folders
};

SoundCommand ParseSoundCommand(std::string_view command);

// The channels as the game works with them.
class SoundChannels {
 public:
  SoundChannels(SoundDevice& device, std::string folder)
      : device_(device), folder_(std::move(folder)) {}

  // Opens a file of the folder "Sound" under its channel's alias; nothing happens if it is open.
  void Open(const std::string& alias);
  void Play(const std::string& alias) { device_.Send(PlayCommand(alias)); }
  void Close(const std::string& alias) { device_.Send(CloseCommand(alias)); }
  // The reply to a status query: "stopped", "playing", or nothing from a channel that is not open.
  std::string Status(const std::string& alias) { return device_.Send(StatusCommand(alias)); }

 private:
  SoundDevice& device_;
  std::string folder_;
};

// The sound file of a channel, "Round1.mid" for "bgm1"; empty for an unknown alias.
std::string SoundFile(const std::string& alias);

}  // namespace orvane
