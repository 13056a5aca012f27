#include "src/frontend/desktop/app/sleeper.h"

#include <chrono>
#include <thread>

namespace orvane {

void DesktopSleeper::Sleep(int milliseconds) {
  if (milliseconds <= 0) return;
  if (sleep_) return sleep_(milliseconds);
  std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

}  // namespace orvane
