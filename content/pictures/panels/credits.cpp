// The strips that scroll over the ending: a title and headings in colour with their masks, and
// names in plain white.
#include <array>
#include <string>

#include "content/pictures/panels/lettering.h"
#include "content/pictures/panels/panels.h"

namespace orvane::paint::panel {
namespace {

using scene::Canvas;
using scene::Cover;
using scene::Drawing;
using scene::Hex;

struct Strip {
  int x;
  int y;
  int width;
  int height;
  const char* text;
  double size;
};

// Strips with an image of their own; the mask lies right below the image.
constexpr std::array<Strip, 4> coloured{{{0, 0, 400, 64, "ORVANE", 56},
                                         {0, 128, 200, 32, "STAFF", 26},
                                         {200, 128, 200, 32, "SPECIAL THANKS", 21},
                                         {0, 288, 400, 32, "そして、あなたに", 24}}};
constexpr std::array<Strip, 7> plain{{{0, 192, 200, 32, "企画・脚本・プログラム", 18},
                                      {200, 192, 200, 32, "グラフィック", 18},
                                      {0, 224, 200, 32, "音楽・効果音", 18},
                                      {200, 224, 200, 32, "テストプレイのみなさん", 18},
                                      {0, 256, 200, 32, "自由ソフトの作者たち", 18},
                                      {200, 256, 200, 32, "龍の狭間の龍たち", 18},
                                      {0, 352, 400, 32, "遊んでくれてありがとう", 22}}};
constexpr const char* face = "IPAPMincho";

Cover TextCover(const Strip& strip, double boldness) {
  Drawing drawing(strip.width, strip.height);
  TraceText(drawing, {strip.text, face, strip.size, 0, 1}, strip.width / 2.0, strip.height / 2.0);
  cairo_t* const context = drawing.Context();
  cairo_set_source_rgb(context, 0, 0, 0);
  cairo_fill_preserve(context);
  cairo_set_line_width(context, boldness);
  cairo_stroke(context);
  return drawing.Coverage();
}

bool Covered(const Cover& cover, int x, int y) {
  return cover.At(x, y) >= 0.5F;
}

void PaintColoured(Image& sheet, const Strip& strip) {
  const Cover body = TextCover(strip, 0.8);
  const Cover border = TextCover(strip, 3.4);
  for (int y = 0; y < strip.height; ++y) {
    for (int x = 0; x < strip.width; ++x) {
      const bool in_border = Covered(border, x, y);
      const float t = static_cast<float>(y) / static_cast<float>(strip.height);
      const uint32_t gold = scene::ToPixel(scene::Mix(Hex(0xFFF4C0), Hex(0xC87818), t));
      sheet.At(strip.x + x, strip.y + y) = Covered(body, x, y) ? gold
                                           : in_border         ? 0x401018U
                                                               : 0xFFFFFFU;
      sheet.At(strip.x + x, strip.y + strip.height + y) = in_border ? 0xFFFFFFU : 0U;
    }
  }
}

void PaintPlain(Image& sheet, const Strip& strip) {
  const Cover body = TextCover(strip, 0.5);
  for (int y = 0; y < strip.height; ++y) {
    for (int x = 0; x < strip.width; ++x) {
      if (Covered(body, x, y)) sheet.At(strip.x + x, strip.y + y) = 0xFFFFFF;
    }
  }
}

}  // namespace

Image PaintCredits() {
  Image sheet(402, 386, 0);
  for (const Strip& strip : coloured) PaintColoured(sheet, strip);
  for (const Strip& strip : plain) PaintPlain(sheet, strip);
  return sheet;
}

}  // namespace orvane::paint::panel
