// The strips that scroll over the ending: a title and headings in colour with their masks, and
// names in plain white.
#include <array>
#include <string>

#include "content/pictures/panels/lettering.h"
#include "content/pictures/panels/panels.h"
#include "content/pictures/panels/title_letters.h"

namespace orvane::paint::panel {
namespace {

using scene::Canvas;
using scene::Cover;
using scene::Drawing;
using scene::Fill;

struct Strip {
  int X = 0;
  int Y = 0;
  int Width = 0;
  int Height = 0;
  const char* Text = "";
  double Size = 0;
  double Spacing = 0;
  double Rim = 4.2;  // of coloured letters: twice how far the dark goes beyond them
};

// Strips with an image of their own, of which the mask lies right below the image, and plain ones.
struct Lettering {
  std::array<Strip, 3> Coloured;
  std::array<Strip, 7> Plain;
};

constexpr Lettering kJapanese = {{{{0, 128, 200, 32, "STAFF", 24, 7},
                                   {200, 128, 200, 32, "SPECIAL THANKS", 16.5, 2.8, 3.6},
                                   {0, 288, 400, 32, "最後まで旅してくれたあなたへ", 24, 1.5}}},
                                 {{{0, 192, 200, 32, "企画・脚本・プログラム", 19, 0.4},
                                   {200, 192, 200, 32, "グラフィック・マップ", 19, 0.4},
                                   {0, 224, 200, 32, "音楽・効果音", 19, 2},
                                   {200, 224, 200, 32, "テストプレイのみなさん", 19, 0.4},
                                   {0, 256, 200, 32, "道具を作ったみなさん", 19, 0.4},
                                   {200, 256, 200, 32, "龍の狭間の龍たち", 20, 1.5},
                                   {0, 352, 400, 32, "ありがとう　また会う日まで", 21, 2}}}};
constexpr Lettering kEnglish = {
    {{{0, 128, 200, 32, "STAFF", 24, 7},
      {200, 128, 200, 32, "SPECIAL THANKS", 16.5, 2.8, 3.6},
      {0, 288, 400, 32, "To you, who came all this way", 23, 1.2, 3.2}}},
    {{{0, 192, 200, 32, "Plan, Story, Program", 19, 0.4},
      {200, 192, 200, 32, "Graphics, Maps", 19, 0.4},
      {0, 224, 200, 32, "Music, Sound Effects", 19, 0.4},
      {200, 224, 200, 32, "All Our Testers", 19, 0.4},
      {0, 256, 200, 32, "All Our Toolmakers", 19, 0.4},
      {200, 256, 200, 32, "The Rift's Dragons", 20, 0.6},
      {0, 352, 400, 32, "Thank you! Until we meet again", 21, 1}}}};
constexpr const char* kSerif = "IPAPMincho";
constexpr const char* kPlainFace = "IPAPGothic";
constexpr uint32_t kWhite = 0xFFFFFF;

bool Covered(const Cover& cover, int x, int y) {
  return cover.At(x, y) >= 0.5F;
}

void Trace(Drawing& drawing, const Strip& strip, const char* face) {
  TraceText(drawing, {strip.Text, face, strip.Size, strip.Spacing}, strip.Width / 2.0,
            strip.Height / 2.0);
}

void StrokeText(Drawing& drawing, const Strip& strip, const char* face, uint32_t colour,
                double width) {
  Trace(drawing, strip, face);
  drawing.StrokeTraced(colour, width);
}

// The drawing as an image on white at (x, y) and its mask below: every pixel is wholly in or out.
void PutPair(Image& sheet, const Drawing& drawing, int x, int y, int width, int height) {
  const Cover cover = drawing.Coverage();
  Canvas canvas(width, height);
  for (scene::Colour& colour : canvas.Pixels) colour = scene::Hex(0x240818);
  drawing.LayOn(canvas);
  const Image image = scene::ToSheet(canvas);
  for (int row = 0; row < height; ++row) {
    for (int column = 0; column < width; ++column) {
      const bool in = Covered(cover, column, row);
      sheet.At(x + column, y + row) = in ? image.At(column, row) : kWhite;
      sheet.At(x + column, y + height + row) = in ? kWhite : 0;
    }
  }
}

void PaintColoured(Image& sheet, const Strip& strip) {
  Drawing drawing(strip.Width, strip.Height);
  StrokeText(drawing, strip, kSerif, 0x240818, strip.Rim);
  StrokeText(drawing, strip, kSerif, 0x6C1820, strip.Rim - 2);
  StrokeText(drawing, strip, kSerif, 0xF0C868, 0.7);
  Trace(drawing, strip, kSerif);
  drawing.FillTraced(
      Fill(0, 5, 0, 27, {{0, 0xFFFCE8}, {0.45, 0xFCE898}, {0.55, 0xF0BC58}, {1, 0xFFF0B0}}));
  PutPair(sheet, drawing, strip.X, strip.Y, strip.Width, strip.Height);
}

void PaintPlain(Image& sheet, const Strip& strip) {
  Drawing drawing(strip.Width, strip.Height);
  StrokeText(drawing, strip, kPlainFace, kWhite, 0.8);
  Trace(drawing, strip, kPlainFace);
  drawing.FillTraced(kWhite);
  const Cover body = drawing.Coverage();
  for (int y = 0; y < strip.Height; ++y) {
    for (int x = 0; x < strip.Width; ++x) {
      if (Covered(body, x, y)) sheet.At(strip.X + x, strip.Y + y) = kWhite;
    }
  }
}

Image PaintLettering(const Lettering& lettering) {
  Image sheet(402, 386, 0);
  Drawing title(400, 64);
  DrawTitleLetters(title);
  PutPair(sheet, title, 0, 0, 400, 64);
  for (const Strip& strip : lettering.Coloured) PaintColoured(sheet, strip);
  for (const Strip& strip : lettering.Plain) PaintPlain(sheet, strip);
  return sheet;
}

}  // namespace

Image PaintCredits() {
  return PaintLettering(kJapanese);
}

Image PaintEnglishCredits() {
  return PaintLettering(kEnglish);
}

}  // namespace orvane::paint::panel
