// Surfaces drawn on with any rectangles, beside a plain model that does the same pixel by pixel.
#include "src/ui/surface.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <vector>

#include "tests/fuzz/harness.h"

namespace orvane::fuzz {
namespace {

constexpr int kMostActions = 40;

// A picture that knows nothing of rows and copies.
struct Model {
  int Width = 0;
  int Height = 0;
  std::vector<Colour> Pixels;

  bool Has(std::int64_t x, std::int64_t y) const {
    return x >= 0 && y >= 0 && x < Width && y < Height;
  }
  Colour& At(std::int64_t x, std::int64_t y) {
    return Pixels.at(static_cast<size_t>(y * Width + x));
  }
};

struct Pair {
  Surface Real;
  Model Plain;
};

Pair MakePair(Input& input) {
  const int width = input.Below(34);
  const int height = input.Below(26);
  Surface::Pixels pixels(static_cast<size_t>(width * height));
  auto shade = static_cast<Colour>(input.Short());
  for (Colour& pixel : pixels) pixel = (shade = shade * 1103515245U + 12345U) & 0xffffffU;
  return {Surface(width, height, pixels), {width, height, pixels}};
}

Rect AnyRect(Input& input) {
  Rect rect;
  for (int* number : {&rect.X, &rect.Y, &rect.Width, &rect.Height}) *number = input.Coordinate();
  return rect;
}

Colour Join(Colour to, Colour from, Blit operation) {
  if (operation == Blit::Or) return to | from;
  if (operation == Blit::And) return to & from;
  return from;
}

void Stretch(Model& to, const Rect& target, Model from, const Rect& area, Blit operation) {
  if (target.Width <= 0 || target.Height <= 0 || area.Width <= 0 || area.Height <= 0) return;
  for (int y = 0; y < to.Height; ++y) {
    for (int x = 0; x < to.Width; ++x) {
      const std::int64_t i = x - std::int64_t{target.X};
      const std::int64_t j = y - std::int64_t{target.Y};
      if (i < 0 || j < 0 || i >= target.Width || j >= target.Height) continue;
      const std::int64_t from_x = area.X + i * area.Width / target.Width;
      const std::int64_t from_y = area.Y + j * area.Height / target.Height;
      if (from.Has(from_x, from_y))
        to.At(x, y) = Join(to.At(x, y), from.At(from_x, from_y), operation);
    }
  }
}

void Box(Model& to, int x1, int y1, int x2, int y2, Colour colour) {
  for (int y = 0; y < to.Height; ++y) {
    for (int x = 0; x < to.Width; ++x) {
      const bool inside = x >= std::min(x1, x2) && x <= std::max(x1, x2) && y >= std::min(y1, y2) &&
                          y <= std::max(y1, y2);
      if (inside) to.At(x, y) = colour;
    }
  }
}

// What a circle draws is held within its square; its pixels are the unit tests' business.
void Circle(Pair& pair, Input& input) {
  const std::int64_t x = input.Coordinate();
  const std::int64_t y = input.Coordinate();
  const std::int64_t radius = input.Coordinate();
  DrawCircle(pair.Real, static_cast<int>(x), static_cast<int>(y), static_cast<int>(radius), 1);
  for (int row = 0; row < pair.Plain.Height; ++row) {
    for (int column = 0; column < pair.Plain.Width; ++column) {
      const Colour now = pair.Real.At(column, row);
      if (now == pair.Plain.At(column, row)) continue;
      Require(now == 1 && std::abs(column - x) <= radius && std::abs(row - y) <= radius,
              "a circle stays within its square");
      pair.Plain.At(column, row) = now;
    }
  }
}

void Compare(Pair& pair) {
  for (int y = 0; y < pair.Plain.Height; ++y) {
    for (int x = 0; x < pair.Plain.Width; ++x) {
      Require(pair.Real.At(x, y) == pair.Plain.At(x, y), "a surface is drawn on as the model is");
    }
  }
}

void Act(Input& input, std::array<Pair, 2>& pairs) {
  Pair& to = pairs.at(static_cast<size_t>(input.Below(2)));
  Pair& from = pairs.at(static_cast<size_t>(input.Below(2)));
  const auto operation = static_cast<Blit>(input.Below(3));
  switch (input.Below(7)) {
    case 0: {
      const Rect target = AnyRect(input);
      const int x = input.Coordinate();
      const int y = input.Coordinate();
      BitBlt(to.Real, target.X, target.Y, target.Width, target.Height, from.Real, x, y, operation);
      Stretch(to.Plain, target, from.Plain, {x, y, target.Width, target.Height}, operation);
      break;
    }
    case 1: {
      const Rect target = AnyRect(input);
      const Rect area = AnyRect(input);
      StretchBlt(to.Real, target, from.Real, area, operation);
      Stretch(to.Plain, target, from.Plain, area, operation);
      break;
    }
    case 2: {
      const Rect corners = AnyRect(input);
      FillBox(to.Real, corners.X, corners.Y, corners.Width, corners.Height, 2);
      Box(to.Plain, corners.X, corners.Y, corners.Width, corners.Height, 2);
      break;
    }
    case 3:
      Circle(to, input);
      break;
    case 4:
      to.Real.Refresh();
      if (to.Plain.Width * to.Plain.Height > 0) {
        Require(to.Real.Shown() == to.Plain.Pixels, "what is refreshed is shown");
      }
      break;
    case 5:
      to.Real = from.Real;
      to.Plain = from.Plain;
      break;
    default: {
      const int x = input.Coordinate();
      const int y = input.Coordinate();
      const bool inside = Allow([&] { to.Real.At(x, y); });
      Require(inside == to.Plain.Has(x, y), "only what is inside has a colour");
      Require(Allow([&] { to.Real.ShownAt(x, y); }) == inside, "only what is inside is shown");
    }
  }
}

}  // namespace

void Try(Input& input) {
  std::array<Pair, 2> pairs{MakePair(input), MakePair(input)};
  for (int action = 0; action < kMostActions && !input.AtEnd(); ++action) Act(input, pairs);
  for (Pair& pair : pairs) Compare(pair);
}

}  // namespace orvane::fuzz
