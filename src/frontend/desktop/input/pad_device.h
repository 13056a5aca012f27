// The game pad that is plugged in.
#pragma once

#include <optional>

#include "src/frontend/shared/pad_source.h"

struct _SDL_GameController;  // SDL's own name

namespace orvane {

// The first pad that SDL knows how to read; pads may come and go at any time.
class PadDevice : public PadSource {
 public:
  PadDevice();
  ~PadDevice() override;
  PadDevice(const PadDevice&) = delete;
  PadDevice& operator=(const PadDevice&) = delete;

  std::optional<PadState> Read() override;

 private:
  void Find();

  bool started_;
  _SDL_GameController* controller_ = nullptr;
  PadStick stick_;
};

}  // namespace orvane
