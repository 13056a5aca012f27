// The painters of all figure sheets, one per recipe.
#pragma once

#include "tools/paint/recipe.h"

namespace orvane::paint {

Image PaintHeroMan();
Image PaintHeroWoman();

Image PaintMoonEnvoy();
Image PaintGreenRoper();
Image PaintSlime();
Image PaintSpider();
Image PaintNakedFiend();
Image PaintSoldier();
Image PaintStarEnvoy();
Image PaintManEater();
Image PaintHannya();
Image PaintBat();
Image PaintAngel();
Image PaintDeathRoper();
Image PaintMerman();
Image PaintHornedBeast();

}  // namespace orvane::paint
