// The sound channels in a browser. The game goes by the clock; what is heard, the page sees to,
// once it may and where it can.
#pragma once

#include <map>
#include <string>

#include "src/frontend/web/services/page.h"
#include "src/platform/services.h"

namespace orvane {

// Carries out the commands on channels. A file is there if its length is known.
//
// - open replies "1", or nothing if the channel is open already or there is no such file.
// - status replies "stopped" or "playing", or nothing from a channel that is not open. What was
//   never played or has run to its end is stopped. A piece counts as stopped a moment before its
//   end, and a start within that moment follows on its last bar without a gap.
// - play starts from the beginning, close ends the sound; no reply.
class PageSound : public SoundDevice {
 public:
  explicit PageSound(Page& page) : page_(page) {}

  // How long a file plays, in ms, by its name without folder and ending.
  void SetLength(const std::string& file, double milliseconds) { lengths_[file] = milliseconds; }

  std::string Send(const std::string& command) override;

 private:
  struct Channel {
    double Length = 0;
    double Lead = 0;  // how long before its end it counts as stopped
    bool HasPlayed = false;
    double Start = 0;
  };

  std::string Open(const std::string& alias, const std::string& file);
  void Play(const std::string& alias, Channel& channel);

  Page& page_;
  std::map<std::string, double> lengths_;
  std::map<std::string, Channel> channels_;
};

}  // namespace orvane
