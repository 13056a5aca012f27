#include "tests/unit/pictures/figure_checks.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace orvane::pictures {
namespace {

// Rows that a kind of pixel covers, and how many pixels there are.
struct Rows {
  int First = 1 << 20;
  int Last = -1;
  int Count = 0;

  void Add(int y) {
    First = std::min(First, y);
    Last = std::max(Last, y);
    ++Count;
  }
};

}  // namespace

Faults ShadowFaults(const Surface& sheet, const SpritePair& pair, int least) {
  Rows figure;
  Rows shadow;
  for (int y = 0; y < pair.Image.Height; ++y) {
    for (int x = 0; x < pair.Image.Width; ++x) {
      if (InFigure(sheet, pair, x, y)) figure.Add(y);
      if (sheet.At(pair.Image.X + x, pair.Image.Y + y) == kShadow) shadow.Add(y);
    }
  }
  Faults faults;
  if (shadow.Count < least) {
    faults.push_back(pair.Name + ": its shadow has " + std::to_string(shadow.Count) +
                     " pixels of at least " + std::to_string(least));
    return faults;
  }
  if (figure.Count < pair.LeastFigure) {
    faults.push_back(pair.Name + ": without its shadow it has only " +
                     std::to_string(figure.Count) + " pixels");
  }
  const int top = std::min(figure.First, shadow.First);
  const int bottom = std::max(figure.Last, shadow.Last);
  if (shadow.First < bottom - (bottom - top) / 3) {
    faults.push_back(pair.Name + ": its shadow begins in row " + std::to_string(shadow.First) +
                     ", not in the lowest third");
  }
  if (shadow.Last < figure.Last) {
    faults.push_back(pair.Name + ": it stands below its shadow");
  }
  return faults;
}

Faults PinholeFaults(const Surface& sheet, const SpritePair& pair, int largest) {
  const int width = pair.Image.Width;
  const int height = pair.Image.Height;
  std::vector<bool> seen(static_cast<size_t>(width) * static_cast<size_t>(height));
  Faults faults;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      std::vector<std::pair<int, int>> hole;
      bool open = false;
      const auto visit = [&](int at_x, int at_y) {
        if (at_x < 0 || at_y < 0 || at_x >= width || at_y >= height) {
          open = true;
          return;
        }
        const auto place =
            static_cast<size_t>(at_y) * static_cast<size_t>(width) + static_cast<size_t>(at_x);
        if (seen[place] || InFigure(sheet, pair, at_x, at_y)) return;
        seen[place] = true;
        hole.emplace_back(at_x, at_y);
      };
      visit(x, y);
      for (size_t i = 0; i < hole.size(); ++i) {
        const auto [at_x, at_y] = hole[i];
        visit(at_x + 1, at_y);
        visit(at_x - 1, at_y);
        visit(at_x, at_y + 1);
        visit(at_x, at_y - 1);
      }
      if (open || hole.empty() || hole.size() > static_cast<size_t>(largest)) continue;
      faults.push_back(pair.Name + ": a hole of " + std::to_string(hole.size()) + " pixels at (" +
                       std::to_string(x) + ", " + std::to_string(y) + ")");
    }
  }
  return faults;
}

}  // namespace orvane::pictures
