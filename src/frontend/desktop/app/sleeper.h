// The game's sleep.
#pragma once

#include <functional>

#include "src/platform/services.h"

namespace orvane {

class DesktopSleeper : public Sleeper {
 public:
  // What carries the sleep out, keeping windows painted; while it is empty the thread just waits.
  void Attach(std::function<void(int)> sleep) { sleep_ = std::move(sleep); }

  void Sleep(int milliseconds) override;

 private:
  std::function<void(int)> sleep_;
};

}  // namespace orvane
