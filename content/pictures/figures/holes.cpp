#include "content/pictures/figures/holes.h"

namespace orvane::paint {
namespace {

// The places above, below and beside one, as far as they lie in the cell.
std::vector<size_t> Around(size_t at, size_t width, size_t count) {
  std::vector<size_t> places;
  if (at >= width) places.push_back(at - width);
  if (at % width != 0) places.push_back(at - 1);
  if ((at + 1) % width != 0) places.push_back(at + 1);
  if (at + width < count) places.push_back(at + width);
  return places;
}

}  // namespace

std::vector<HolePixel> SmallHoles(const std::vector<bool>& solid, int width, size_t largest) {
  const size_t row = static_cast<size_t>(width);
  std::vector<bool> seen = solid;
  std::vector<HolePixel> found;
  for (size_t start = 0; start < solid.size(); ++start) {
    if (seen[start]) continue;
    seen[start] = true;
    std::vector<size_t> hole{start};
    bool open = false;
    for (size_t i = 0; i < hole.size(); ++i) {
      const std::vector<size_t> places = Around(hole[i], row, solid.size());
      open = open || places.size() < 4;
      for (const size_t place : places) {
        if (seen[place]) continue;
        seen[place] = true;
        hole.push_back(place);
      }
    }
    if (open || hole.size() > largest) continue;
    for (const size_t at : hole) {
      for (const size_t place : Around(at, row, solid.size())) {
        if (!solid[place]) continue;
        found.push_back({at, place});
        break;
      }
    }
  }
  return found;
}

}  // namespace orvane::paint
