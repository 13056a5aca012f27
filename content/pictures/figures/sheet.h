// Sheets of sprite pairs: pictures on white, and at the right of them their masks on black.
#pragma once

#include <string>
#include <vector>

#include "content/pictures/figures/render.h"

namespace orvane::paint {

// An empty sheet: white from the left up to `mask_from`, black from there on.
Image EmptySheet(int width, int height, int mask_from);

// Puts the sprite's picture at (x, y) and its mask at (x + mask_from, y). Mask columns beyond the
// sheet are left out, and so are the picture's pixels there, which the game could not show.
void PutPair(Image& sheet, const Sprite& sprite, int x, int y, int mask_from);

// A sheet of one pair.
Image PairSheet(const Sprite& sprite, int width, int height, int mask_from);

// Draws pixels over a sprite, the upper left one at (x, y): each letter of the rows is the colour
// at its place in `letters`; a dot leaves what is there. Pixels beyond the cell are left out.
void Stamp(Sprite& sprite, int x, int y, const std::vector<std::string>& rows,
           const std::string& letters, const std::vector<uint32_t>& colours);

}  // namespace orvane::paint
