// The painters of all figure sheets, one per recipe.
#pragma once

#include "tools/paint/recipe.h"

namespace orvane::paint {

Image PaintHeroMan();
Image PaintHeroWoman();

}  // namespace orvane::paint
