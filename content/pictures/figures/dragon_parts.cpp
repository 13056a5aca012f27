#include "content/pictures/figures/dragon_parts.h"

namespace orvane::paint {

void AddWing(Model& model, const Wing& wing) {
  model.Add(kDragonSkin, 3, 3)
      .Limb(wing.Shoulder, wing.Elbow, 7.5F, 4.8F)
      .Limb(wing.Elbow, wing.Wrist, 5, 3.6F);
  Group& fingers = model.Add(kDragonSkin, 1, 1);
  for (const Vec& tip : wing.Tips) {
    fingers.Chain({{wing.Wrist, 3}, {Mix(wing.Wrist, tip, 0.5F) + wing.Bow, 2.3F}, {tip, 0.6F}}, 5);
  }
  model.Add(kDragonHorn).Limb(wing.Wrist, wing.Wrist + Vec{0, 14, 4}, 2.8F, 0.3F);
  Group& skin = model.Add(kDragonMembrane);
  for (size_t i = 0; i + 1 < wing.Tips.size(); ++i) {
    // Half panels from finger to fold and from fold to finger catch different light.
    const Vec fold = Mix(wing.Tips[i], wing.Tips[i + 1], 0.5F);
    const Vec sunk = Mix(wing.Wrist, fold, 0.9F) + wing.Bow * 0.4F;
    skin.Panel(wing.Wrist, wing.Tips[i], sunk, 0.1F, wing.Billow * 0.5F, 0.6F);
    skin.Panel(wing.Wrist, sunk, wing.Tips[i + 1], 0.1F, wing.Billow * 0.5F, 0.6F);
  }
  skin.Panel(wing.Wrist, wing.Tips[3], wing.Flank, 0.2F, wing.Billow, 0.6F);
  skin.Panel(wing.Elbow, wing.Wrist, wing.Flank, 0, 0, 0.6F);
  skin.Panel(wing.Shoulder, wing.Elbow, wing.Flank, 0, 0, 0.6F);
}

void AddFin(Model& model, const std::vector<Ray>& rays, float thickness, float scallop,
            int ray_material, int skin_material) {
  Group& bones = model.Add(ray_material, 0.5F, 1);
  for (const Ray& ray : rays) bones.Limb(ray.Root, ray.Tip, thickness, thickness * 0.25F);
  Group& skin = model.Add(skin_material);
  for (size_t i = 0; i + 1 < rays.size(); ++i) {
    const Vec inner_a = Mix(rays[i].Root, rays[i].Tip, 0.92F);
    const Vec inner_b = Mix(rays[i + 1].Root, rays[i + 1].Tip, 0.92F);
    skin.Panel(rays[i].Root, inner_a, inner_b, scallop, 0, 0.6F);
    if (Length(rays[i].Root - rays[i + 1].Root) < 1) continue;
    skin.Panel(rays[i + 1].Root, inner_b, rays[i].Root, 0, 0, 0.6F);
  }
}

void AddHand(Model& model, const Hand& hand) {
  const float s = hand.Size;
  Group& fingers = model.Add(kDragonSkin, 2, 2.5F);
  Group& claws = model.Add(kDragonHorn);
  fingers.Limb(hand.Palm, hand.Palm + hand.Ahead * (3 * s), 5.6F * s, 5 * s);
  for (int i = 0; i < hand.Count; ++i) {
    const float spread = static_cast<float>(i) - static_cast<float>(hand.Count - 1) * 0.5F;
    const Vec root = hand.Palm + hand.Ahead * (4 * s) + hand.Across * (spread * 4.2F * s);
    const Vec knuckle = root + hand.Ahead * (7 * s) + hand.Across * (spread * 1.6F * s);
    const Vec tip = knuckle + hand.Ahead * (3.6F * s) + hand.Curl * (8 * s);
    fingers.Limb(root, knuckle, 3.1F * s, 2.5F * s);
    claws.Limb(knuckle, Mix(knuckle, tip, 0.5F) + hand.Ahead * (1.4F * s), 2.4F * s, 1.6F * s);
    claws.Limb(Mix(knuckle, tip, 0.5F) + hand.Ahead * (1.4F * s), tip, 1.6F * s, 0.3F);
  }
}

void AddSpines(Model& model, const std::vector<Knot>& curve, Vec side, float length,
               float thickness, int material) {
  Group& spines = model.Add(material);
  for (size_t i = 1; i + 1 < curve.size(); ++i) {
    const Vec run = Unit(curve[i + 1].At - curve[i - 1].At);
    const Vec back = Unit(Cross(side, run)) * -1;
    const float t = static_cast<float>(i) / static_cast<float>(curve.size() - 1);
    const float size = 0.55F + 1.8F * t * (1 - t);
    const Vec root = curve[i].At + back * (curve[i].Radius - 1);
    spines.Limb(root, root + (back * 1.0F - run * 0.55F) * (length * size), thickness * size, 0.3F);
  }
}

View DragonView(int width, int height, float yaw, float pitch) {
  View view;
  view.Width = width;
  view.Height = height;
  view.Yaw = yaw;
  view.Pitch = pitch;
  view.Samples = 5;
  // When the figure recoils, the scene is not painted anew all around it: what stood in the first
  // rows or at the sides would stay behind. And the scene ends before the cell's last rows.
  view.Margin = 4;
  view.Aside = height == 192 ? 5 : 6;
  view.Room = height == 192 ? 5 : 7;
  view.Contour = 7;
  view.Folds = 14;
  return view;
}

}  // namespace orvane::paint
