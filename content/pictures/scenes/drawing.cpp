#include "content/pictures/scenes/drawing.h"

#include <array>
#include <charconv>
#include <cstring>
#include <numbers>
#include <stdexcept>
#include <string>

namespace orvane::paint::scene {
namespace {

// Reads a path's commands and numbers one after the other.
class PathReader {
 public:
  explicit PathReader(std::string_view text) : rest_(text) {}

  // False at the end of the text; otherwise the command, the last one again before a number.
  bool NextCommand(char& command) {
    SkipBlanks();
    if (rest_.empty()) return false;
    const char first = rest_.front();
    if (std::strchr("MLHVQCZ", first) != nullptr) {
      command = first;
      rest_.remove_prefix(1);
    }
    return true;
  }

  double Number() {
    SkipBlanks();
    double value = 0;
    const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), value);
    if (error != std::errc())
      throw std::invalid_argument("path: number expected: " + std::string(rest_));
    rest_.remove_prefix(static_cast<size_t>(end - rest_.data()));
    return value;
  }

 private:
  void SkipBlanks() {
    while (!rest_.empty() &&
           (rest_.front() == ' ' || rest_.front() == ',' || rest_.front() == '\n')) {
      rest_.remove_prefix(1);
    }
  }

  std::string_view rest_;
};

double Level(uint32_t colour, int shift) {
  return static_cast<double>(colour >> shift & 0xFF) / 255;
}

}  // namespace

Drawing::Drawing(int width, int height, int fine)
    : width_(width),
      height_(height),
      fine_(fine),
      surface_(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width * fine, height * fine)),
      context_(cairo_create(surface_.get())) {
  cairo_scale(context_.get(), fine, fine);
  cairo_set_line_join(context_.get(), CAIRO_LINE_JOIN_ROUND);
  cairo_set_line_cap(context_.get(), CAIRO_LINE_CAP_ROUND);
  cairo_set_fill_rule(context_.get(), CAIRO_FILL_RULE_EVEN_ODD);
}

void Drawing::Trace(std::string_view path) {
  cairo_t* const c = context_.get();
  cairo_new_path(c);
  PathReader reader(path);
  char command = ' ';
  double x = 0;
  double y = 0;
  while (reader.NextCommand(command)) {
    std::array<double, 4> guide{};
    const size_t guides = command == 'C' ? 4 : command == 'Q' ? 2 : 0;
    for (size_t i = 0; i < guides; ++i) guide[i] = reader.Number();
    const double from_x = x;
    const double from_y = y;
    if (command != 'Z' && command != 'V') x = reader.Number();
    if (command != 'Z' && command != 'H') y = reader.Number();
    switch (command) {
      case 'M':
        cairo_move_to(c, x, y);
        break;
      case 'L':
      case 'H':
      case 'V':
        cairo_line_to(c, x, y);
        break;
      case 'C':
        cairo_curve_to(c, guide[0], guide[1], guide[2], guide[3], x, y);
        break;
      case 'Q':
        cairo_curve_to(c, from_x + (guide[0] - from_x) * 2 / 3,
                       from_y + (guide[1] - from_y) * 2 / 3, x + (guide[0] - x) * 2 / 3,
                       y + (guide[1] - y) * 2 / 3, x, y);
        break;
      case 'Z':
        cairo_close_path(c);
        break;
      default:
        throw std::invalid_argument("path: command expected: " + std::string(path));
    }
  }
}

void Drawing::Use(const Fill& fill, double opacity) {
  if (fill.stops.size() == 1) {
    const uint32_t colour = fill.stops.front().colour;
    cairo_set_source_rgba(context_.get(), Level(colour, 16), Level(colour, 8), Level(colour, 0),
                          opacity);
    return;
  }
  cairo_pattern_t* const gradient = cairo_pattern_create_linear(fill.x0, fill.y0, fill.x1, fill.y1);
  for (const Stop& stop : fill.stops) {
    cairo_pattern_add_color_stop_rgba(gradient, stop.at, Level(stop.colour, 16),
                                      Level(stop.colour, 8), Level(stop.colour, 0), opacity);
  }
  cairo_set_source(context_.get(), gradient);
  cairo_pattern_destroy(gradient);
}

void Drawing::FillTraced(const Fill& fill) {
  Use(fill, 1);
  // Outlines of letters may overlap; what is inside any of them is inside.
  cairo_set_fill_rule(context_.get(), CAIRO_FILL_RULE_WINDING);
  cairo_fill(context_.get());
  cairo_set_fill_rule(context_.get(), CAIRO_FILL_RULE_EVEN_ODD);
}

void Drawing::StrokeTraced(uint32_t colour, double width) {
  Use(colour, 1);
  cairo_set_line_width(context_.get(), width);
  cairo_stroke(context_.get());
}

void Drawing::Shape(std::string_view path, const Fill& fill, double opacity) {
  Trace(path);
  Use(fill, opacity);
  cairo_fill(context_.get());
}

void Drawing::Line(std::string_view path, uint32_t colour, double width, double opacity) {
  Trace(path);
  Use(colour, opacity);
  cairo_set_line_width(context_.get(), width);
  cairo_stroke(context_.get());
}

void Drawing::Outlined(std::string_view path, const Fill& fill, uint32_t border, double width) {
  Shape(path, fill);
  Line(path, border, width);
}

void Drawing::Ellipse(double x, double y, double across, double down, const Fill& fill,
                      double opacity) {
  cairo_t* const c = context_.get();
  cairo_new_path(c);
  cairo_save(c);
  cairo_translate(c, x, y);
  cairo_scale(c, across, down);
  cairo_arc(c, 0, 0, 1, 0, 2 * std::numbers::pi);
  cairo_restore(c);
  Use(fill, opacity);
  cairo_fill(c);
}

void Drawing::Clip(std::string_view path) {
  cairo_save(context_.get());
  Trace(path);
  cairo_clip(context_.get());
}

void Drawing::Unclip() {
  cairo_restore(context_.get());
}

void Drawing::Place(double x, double y, double scale_x, double scale_y, double turn) {
  cairo_save(context_.get());
  cairo_translate(context_.get(), x, y);
  cairo_rotate(context_.get(), turn);
  cairo_scale(context_.get(), scale_x, scale_y);
}

void Drawing::Replace() {
  cairo_restore(context_.get());
}

Drawing::Mean Drawing::PixelMean(int x, int y) const {
  cairo_surface_t* const surface = surface_.get();
  const auto stride = static_cast<size_t>(cairo_image_surface_get_stride(surface));
  const unsigned char* const data = cairo_image_surface_get_data(surface);
  std::array<uint32_t, 4> sums{};
  for (int row = y * fine_; row < (y + 1) * fine_; ++row) {
    for (int column = x * fine_; column < (x + 1) * fine_; ++column) {
      uint32_t pixel = 0;
      std::memcpy(&pixel,
                  data + static_cast<size_t>(row) * stride + static_cast<size_t>(column) * 4,
                  sizeof pixel);
      for (size_t i = 0; i < 4; ++i) sums[i] += pixel >> (24 - 8 * i) & 0xFF;
    }
  }
  if (sums[0] == 0) return {{}, 0};
  // The surface holds colours already multiplied by their cover.
  const auto cover = static_cast<float>(sums[0]);
  const Colour colour{static_cast<float>(sums[1]) / cover, static_cast<float>(sums[2]) / cover,
                      static_cast<float>(sums[3]) / cover};
  return {colour, cover / static_cast<float>(255 * fine_ * fine_)};
}

void Drawing::LayOn(Canvas& canvas, int left, int top) const {
  cairo_surface_flush(surface_.get());
  for (int y = 0; y < height_; ++y) {
    for (int x = 0; x < width_; ++x) {
      const Mean mean = PixelMean(x, y);
      canvas.Blend(left + x, top + y, mean.colour, mean.cover);
    }
  }
}

Cover Drawing::Coverage() const {
  cairo_surface_flush(surface_.get());
  Cover cover(width_, height_);
  for (int y = 0; y < height_; ++y) {
    for (int x = 0; x < width_; ++x) cover.At(x, y) = PixelMean(x, y).cover;
  }
  return cover;
}

}  // namespace orvane::paint::scene
