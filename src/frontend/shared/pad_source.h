// Where a front end reads a game pad.
#pragma once

#include <optional>

#include "src/frontend/shared/pad_state.h"

namespace orvane {

class PadSource {
 public:
  virtual ~PadSource() = default;
  // What is held down now; nothing while no pad is plugged in.
  virtual std::optional<PadState> Read() = 0;
};

}  // namespace orvane
