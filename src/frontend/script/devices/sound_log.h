// A sound device that sounds nothing: it writes its commands down and answers for the channels.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <unordered_map>
#include <vector>

#include "src/platform/services.h"
#include "src/platform/sound_channels.h"

namespace orvane {

class SoundLog : public SoundDevice {
 public:
  // Forgets all commands and closes all channels, for a program in this folder.
  void Restart(const std::filesystem::path& folder);

  // A channel opens when its file exists; what it plays goes on until it is stopped or closed.
  std::string Send(const std::string& command) override;

  // The commands sent since Restart or Forget, the folder's path replaced by PATH.
  std::vector<std::string> Commands(bool with_status) const;
  void Forget() { sent_.clear(); }

  // "stopped", "playing", or nothing from a channel that is not open.
  std::string Mode(const std::string& alias) const;
  // What the channel plays has come to its end; nothing if it is not open.
  void EndPiece(const std::string& alias);
  // Closes all channels.
  void Silence() { playing_.clear(); }

 private:
  // A command that has been sent at least once. The same few come at every tick, so each is read
  // once and noted by its number.
  struct Known {
    SoundCommand Parsed;
    std::string Shown;  // with PATH
  };

  uint32_t Number(const std::string& command);

  std::string folder_;
  std::unordered_map<std::string, uint32_t> numbers_;
  std::vector<Known> known_;
  std::vector<uint32_t> sent_;
  std::unordered_map<std::string, bool> playing_;  // the open channels
};

}  // namespace orvane
