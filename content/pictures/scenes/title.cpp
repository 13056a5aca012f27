// The title: a moonlit rift, the heroes on a ledge, and the dragon that looks down on them.
#include "content/pictures/scenes/night_rift.h"
#include "content/pictures/scenes/noise.h"
#include "content/pictures/scenes/scenes.h"
#include "content/pictures/scenes/title_figures.h"

namespace orvane::paint::scene {
namespace {

// Painted in the shape in which it is shown, twice as fine; the sheet is squashed from that.
constexpr View kView{960, 640, 424, 660};
constexpr int kAcross = 3;
constexpr int kDown = 4;

// The middle is darkened, so that pale letters stand on it well.
void Quieten(Canvas& canvas) {
  for (int y = 0; y < canvas.Height; ++y) {
    for (int x = 0; x < canvas.Width; ++x) {
      const float off_x = (static_cast<float>(x) - 520) / 430;
      const float off_y = (static_cast<float>(y) - 290) / 210;
      const float shade = 0.44F * std::exp(-(off_x * off_x + off_y * off_y) * 1.4F);
      canvas.At(x, y) = Mix(canvas.At(x, y), Hex(0x140C30), shade);
    }
  }
}

}  // namespace

Image PaintTitle() {
  const NightRift land(kView);
  Painting painting = PaintTerrain(land, kView);
  Canvas canvas = Painted(painting.canvas, 3, 0.8F);
  Quieten(canvas);
  DrawTitleFigures(canvas);
  return ToSheet(Shrink(canvas, kAcross, kDown), 240, 4);
}

}  // namespace orvane::paint::scene
