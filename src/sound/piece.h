// A piece of music that is open.
#pragma once

#include <atomic>
#include <string>

#include "src/sound/song.h"

namespace orvane {

// It starts when what its sound needs has been read, or is known to be missing.
struct Piece {
  Song Notes;
  std::string Name;  // of its file, without folder and ending
  std::atomic<bool> Ready = false;
};

}  // namespace orvane
