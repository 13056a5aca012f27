// A record of when the game's ticks were served, for tests.
#pragma once

#include <cstdio>
#include <memory>

#include "src/ui/timer.h"

namespace orvane {

class TickLog {
 public:
  // Writes to the file that ORVANE_TICKS names; nothing where it names none or cannot be written.
  TickLog();

  // One line: the timer's name, the period asked for and the time, both in ms.
  void Write(const Timer& timer, double now);

 private:
  struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };
  std::unique_ptr<std::FILE, Closer> file_;
};

}  // namespace orvane
