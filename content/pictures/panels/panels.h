// Windows' grounds, faces, icons and the lettering of the credits, each finished as its sheet.
#pragma once

#include "tools/paint/recipe.h"

namespace orvane::paint::panel {

Image PaintMessageWindow();  // 336 x 64, light: blue and black text stands on it
Image PaintStatusPanel();    // 480 x 48, faces at x 0 and 240, black text beside them
Image PaintHeroName();       // 200 x 48, dark text
Image PaintEnemyName();      // 200 x 48, dark text
Image PaintVictoryPanel();   // 336 x 93, coloured text
Image PaintFaceMan();        // 48 x 48
Image PaintFaceWoman();      // 48 x 48
Image PaintCredits();        // 402 x 386, title, headings, names and their masks
Image PaintEnglishCredits();
// The window's icon, `size` pixels square.
Image PaintIcon(int size);

}  // namespace orvane::paint::panel
