#include "tools/contact/text.h"

#include <pango/pangocairo.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>

namespace orvane::contact {
namespace {

struct Free {
  void operator()(cairo_surface_t* strip) const { cairo_surface_destroy(strip); }
  void operator()(cairo_t* pen) const { cairo_destroy(pen); }
  void operator()(PangoLayout* layout) const { g_object_unref(layout); }
  void operator()(PangoFontDescription* font) const { pango_font_description_free(font); }
};

// The faces that the windows take for the game's own.
const char* FamilyOf(const Font& face) {
  return face.Name == kMincho ? "IPAPMincho" : "IPAPGothic";
}

PangoAlignment AlignmentOf(Align alignment) {
  switch (alignment) {
    case Align::Centre:
      return PANGO_ALIGN_CENTER;
    case Align::Right:
      return PANGO_ALIGN_RIGHT;
    case Align::Left:
      break;
  }
  return PANGO_ALIGN_LEFT;
}

Colour Mixed(Colour ground, Colour ink, int cover) {
  Colour result = 0;
  for (const int shift : {0, 8, 16}) {
    const int below = static_cast<int>(ground >> shift & 0xFF);
    const int above = static_cast<int>(ink >> shift & 0xFF);
    result |= static_cast<Colour>(below + (above - below) * cover / 255) << shift;
  }
  return result;
}

// Sets the label's text at the pen's origin.
void SetText(cairo_t* pen, const Label& label) {
  constexpr double pixels_per_point = 96.0 / 72.0;
  const std::unique_ptr<PangoFontDescription, Free> font(pango_font_description_new());
  pango_font_description_set_family(font.get(), FamilyOf(label.Face));
  const double pixels = std::round(label.Face.Size * pixels_per_point);
  pango_font_description_set_absolute_size(font.get(), pixels * PANGO_SCALE);
  if (label.Face.Bold) pango_font_description_set_weight(font.get(), PANGO_WEIGHT_BOLD);
  const std::unique_ptr<PangoLayout, Free> layout(pango_cairo_create_layout(pen));
  pango_layout_set_font_description(layout.get(), font.get());
  pango_layout_set_text(layout.get(), label.Caption.c_str(), -1);
  int natural_width = 0;
  int line_height = 0;
  pango_layout_get_pixel_size(layout.get(), &natural_width, &line_height);
  // A line a little too wide for its box is drawn narrower, where there is no room for a second.
  constexpr double narrowest = 0.75;
  const double box = label.At.Width;
  const bool too_wide = natural_width > box && label.At.Height < 2 * line_height;
  const double squeeze = too_wide ? std::max(narrowest, box / natural_width) : 1;
  cairo_scale(pen, squeeze, 1);
  pango_layout_set_width(layout.get(), static_cast<int>(std::ceil(box / squeeze)) * PANGO_SCALE);
  pango_layout_set_wrap(layout.get(), PANGO_WRAP_WORD_CHAR);
  pango_layout_set_alignment(layout.get(), AlignmentOf(label.Alignment));
  pango_cairo_show_layout(pen, layout.get());
}

}  // namespace

void WriteText(Surface& surface, int left, int top, const Label& label) {
  const int width = surface.Width();
  const int height = surface.Height();
  const std::unique_ptr<cairo_surface_t, Free> strip(
      cairo_image_surface_create(CAIRO_FORMAT_A8, width, height));
  const std::unique_ptr<cairo_t, Free> pen(cairo_create(strip.get()));
  cairo_translate(pen.get(), left + label.Left(), top + label.Top());
  SetText(pen.get(), label);
  cairo_surface_flush(strip.get());
  const unsigned char* ink = cairo_image_surface_get_data(strip.get());
  const int stride = cairo_image_surface_get_stride(strip.get());
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const int cover = ink[y * stride + x];
      if (cover > 0) FillBox(surface, x, y, x, y, Mixed(surface.At(x, y), label.ForeColor, cover));
    }
  }
}

}  // namespace orvane::contact
