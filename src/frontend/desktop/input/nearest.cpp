#include "src/frontend/desktop/input/nearest.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <utility>

namespace orvane {
namespace {

// How far apart two spans of a line are; 0 where they share a part.
int Gap(int from, int to, int other_from, int other_to) {
  return std::max({0, other_from - to, from - other_to});
}

// Where a box lies, seen from another one that looks in a direction.
struct Sight {
  int Ahead = 0;  // from middle to middle; not above 0 for what lies beside or behind
  int Off = 0;    // from edge to edge, across the direction
  int Aside = 0;  // from middle to middle, across the direction
};

Sight Look(const QRect& from, const QRect& box, Key direction) {
  const QPoint way = box.center() - from.center();
  const int off_column = Gap(from.left(), from.right(), box.left(), box.right());
  const int off_row = Gap(from.top(), from.bottom(), box.top(), box.bottom());
  switch (direction) {
    case Key::Left:
      return {box.right() < from.center().x() ? -way.x() : 0, off_row, std::abs(way.y())};
    case Key::Right:
      return {box.left() > from.center().x() ? way.x() : 0, off_row, std::abs(way.y())};
    case Key::Up:
      return {box.bottom() < from.center().y() ? -way.y() : 0, off_column, std::abs(way.x())};
    case Key::Down:
      return {box.top() > from.center().y() ? way.y() : 0, off_column, std::abs(way.x())};
  }
  return {};
}

}  // namespace

std::optional<size_t> Nearest(const QRect& from, const std::vector<QRect>& boxes, Key direction) {
  // What is off the way must be much nearer to be meant. Boxes of a grid may touch, so that two of
  // them lie on the way, of which one lies straight on it.
  constexpr int weight_of_off = 4;
  std::optional<size_t> nearest;
  std::pair<int, int> least(std::numeric_limits<int>::max(), 0);
  for (size_t i = 0; i < boxes.size(); ++i) {
    const Sight sight = Look(from, boxes[i], direction);
    const std::pair<int, int> cost(sight.Ahead + weight_of_off * sight.Off, sight.Aside);
    if (sight.Ahead <= 0 || cost >= least) continue;
    least = cost;
    nearest = i;
  }
  return nearest;
}

}  // namespace orvane
