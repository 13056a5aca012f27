// The two heroes: their models in one pose of the walk, and their colours.
#pragma once

#include <vector>

#include "content/pictures/figures/material.h"
#include "content/pictures/figures/model.h"

namespace orvane::paint {

// Numbers of the heroes' materials; both heroes fill them with their own ramps.
enum HeroMaterial { kFace, kHair, kCloth, kTrousers, kBoots, kTrim, kMetal, kLining };

// `step`: 0 stands, 1 has the left foot in front, -1 the right one.
Model ManModel(float step);
Model WomanModel(float step);

// A face keeps a warm light even in shadow, or its features would drown.
Texture EvenSkin();

std::vector<Material> ManMaterials();
std::vector<Material> WomanMaterials();

}  // namespace orvane::paint
