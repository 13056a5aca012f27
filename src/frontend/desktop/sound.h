// The sound device of the desktop.
#pragma once

#include "src/platform/services.h"

namespace orvane {

// A device that no command ever succeeds on.
class SilentSound : public SoundDevice {
 public:
  std::string Send(const std::string& command) override {
    static_cast<void>(command);
    return {};
  }
};

using DesktopSound = SilentSound;

}  // namespace orvane
