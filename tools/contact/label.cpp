#include "tools/contact/label.h"

#include <cairo.h>

#include <cmath>
#include <memory>

namespace orvane::contact {
namespace {

constexpr double kSize = 12;
constexpr double kBaseline = 12;
constexpr unsigned kInk = 128;  // coverage from which a pixel is white

// Lettering on a strip of coverage, a byte for each pixel.
class Ink {
 public:
  explicit Ink(int width)
      : strip_(cairo_image_surface_create(CAIRO_FORMAT_A8, width, kLabelHeight),
               cairo_surface_destroy),
        pen_(cairo_create(strip_.get()), cairo_destroy) {
    cairo_select_font_face(pen_.get(), "monospace", CAIRO_FONT_SLANT_NORMAL,
                           CAIRO_FONT_WEIGHT_BOLD);
    cairo_set_font_size(pen_.get(), kSize);
  }

  double Advance(const std::string& text) {
    cairo_text_extents_t extents{};
    cairo_text_extents(pen_.get(), text.c_str(), &extents);
    return extents.x_advance;
  }
  void Write(const std::string& text) {
    cairo_move_to(pen_.get(), 0, kBaseline);
    cairo_show_text(pen_.get(), text.c_str());
    cairo_surface_flush(strip_.get());
  }
  bool At(int x, int y) const {
    const int stride = cairo_image_surface_get_stride(strip_.get());
    return cairo_image_surface_get_data(strip_.get())[y * stride + x] >= kInk;
  }

 private:
  std::unique_ptr<cairo_surface_t, void (*)(cairo_surface_t*)> strip_;
  std::unique_ptr<cairo_t, void (*)(cairo_t*)> pen_;
};

}  // namespace

int LabelWidth(const std::string& text) {
  return static_cast<int>(std::ceil(Ink(1).Advance(text)));
}

void DrawLabel(Surface& surface, int x, int y, const std::string& text) {
  const int width = LabelWidth(text);
  if (width <= 0) return;
  Ink ink(width);
  ink.Write(text);
  for (int row = 0; row < kLabelHeight; ++row) {
    for (int column = 0; column < width; ++column) {
      if (ink.At(column, row)) {
        FillBox(surface, x + column, y + row, x + column, y + row, Rgb(255, 255, 255));
      }
    }
  }
}

}  // namespace orvane::contact
