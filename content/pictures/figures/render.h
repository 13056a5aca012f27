// From a model to a sprite: rays, light, and the step from samples to hand-picked colours.
#pragma once

#include <vector>

#include "content/pictures/figures/material.h"
#include "content/pictures/figures/model.h"
#include "tools/paint/recipe.h"

namespace orvane::paint {

struct View {
  int Width = 64;  // of the cell, in pixels
  int Height = 64;
  float Yaw = 0.6F;      // 0 looks at the viewer, a quarter turn looks right
  float Pitch = 0.12F;   // how far the viewer looks down on the figure
  int Samples = 5;       // across and down a pixel
  float Margin = 2;      // pixels left free at each edge; the outline takes one of them
  float Scale = 0;       // pixels per unit; 0 fits the figure into the cell
  float Aside = 0;       // more pixels left free at the left and the right of a fitted figure
  float Room = 0;        // more pixels left free under a fitted figure: its shadow, the air it has
  Vec Middle;            // the model's point in the middle of the cell, when Scale is given
  bool OnGround = true;  // a fitted figure stands at the cell's lower edge, else it hovers midway
  float Contour = 2.2F;  // a pixel this far behind its neighbour gets a dark inner line
  float Dither = 0.3F;   // of a ramp's step
  float Folds = 6;       // how far, in units, things near by darken a fold
  Vec Light{-0.5F, 0.8F, 0.6F};    // key, toward its source, seen from the viewer
  Vec Behind{0.7F, 0.35F, -0.7F};  // rim
};

// Which pixel a place of the model falls on.
struct Camera {
  Vec Right;
  Vec Up;
  Vec Back;  // toward the viewer
  Vec Middle;
  float Scale = 1;
  float HalfWidth = 0;
  float HalfHeight = 0;

  // Continuous pixel coordinates in X and Y, nearness to the viewer in Z.
  Vec Project(Vec point) const {
    const Vec p = point - Middle;
    return {HalfWidth + Dot(p, Right) * Scale, HalfHeight - Dot(p, Up) * Scale, Dot(p, Back)};
  }
};

struct Sprite {
  Image Picture;            // white where nothing is
  std::vector<bool> Solid;  // a pixel of the figure, a row after the other
  Camera Eye;
};

// The camera of a view on a finished model.
Camera Aim(const Model& model, const View& view);

// Renders a finished model; materials are looked up by the groups' numbers.
Sprite Render(const Model& model, const std::vector<Material>& materials, const View& view);

}  // namespace orvane::paint
