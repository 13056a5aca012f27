// The heroes' sheets: three frames of the walk in four directions, and the faces by hand.
#include <array>

#include "content/pictures/figures/figures.h"
#include "content/pictures/figures/hero.h"
#include "content/pictures/figures/shadow.h"
#include "content/pictures/figures/sheet.h"

namespace orvane::paint {
namespace {

constexpr int kCellWidth = 24;
constexpr int kCellHeight = 32;
constexpr int kMaskFrom = 72;
constexpr float kQuarter = 1.5707963F;
constexpr float kSideways = 1.2F;  // not a full profile: more of the face shows
constexpr std::array<float, 3> kSteps{0, 1, -1};
// Rows of the sheet: up, right, down, left.
constexpr std::array<float, 4> kYaws{2 * kQuarter, kSideways, 0, -kSideways};

// The same in all cells, so that it lies still while the hero walks. It has no gaps: a battle
// stretches the heroes by uneven steps, which would make blots of a pattern.
constexpr GroundShadow kShadow{12.8F, 28.6F, 7.4F, 2.3F, 1};

struct Look {
  uint32_t Lash;
  uint32_t White;
  uint32_t Iris;
  uint32_t Mouth;
  int Ahead;  // pixels that a profile stands before the cell's middle, where long hair needs room
};

void DrawFace(Sprite& sprite, int row, const Look& look) {
  const std::vector<uint32_t> colours{look.Lash, look.White, look.Iris, look.Mouth};
  const std::string letters = "LWIM";
  const int y = static_cast<int>(std::floor(sprite.Eye.Project({0, 5.2F, 5.2F}).Y));
  // The eyes stand on whole pixels, the same ones in all frames of a row.
  if (row == 2) {
    Stamp(sprite, 8, y - 1, {"LL....LL", "WL....LW", "WI....IW"}, letters, colours);
    Stamp(sprite, 11, y + 4, {"MM"}, letters, colours);
  } else if (row == 1) {
    Stamp(sprite, 13 + look.Ahead, y - 1, {"LL", "LW", "IW"}, letters, colours);
    Stamp(sprite, 16 + look.Ahead, y + 4, {"M"}, letters, colours);
  } else if (row == 3) {
    Stamp(sprite, 9 - look.Ahead, y - 1, {"LL", "WL", "WI"}, letters, colours);
    Stamp(sprite, 7 - look.Ahead, y + 4, {"M"}, letters, colours);
  }
}

template <typename Builder>
Image HeroSheet(const Builder& build, const std::vector<Material>& materials, const Look& look) {
  Image sheet = EmptySheet(kMaskFrom * 2, kCellHeight * 4, kMaskFrom);
  for (int row = 0; row < 4; ++row) {
    for (int frame = 0; frame < 3; ++frame) {
      const float step = kSteps[static_cast<size_t>(frame)];
      View view;
      view.Width = kCellWidth;
      view.Height = kCellHeight;
      view.Yaw = kYaws[static_cast<size_t>(row)];
      view.Pitch = 0.12F;
      view.Samples = 8;
      view.Scale = 0.97F;
      view.Middle = {0, step == 0 ? 0.1F : 0.3F, 0};  // a stride lowers the body
      const float ahead = static_cast<float>(row == 1 ? -look.Ahead : row == 3 ? look.Ahead : 0);
      view.Middle = view.Middle + Vec{std::cos(view.Yaw), 0, std::sin(view.Yaw)} * ahead;
      view.Contour = 2.3F;
      view.Dither = 0;
      view.Folds = 4;
      Sprite sprite = Render(build(step), materials, view);
      DrawFace(sprite, row, look);
      CastShadow(sprite, kShadow);
      PutPair(sheet, sprite, frame * kCellWidth, row * kCellHeight, kMaskFrom);
    }
  }
  return sheet;
}

}  // namespace

Texture EvenSkin() {
  return [](Touch&, float light) { return Mix(light, 0.72F, 0.4F); };
}

Image PaintHeroMan() {
  return HeroSheet(ManModel, ManMaterials(), {0x241420, 0xF8F8F8, 0x2058B0, 0xC06C58, 0});
}

Image PaintHeroWoman() {
  return HeroSheet(WomanModel, WomanMaterials(), {0x3C1C20, 0xF8F8F8, 0x208858, 0xD06868, 1});
}

}  // namespace orvane::paint
