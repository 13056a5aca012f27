#include "content/pictures/panels/lettering.h"

#include <pango/pangocairo.h>

#include <memory>

namespace orvane::paint::panel {
namespace {

struct Free {
  void operator()(PangoLayout* layout) const { g_object_unref(layout); }
  void operator()(PangoFontDescription* font) const { pango_font_description_free(font); }
  void operator()(PangoAttrList* list) const { pango_attr_list_unref(list); }
  void operator()(cairo_font_options_t* options) const { cairo_font_options_destroy(options); }
};

}  // namespace

void TraceText(scene::Drawing& drawing, const Lettering& lettering, double x, double y) {
  cairo_t* const context = drawing.Context();
  const std::unique_ptr<PangoLayout, Free> layout(pango_cairo_create_layout(context));
  const std::unique_ptr<cairo_font_options_t, Free> options(cairo_font_options_create());
  cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
  pango_cairo_context_set_font_options(pango_layout_get_context(layout.get()), options.get());
  const std::unique_ptr<PangoFontDescription, Free> font(pango_font_description_new());
  pango_font_description_set_family(font.get(), lettering.Face.c_str());
  pango_font_description_set_absolute_size(font.get(), lettering.Size * PANGO_SCALE);
  pango_layout_set_font_description(layout.get(), font.get());
  pango_layout_set_text(layout.get(), lettering.Text.c_str(), -1);
  const std::unique_ptr<PangoAttrList, Free> attributes(pango_attr_list_new());
  pango_attr_list_insert(attributes.get(), pango_attr_letter_spacing_new(
                                               static_cast<int>(lettering.Spacing * PANGO_SCALE)));
  pango_layout_set_attributes(layout.get(), attributes.get());
  pango_layout_context_changed(layout.get());
  PangoRectangle ink{};
  pango_layout_get_extents(layout.get(), &ink, nullptr);
  const double scale = PANGO_SCALE;
  cairo_new_path(context);
  cairo_move_to(context, x - (ink.x + ink.width / 2.0) / scale,
                y - (ink.y + ink.height / 2.0) / scale);
  pango_cairo_layout_path(context, layout.get());
}

}  // namespace orvane::paint::panel
