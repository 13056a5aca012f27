// Where a front end reads a game pad.
#pragma once

#include <memory>
#include <optional>

#include "src/frontend/shared/pad_state.h"

namespace orvane {

class PadSource {
 public:
  virtual ~PadSource() = default;
  // What is held down now; nothing while no pad is plugged in.
  virtual std::optional<PadState> Read() = 0;
};

// The first pad that the system knows how to read; pads may come and go at any time. Each front end
// has its own.
std::unique_ptr<PadSource> OpenPads();

}  // namespace orvane
