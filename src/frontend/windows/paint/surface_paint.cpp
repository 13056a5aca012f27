#include "src/frontend/windows/paint/surface_paint.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "src/frontend/shared/enlarge.h"
#include "src/frontend/windows/paint/scale.h"

namespace orvane {
namespace {

constexpr DWORD kCopyRaster = 0x00CC0020;

BITMAPINFO RowsFromTheTop(int width, int height) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  return info;
}

int Floor(double pixels) {
  return static_cast<int>(std::floor(pixels));
}

int Ceil(double pixels) {
  return static_cast<int>(std::ceil(pixels));
}

}  // namespace

SIZE SurfacePaint::Size(double scale) const {
  return {ToScreen(copy_.Width(), scale), ToScreen(copy_.Height(), scale)};
}

RECT SurfacePaint::Follow(const Surface& surface, bool all, double scale) {
  const Rect changed = copy_.Follow(surface, all);
  if (changed.Width == 0) return {};
  return {Floor(changed.X * scale), Floor(changed.Y * scale),
          Ceil((changed.X + changed.Width) * scale), Ceil((changed.Y + changed.Height) * scale)};
}

void SurfacePaint::Paint(HDC context, POINT corner, const RECT& part, double scale) const {
  const SIZE size = Size(scale);
  const RECT picture = {corner.x, corner.y, corner.x + size.cx, corner.y + size.cy};
  RECT target;
  if (IntersectRect(&target, &picture, &part) == FALSE) return;
  OffsetRect(&target, -corner.x, -corner.y);
  if (scale != std::floor(scale)) {
    const int width = target.right - target.left;
    const int height = target.bottom - target.top;
    const std::vector<uint32_t> enlarged = Enlarge(copy_.Pixels(), copy_.Width(), copy_.Height(),
                                                   scale, {target.left, target.top, width, height});
    const BITMAPINFO info = RowsFromTheTop(width, height);
    StretchDIBits(context, corner.x + target.left, corner.y + target.top, width, height, 0, 0,
                  width, height, enlarged.data(), &info, DIB_RGB_COLORS, kCopyRaster);
    return;
  }
  // Whole pixels of the game, so that each is repeated in full.
  const int factor = static_cast<int>(scale);
  const int left = target.left / factor;
  const int top = target.top / factor;
  const int right = std::min(copy_.Width(), (static_cast<int>(target.right) - 1) / factor + 1);
  const int bottom = std::min(copy_.Height(), (static_cast<int>(target.bottom) - 1) / factor + 1);
  const BITMAPINFO info = RowsFromTheTop(copy_.Width(), bottom - top);
  const uint32_t* first =
      copy_.Pixels() + static_cast<size_t>(top) * static_cast<size_t>(copy_.Width());
  SetStretchBltMode(context, COLORONCOLOR);
  StretchDIBits(context, corner.x + left * factor, corner.y + top * factor, (right - left) * factor,
                (bottom - top) * factor, left, 0, right - left, bottom - top, first, &info,
                DIB_RGB_COLORS, kCopyRaster);
}

}  // namespace orvane
