// Pixels that several surfaces have in common.
#pragma once

#include <cstdint>
#include <functional>
#include <mutex>
#include <utility>
#include <vector>

namespace orvane {

// A colour as 0xRRGGBB.
using Colour = uint32_t;

// The pixels of copies of a surface, until one of them is drawn on. Those of a sheet are made when
// they are first looked at, from whichever thread that is: most plays see few of the sheets.
class SharedPixels {
 public:
  using Pixels = std::vector<Colour>;
  using Maker = std::function<Pixels()>;

  explicit SharedPixels(Pixels pixels) : pixels_(std::move(pixels)) {}
  explicit SharedPixels(Maker maker) : maker_(std::move(maker)) {}

  Pixels& Get() {
    if (maker_) std::call_once(made_, [this] { pixels_ = maker_(); });
    return pixels_;
  }

 private:
  const Maker maker_;
  std::once_flag made_;
  Pixels pixels_;
};

}  // namespace orvane
