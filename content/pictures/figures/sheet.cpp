#include "content/pictures/figures/sheet.h"

namespace orvane::paint {
namespace {

constexpr uint32_t kWhite = 0xFFFFFF;

}  // namespace

Image EmptySheet(int width, int height, int mask_from) {
  Image sheet(width, height, kWhite);
  for (int y = 0; y < height; ++y) {
    for (int x = mask_from; x < width; ++x) sheet.At(x, y) = 0;
  }
  return sheet;
}

void PutPair(Image& sheet, const Sprite& sprite, int x, int y, int mask_from) {
  for (size_t i = 0; i < sprite.Solid.size(); ++i) {
    if (!sprite.Solid[i]) continue;
    const int px = x + static_cast<int>(i) % sprite.Picture.Width;
    const int py = y + static_cast<int>(i) / sprite.Picture.Width;
    if (px + mask_from >= sheet.Width || py >= sheet.Height) continue;
    sheet.At(px, py) = sprite.Picture.Pixels[i];
    sheet.At(px + mask_from, py) = kWhite;
  }
}

Image PairSheet(const Sprite& sprite, int width, int height, int mask_from) {
  Image sheet = EmptySheet(width, height, mask_from);
  PutPair(sheet, sprite, 0, 0, mask_from);
  return sheet;
}

void Stamp(Sprite& sprite, int x, int y, const std::vector<std::string>& rows,
           const std::string& letters, const std::vector<uint32_t>& colours) {
  for (size_t row = 0; row < rows.size(); ++row) {
    for (size_t column = 0; column < rows[row].size(); ++column) {
      const size_t letter = letters.find(rows[row][column]);
      const int px = x + static_cast<int>(column);
      const int py = y + static_cast<int>(row);
      if (letter == std::string::npos || px < 0 || py < 0) continue;
      if (px >= sprite.Picture.Width || py >= sprite.Picture.Height) continue;
      sprite.Picture.At(px, py) = colours[letter];
      sprite.Solid[static_cast<size_t>(py) * static_cast<size_t>(sprite.Picture.Width) +
                   static_cast<size_t>(px)] = true;
    }
  }
}

}  // namespace orvane::paint
