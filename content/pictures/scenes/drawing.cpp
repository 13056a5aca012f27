#include "content/pictures/scenes/drawing.h"

#include <array>
#include <cstring>
#include <numbers>

#include "content/pictures/scenes/path.h"

namespace orvane::paint::scene {
namespace {

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

void Drawing::Use(const Fill& fill, double opacity) {
  if (fill.Stops.size() == 1) {
    const uint32_t colour = fill.Stops.front().Colour;
    cairo_set_source_rgba(context_.get(), Level(colour, 16), Level(colour, 8), Level(colour, 0),
                          opacity);
    return;
  }
  cairo_pattern_t* const gradient = cairo_pattern_create_linear(fill.X0, fill.Y0, fill.X1, fill.Y1);
  for (const Stop& stop : fill.Stops) {
    cairo_pattern_add_color_stop_rgba(gradient, stop.At, Level(stop.Colour, 16),
                                      Level(stop.Colour, 8), Level(stop.Colour, 0), opacity);
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
  TracePath(context_.get(), path);
  Use(fill, opacity);
  cairo_fill(context_.get());
}

void Drawing::Line(std::string_view path, uint32_t colour, double width, double opacity) {
  TracePath(context_.get(), path);
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
  TracePath(context_.get(), path);
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
      canvas.Blend(left + x, top + y, mean.colour, mean.Cover);
    }
  }
}

Cover Drawing::Coverage() const {
  cairo_surface_flush(surface_.get());
  Cover cover(width_, height_);
  for (int y = 0; y < height_; ++y) {
    for (int x = 0; x < width_; ++x) cover.At(x, y) = PixelMean(x, y).Cover;
  }
  return cover;
}

}  // namespace orvane::paint::scene
