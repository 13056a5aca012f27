// How much memory an input takes.
#pragma once

#include <cstddef>

namespace orvane::fuzz {

// Watches from its making on. With the sanitizers it counts what is asked for, whether it is used
// or not; without them, by which finds are only played again, what the process has used at most,
// and where the system does not tell that, nothing.
class MemoryWatch {
 public:
  MemoryWatch();

  // Bytes beyond those at the beginning.
  std::size_t Most() const;

 private:
  std::size_t before_;
};

}  // namespace orvane::fuzz
