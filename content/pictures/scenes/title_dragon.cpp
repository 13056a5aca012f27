#include "content/pictures/scenes/title_dragon.h"

#include <array>

namespace orvane::paint::scene {
namespace {

using paint::Group;
using paint::Knot;
using paint::Model;
using Point = paint::Vec;

enum Stuff { kSkin, kBelly, kMembrane, kHorn, kTooth, kEye, kPupil, kMouth };

const std::vector<Knot>& NeckKnots() {
  static const std::vector<Knot> knots{{{0, -128, -14}, 42}, {{0, -92, -2}, 37}, {{0, -58, 2}, 28},
                                       {{0, -26, -10}, 20},  {{1, 4, -24}, 16},  {{2, 32, -26}, 14},
                                       {{1, 54, -10}, 13},   {{0, 62, 10}, 13}};
  return knots;
}

void AddBody(Model& model) {
  model.Add(kSkin, 8, 5).Chain(NeckKnots(), 5);
  model.AddPair(kSkin, 7, 7)
      .Limb({28, -80, 6}, {44, -96, 16}, 20, 17)
      .Limb({44, -96, 16}, {56, -130, 22}, 17, 13);
  // Spines along the back, the largest where the neck bends.
  const std::vector<Knot> curve = paint::Curve(NeckKnots(), 4);
  Group& spines = model.Add(kHorn);
  for (size_t i = 6; i + 2 < curve.size(); ++i) {
    const Point way = paint::Unit(curve[i + 1].At - curve[i].At);
    const Point back = paint::Cross(way, {1, 0, 0});
    const Point root = curve[i].At + back * (curve[i].Radius - 1.5F);
    spines.Limb(root, root + back * (7 + 0.35F * curve[i].Radius) - way * 5, 3.2F, 0.3F);
  }
}

// A wing by its joints and finger tips; `hip` is where the skin meets the body.
struct Wing {
  Point Shoulder;
  Point Elbow;
  Point Wrist;
  std::array<Point, 4> Tips;
  Point Hip;
};

void AddWing(Model& model, const Wing& wing) {
  model.Add(kSkin, 3, 3).Limb(wing.Shoulder, wing.Elbow, 10, 7).Limb(wing.Elbow, wing.Wrist, 7, 5);
  Group& fingers = model.Add(kSkin, 1, 1);
  for (const Point& tip : wing.Tips) {
    const Point middle = paint::Mix(wing.Wrist, tip, 0.5F) + Point{3, 7, 0};
    fingers.Chain({{wing.Wrist, 4.4F}, {middle, 3.2F}, {tip, 0.8F}}, 5);
  }
  model.Add(kHorn).Limb(wing.Wrist, wing.Wrist + Point{-5, 17, 6}, 3.6F, 0.4F);
  Group& skin = model.Add(kMembrane);
  for (size_t i = 0; i + 1 < wing.Tips.size(); ++i) {
    skin.Panel(wing.Wrist, wing.Tips[i], wing.Tips[i + 1], 0.22F, -7);
  }
  skin.Panel(wing.Wrist, wing.Tips.back(), wing.Hip, 0.2F, -5);
  skin.Panel(wing.Elbow, wing.Wrist, wing.Hip, 0, 0);
  skin.Panel(wing.Shoulder, wing.Elbow, wing.Hip, 0, 0);
}

void AddJaws(Model& model) {
  // Skull, muzzle with a bridge, cheeks, nostrils' rims.
  model.Add(kSkin, 4.5F, 4)
      .Ball({0, 0, 0}, {9.2F, 8.6F, 11})
      .Limb({0, 0.4F, 6}, {0, -2.6F, 23}, 7.4F, 4.6F)
      .Limb({0, 4.4F, 8}, {0, 0.6F, 24}, 3.2F, 2.4F);
  model.AddPair(kSkin, 3, 3)
      .Limb({7.2F, -4, -3}, {6.2F, -5, 7}, 4.4F, 3)
      .Ball({2.9F, 0.8F, 25.2F}, {2.3F, 2, 2.6F});
  model.AddPair(kSkin, 1.5F, 1.5F).Limb({6.6F, 6.8F, -2}, {4.4F, 4.6F, 13.5F}, 2.8F, 1.5F);
  model.AddPair(kPupil).Ball({3.9F, 1.5F, 26.6F}, {1.0F, 0.7F, 1.1F});
  // The lower jaw hangs open.
  model.Add(kSkin, 2.5F, 2.5F)
      .Limb({0, -7, 0}, {0, -13.5F, 9}, 5.8F, 4.4F)
      .Limb({0, -13.5F, 9}, {0, -17.5F, 20}, 4.4F, 2.8F);
  model.Add(kMouth, 1)
      .Limb({0, -6, 3}, {0, -9.5F, 9}, 5.8F, 4.4F)
      .Limb({0, -9.8F, 9}, {0, -13.2F, 19}, 2.6F, 1.5F);
}

void AddHead(Model& model) {
  model.Enter({{0, 66, 19}, -0.16F, 0.30F, 0, 1.5F});
  AddJaws(model);
  model.AddPair(kEye).Ball({6.1F, 2.7F, 9.0F}, {2.5F, 2.2F, 3.1F});
  model.AddPair(kPupil).Ball({8.0F, 2.6F, 9.9F}, {0.9F, 2.0F, 0.8F});
  model.AddPair(kTooth)
      .Limb({4.9F, -4.4F, 15}, {4.7F, -8.6F, 15.6F}, 1.6F, 0.3F)
      .Limb({4.2F, -4.8F, 19.4F}, {4.1F, -8.2F, 20}, 1.4F, 0.3F)
      .Limb({3.0F, -4.6F, 23.6F}, {3.0F, -11, 24.6F}, 1.9F, 0.3F)
      .Limb({2.6F, -15.8F, 18.6F}, {2.9F, -10.4F, 19.6F}, 1.5F, 0.3F)
      .Limb({3.7F, -13.4F, 13}, {4.0F, -9.6F, 13.6F}, 1.3F, 0.3F);
  // Horns sweep back and up, with smaller ones at cheek and jaw.
  model.AddPair(kHorn, 1).Chain({{{5, 6.5F, -4}, 4.0F},
                                 {{9, 13, -14}, 3.4F},
                                 {{12, 17, -26}, 2.6F},
                                 {{11.5F, 26, -37}, 0.4F}},
                                6);
  model.AddPair(kHorn, 1).Chain(
      {{{8, -1, -6}, 2.7F}, {{13, 0, -15}, 1.9F}, {{15, 4.5F, -24}, 0.3F}}, 5);
  model.AddPair(kHorn, 1).Chain(
      {{{7.5F, -7, -3}, 2.2F}, {{12, -11, -10}, 1.5F}, {{14, -12, -17}, 0.3F}}, 4);
  model.AddPair(kHorn).Limb({4.6F, 6.6F, 12.5F}, {5.2F, 9.6F, 10.5F}, 1.5F, 0.2F);
  model.Add(kHorn)
      .Limb({0, 3.2F, 23.5F}, {0, 9, 25}, 2.0F, 0.2F)
      .Limb({0, 5.4F, 17.5F}, {0, 8.6F, 17.5F}, 1.5F, 0.2F);
  model.AddPair(kHorn).Limb({1.2F, -19.4F, 18}, {1.5F, -24, 16.5F}, 1.4F, 0.2F);
  model.Leave();
}

std::vector<paint::Material> Materials() {
  std::vector<paint::Material> m(8);
  m[kSkin] = {{0x180C20, 0x30102C, 0x541834, 0x802434, 0xAC3834, 0xD45C3C, 0xF09458, 0xFCD090},
              0.2F,
              0.42F,
              0,
              paint::Scales(5.4F, kBelly, 9)};
  m[kBelly] = {{0x34203C, 0x60384C, 0x945C54, 0xC48C64, 0xE8C088, 0xFCECC0}, 0.1F, 0.3F};
  m[kMembrane] = {
      {0x180C28, 0x2C1438, 0x4C1C48, 0x702C50, 0x9C4858, 0xC87460}, 0, 0.3F, 0, paint::Membrane(3)};
  m[kHorn] = {{0x282038, 0x504458, 0x887878, 0xC4B49C, 0xF8F0D0},
              0.35F,
              0.3F,
              0,
              paint::Rings(2.6F, 0.35F)};
  m[kTooth] = {{0x907878, 0xE4D8BC, 0xFCF8E8}, 0.2F, 0.2F, 0.1F};
  m[kEye] = {{0xC86800, 0xF8C020, 0xFFF8A0}, 0.4F, 0.1F, 0.35F};
  m[kPupil] = {{0x100410, 0x180818}, 0, 0};
  m[kMouth] = {{0x5C0C18, 0xB42818, 0xF07828, 0xFCC850}, 0.3F, 0.1F, 0.25F};
  return m;
}

}  // namespace

Sprite RenderTitleDragon() {
  Model model;
  AddBody(model);
  // Folded, so that it stays in the picture: the fingers hang from the wrist beside each other.
  AddWing(model, {{24, -56, -26},
                  {40, 2, -34},
                  {12, 76, -42},
                  {{{40, 40, -42}, {46, -22, -36}, {42, -74, -38}, {36, -112, -36}}},
                  {24, -126, -36}});
  // The far wing is raised behind the head, above the place of the title's letters.
  AddWing(model, {{-20, -56, -36},
                  {-34, 40, -48},
                  {-43, 102, -22},
                  {{{-136, 106, 51}, {-124, 82, 47}, {-99, 68, 29}, {-62, 74, -4}}},
                  {-30, 44, -30}});
  AddHead(model);
  model.Finish();
  paint::View view;
  view.Width = 700;
  view.Height = 640;
  view.Yaw = -0.86F;
  view.Pitch = -0.1F;
  view.Samples = 1;
  view.Scale = 2.6F;
  view.Middle = {0, 4, 0};
  view.Contour = 5;
  view.Dither = 0.9F;
  view.Folds = 14;
  view.Light = {-0.75F, 0.72F, 0.45F};
  return Render(model, Materials(), view);
}

}  // namespace orvane::paint::scene
