// Sound goes through text commands on named channels: "bgm1" to "bgm8" for music, "snd1" to "snd10"
// for effects. Failures are never reported: without sound the game goes on silently.
#pragma once

#include <string>
#include <string_view>

#include "src/platform/services.h"

namespace orvane {

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
