// What work costs, however busy the machine is.
#pragma once

#include <ctime>

namespace orvane::test {

// Seconds of the processor's time that an action takes, over all threads.
template <class Action>
double TimeOf(const Action& action) {
  const std::clock_t begin = std::clock();
  action();
  return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

}  // namespace orvane::test
