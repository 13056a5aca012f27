// Which tiles one can walk on.
#pragma once

namespace orvane {

// Whether a tile code is walkable; everything else blocks, code 0 included.
bool IsWalkable(int code);

}  // namespace orvane
