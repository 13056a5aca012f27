#include "src/frontend/shared/tick_log.h"

#include <algorithm>
#include <cstdlib>

#include "src/ui/screen.h"

namespace orvane {

TickLog::TickLog() {
  if (const char* name = std::getenv("ORVANE_TICKS")) file_.reset(std::fopen(name, "w"));
}

void TickLog::Write(const Timer& timer, double now) {
  if (file_ == nullptr) return;
  std::fprintf(file_.get(), "%s %d %.3f\n", timer.Name().c_str(),
               std::max(timer.Milliseconds, timer.Pace), now);
}

}  // namespace orvane
