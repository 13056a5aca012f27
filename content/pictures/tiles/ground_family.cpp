// The plain grounds on the sheet.
#include "content/pictures/tiles/families.h"
#include "content/pictures/tiles/grounds.h"

namespace orvane::paint::tiles {

void PaintGrounds(Sheet& sheet) {
  for (int variant = 0; variant < 6; ++variant) sheet.Put(7 + variant, GrassTile(variant));
  const int wastes[] = {13, 14, 19, 234};
  for (int variant = 0; variant < 4; ++variant) sheet.Put(wastes[variant], WasteTile(variant));
  for (int variant = 0; variant < 4; ++variant) sheet.Put(25 + variant, SandTile(variant));
  for (int variant = 0; variant < 6; ++variant) sheet.Put(175 + variant, GravelTile(variant));
  sheet.Put(20, MarshTile(0));
  sheet.Put(21, MarshTile(1));
  sheet.Put(130, LitterTile(1));
  sheet.Put(132, LitterTile(2));
  sheet.Put(113, PavingTile(1));
  sheet.Put(29, SandbankTile());
}

}  // namespace orvane::paint::tiles
