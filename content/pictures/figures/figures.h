// The painters of all figure sheets, one per recipe.
#pragma once

#include "tools/paint/recipe.h"

namespace orvane::paint {

// 144 by 128: three frames of 24 by 32 in four directions, masks from x = 72.
Image PaintHeroMan();
Image PaintHeroWoman();

// 256 by 192: a picture of 128 by 192 and its mask.
Image PaintSeaDragon();
Image PaintFireDragon();
Image PaintStrengthDragon();

// 64 by 64 and a mask; some sheets are a little smaller or wider.
Image PaintMoonEnvoy();
Image PaintGreenRoper();
Image PaintSlime();
Image PaintSpider();      // 50 high
Image PaintNakedFiend();  // 127 wide
Image PaintSoldier();
Image PaintStarEnvoy();
Image PaintManEater();
Image PaintHannya();
Image PaintBat();  // 129 wide
Image PaintAngel();
Image PaintDeathRoper();
Image PaintMerman();
Image PaintHornedBeast();
Image PaintSeal();  // 129 wide

// 160 by 240 and a mask, the bone dragon's two columns short.
Image PaintBoneDragon();
Image PaintDivineDragon();

}  // namespace orvane::paint
