#include "tests/windows/likeness.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

namespace orvane::test {
namespace {

// Of white, 0 to 1.
constexpr double kDark = 0.6;
constexpr double kRatherDark = 0.8;
// How far a channel may be off, of 255.
constexpr int kLikeShade = 8;

// How light each pixel is when the picture is made as large as `size`, each pixel the mean of what
// lies under it.
class Lightness {
 public:
  Lightness(const QImage& image, const QSize& size) : width_(size.width()), height_(size.height()) {
    const Columns columns = Shares(image.width(), width_);
    const Columns rows = Shares(image.height(), height_);
    const size_t count = static_cast<size_t>(width_) * static_cast<size_t>(height_);
    values_.reserve(count);
    for (const auto& row : rows) {
      for (const auto& column : columns) values_.push_back(Mean(image, column, row));
    }
  }

  bool IsDark(int x, int y) const { return At(x, y) < kDark; }
  bool IsRatherDarkAround(int x, int y) const {
    for (int dy = -1; dy <= 1; ++dy) {
      for (int dx = -1; dx <= 1; ++dx) {
        const int at_x = x + dx;
        const int at_y = y + dy;
        if (at_x < 0 || at_y < 0 || at_x >= width_ || at_y >= height_) continue;
        if (At(at_x, at_y) < kRatherDark) return true;
      }
    }
    return false;
  }

 private:
  // What part of a pixel lies under a larger one.
  struct Share {
    int Pixel;
    double Part;
  };
  using Columns = std::vector<std::vector<Share>>;

  static Columns Shares(int from, int to) {
    Columns all(static_cast<size_t>(to));
    const double step = static_cast<double>(from) / to;
    for (int i = 0; i < to; ++i) {
      const double begin = i * step;
      const double end = begin + step;
      for (int pixel = static_cast<int>(begin); pixel < end && pixel < from; ++pixel) {
        const double part = std::min<double>(end, pixel + 1) - std::max<double>(begin, pixel);
        if (part > 1e-6) all[static_cast<size_t>(i)].push_back({pixel, part});
      }
    }
    return all;
  }

  static double Mean(const QImage& image, const std::vector<Share>& column,
                     const std::vector<Share>& row) {
    double sum = 0;
    double weight = 0;
    for (const Share& down : row) {
      for (const Share& across : column) {
        const QRgb colour = image.pixel(across.Pixel, down.Pixel);
        const double light =
            0.2126 * qRed(colour) + 0.7152 * qGreen(colour) + 0.0722 * qBlue(colour);
        sum += light / 255 * across.Part * down.Part;
        weight += across.Part * down.Part;
      }
    }
    return sum / weight;
  }

  double At(int x, int y) const {
    return values_[static_cast<size_t>(y) * static_cast<size_t>(width_) + static_cast<size_t>(x)];
  }

  int width_;
  int height_;
  std::vector<double> values_;
};

int Lost(const Lightness& from, const Lightness& in, const QSize& size) {
  int lost = 0;
  for (int y = 0; y < size.height(); ++y) {
    for (int x = 0; x < size.width(); ++x) {
      if (from.IsDark(x, y) && !in.IsRatherDarkAround(x, y)) ++lost;
    }
  }
  return lost;
}

// A pixel of a picture that is enlarged by `half_steps` and then halved.
struct Mixed {
  Mixed(const QImage& drawn, const QPoint& corner, int x, int y, int half_steps) {
    for (const int up : {2 * y, 2 * y + 1}) {
      for (const int across : {2 * x, 2 * x + 1}) {
        const QRgb colour = drawn.pixel(corner + QPoint(across / half_steps, up / half_steps));
        Red += qRed(colour) / 4.0;
        Green += qGreen(colour) / 4.0;
        Blue += qBlue(colour) / 4.0;
      }
    }
  }
  bool IsLike(QRgb other) const {
    return std::fabs(Red - qRed(other)) <= kLikeShade &&
           std::fabs(Green - qGreen(other)) <= kLikeShade &&
           std::fabs(Blue - qBlue(other)) <= kLikeShade;
  }

  double Red = 0;
  double Green = 0;
  double Blue = 0;
};

}  // namespace

int PixelsWithoutTheirLike(const QImage& drawn, const QImage& found) {
  const Lightness one(drawn, drawn.size());
  const Lightness other(found, drawn.size());
  return std::max(Lost(one, other, drawn.size()), Lost(other, one, drawn.size()));
}

int PixelsNotCrisp(const QImage& drawn, const QImage& found, const QRect& place, int half_steps) {
  const QPoint corner = place.topLeft() * half_steps / 2;
  int off = 0;
  for (int y = 0; y < place.height() * half_steps / 2; ++y) {
    for (int x = 0; x < place.width() * half_steps / 2; ++x) {
      const Mixed wanted(drawn, place.topLeft(), x, y, half_steps);
      const QPoint at = corner + QPoint(x, y);
      if (!found.valid(at) || !wanted.IsLike(found.pixel(at))) ++off;
    }
  }
  return off;
}

}  // namespace orvane::test
