// The game pad that is plugged in.
#pragma once

#include "src/frontend/shared/pad_source.h"
#include "src/frontend/windows/system/windows_api.h"

namespace orvane {

// The first pad that the system's library for pads knows; pads may come and go at any time. The
// library is looked for when this is made: not every system has it.
class PadDevice : public PadSource {
 public:
  PadDevice();
  ~PadDevice() override;
  PadDevice(const PadDevice&) = delete;
  PadDevice& operator=(const PadDevice&) = delete;

  std::optional<PadState> Read() override;

 private:
  HMODULE library_ = nullptr;
  FARPROC get_state_ = nullptr;
  DWORD pad_ = 0;  // of those that the library counts
  PadStick stick_;
};

}  // namespace orvane
