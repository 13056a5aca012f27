// Pixels that several surfaces have in common.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <mutex>
#include <utility>
#include <vector>

namespace orvane {

// A colour as 0xRRGGBB.
using Colour = uint32_t;

// The pixels of copies of a surface, until one of them is drawn on. Those of a sheet, and of what
// has one colour, are made when they are first looked at, from whichever thread that is: most plays
// see few of the sheets and screens.
class SharedPixels {
 public:
  using Pixels = std::vector<Colour>;
  using Maker = std::function<Pixels()>;

  explicit SharedPixels(Pixels pixels) : pixels_(std::move(pixels)), made_(true) {}
  explicit SharedPixels(Maker maker) : maker_(std::move(maker)) {}

  Pixels& Get() {
    if (!made_.load(std::memory_order_acquire)) Make();
    return pixels_;
  }

 private:
  void Make() {
    std::call_once(making_, [this] {
      pixels_ = maker_();
      made_.store(true, std::memory_order_release);
    });
  }

  const Maker maker_;
  Pixels pixels_;
  std::atomic<bool> made_ = false;
  std::once_flag making_;
};

}  // namespace orvane
