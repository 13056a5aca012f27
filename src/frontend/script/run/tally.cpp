#include "src/frontend/script/run/tally.h"

#include <cstdio>

namespace orvane {
namespace {

// Standard output is shared with what the scripts print, so it goes through the same buffer.
void Print(const std::string& line) {
  std::fputs((line + "\n").c_str(), stdout);
  std::fflush(stdout);
}

}  // namespace

void Tally::Fail(const std::string& line) {
  ++failed_;
  Print(line);
}

void Tally::Break(const std::string& line) {
  broken_ = true;
  Print(line);
}

void Tally::PrintSum() const {
  Print(std::to_string(passed_) + " passed, " + std::to_string(failed_) + " failed");
}

int Tally::ExitStatus() const {
  if (broken_) return 2;
  return failed_ > 0 ? 1 : 0;
}

}  // namespace orvane
