// The maker's seal: a golden O with a gem in it, between laurels. No scene draws it.
#include "content/pictures/figures/figures.h"
#include "content/pictures/figures/monster.h"

namespace orvane::paint {
namespace {

enum Stuff { kGold, kGem, kLeafGreen };

Model SealModel() {
  Model model;
  model.Add(kGold, 1).Ring({0, 0, 0}, {15, 0, 0}, {0, 18, 0}, 4.2F);
  model.Add(kGold, 0).Ring({0, 0, 2}, {8.4F, 0, 0}, {0, 11, 0}, 1);
  model.Add(kGem).Leaf({0, -9, 0}, {0, 9, 0}, 5.6F, 4);
  for (int i = 0; i < 7; ++i) {
    const float a = -2.2F + static_cast<float>(i) * 0.36F;
    const Vec root{std::sin(a) * 20, -std::cos(a) * -23, 0};
    const Vec tip = root + Vec{std::sin(a - 0.7F) * 9, std::cos(a - 0.7F) * 9, 1};
    model.AddPair(kLeafGreen, 1).Leaf(root, tip, 2.8F, 1.4F);
  }
  model.Finish();
  return model;
}

}  // namespace

Image PaintSeal() {
  std::vector<Material> m(3);
  m[kGold] = {{0x5C3C08, 0xA07010, 0xD8A824, 0xF4DC60, 0xF8F8B0}, 0.6F};
  m[kGem] = {{0x101C48, 0x1C3C84, 0x2C64B4, 0x58A0DC, 0xA0D8F4, 0xF8F8F8}, 0.9F};
  m[kLeafGreen] = {{0x143820, 0x24682C, 0x48A038, 0x98D858}, 0.1F};
  View view = MonsterView(0, 0);
  view.OnGround = false;
  view.Room = 0;
  return PairSheet(Render(SealModel(), m, view), 129, 64, 64);
}

}  // namespace orvane::paint
