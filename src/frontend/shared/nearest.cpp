#include "src/frontend/shared/nearest.h"

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

// The edges of a box, both within it, and its middle.
struct Edges {
  explicit Edges(const Rect& box)
      : Left(box.X), Top(box.Y), Right(box.X + box.Width - 1), Bottom(box.Y + box.Height - 1) {}

  int MiddleX() const { return (Left + Right) / 2; }
  int MiddleY() const { return (Top + Bottom) / 2; }

  int Left, Top, Right, Bottom;
};

// Where a box lies, seen from another one that looks in a direction.
struct Sight {
  int Ahead = 0;  // from middle to middle; not above 0 for what lies beside or behind
  int Off = 0;    // from edge to edge, across the direction
  int Aside = 0;  // from middle to middle, across the direction
};

Sight Look(const Edges& from, const Edges& box, Direction direction) {
  const int way_x = box.MiddleX() - from.MiddleX();
  const int way_y = box.MiddleY() - from.MiddleY();
  const int off_column = Gap(from.Left, from.Right, box.Left, box.Right);
  const int off_row = Gap(from.Top, from.Bottom, box.Top, box.Bottom);
  switch (direction) {
    case Direction::Left:
      return {box.Right < from.MiddleX() ? -way_x : 0, off_row, std::abs(way_y)};
    case Direction::Right:
      return {box.Left > from.MiddleX() ? way_x : 0, off_row, std::abs(way_y)};
    case Direction::Up:
      return {box.Bottom < from.MiddleY() ? -way_y : 0, off_column, std::abs(way_x)};
    case Direction::Down:
      break;
  }
  return {box.Top > from.MiddleY() ? way_y : 0, off_column, std::abs(way_x)};
}

}  // namespace

std::optional<size_t> Nearest(const Rect& from, const std::vector<Rect>& boxes,
                              Direction direction) {
  // What is off the way must be much nearer to be meant. Boxes of a grid may touch, so that two of
  // them lie on the way, of which one lies straight on it.
  constexpr int weight_of_off = 4;
  std::optional<size_t> nearest;
  std::pair<int, int> least(std::numeric_limits<int>::max(), 0);
  for (size_t i = 0; i < boxes.size(); ++i) {
    const Sight sight = Look(Edges(from), Edges(boxes[i]), direction);
    const std::pair<int, int> cost(sight.Ahead + weight_of_off * sight.Off, sight.Aside);
    if (sight.Ahead <= 0 || cost >= least) continue;
    least = cost;
    nearest = i;
  }
  return nearest;
}

}  // namespace orvane
