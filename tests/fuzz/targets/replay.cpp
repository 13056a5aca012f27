// The record of a play, as somebody has sent it: its steps, or the error of a broken one.
#include "src/replay/reader.h"
#include "tests/fuzz/harness.h"

namespace orvane::fuzz {

void Try(Input& input) {
  const std::string bytes = input.Rest();
  size_t steps = 0;
  try {
    ReplayReader reader(bytes);
    while (reader.Next()) ++steps;
  } catch (const BrokenReplay&) {
    return;
  }
  Require(steps > 0 && steps <= bytes.size(), "a step takes a byte at least");
}

}  // namespace orvane::fuzz
