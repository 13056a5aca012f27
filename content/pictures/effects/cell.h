// One cell of the effect sheet: a shape that tells for every pixel whether it is hit and how
// bright.
#pragma once

#include <functional>
#include <optional>

#include "content/pictures/shared/ramp.h"
#include "tools/paint/recipe.h"

namespace orvane::paint::effects {

using Colour = uint32_t;  // 0xRRGGBB

constexpr int kCellSize = 24;

using SixTones = Ramp<6>;

inline constexpr SixTones kFire{{0x7C1008, 0xC02C0C, 0xEC6410, 0xFCA024, 0xFCDC58, 0xFFFCD8}};
inline constexpr SixTones kIce{{0x183868, 0x2C68A8, 0x58A0D8, 0x94D0F0, 0xD0F4FC, 0xFFFFFF}};
inline constexpr SixTones kStar{{0x9C6010, 0xD89820, 0xF4C838, 0xFCEC84, 0xFFFCD0, 0xFFFFFF}};
inline constexpr SixTones kWind{{0x145C44, 0x249058, 0x54C868, 0xA4EC88, 0xE0FCC0, 0xFFFFFF}};
inline constexpr SixTones kSunlight{{0xDC6418, 0xF49428, 0xFCC448, 0xFCE884, 0xFFFBD0, 0xFFFFFF}};
inline constexpr SixTones kForce{{0x1C5C4C, 0x4C9C3C, 0xC0CC38, 0xFCEC7C, 0xFFFCD0, 0xFFFFFF}};
inline constexpr SixTones kBlood{{0x240818, 0x540C24, 0x981424, 0xD83020, 0xFC8038, 0xFFE8A0}};
inline constexpr SixTones kShade{{0x100820, 0x2C1450, 0x542480, 0x8C44B8, 0xCC8CE8, 0xFCE4FF}};
inline constexpr SixTones kSmoke{{0x302830, 0x504448, 0x786864, 0xA09080, 0xC8B8A0, 0xF0E4CC}};
inline constexpr SixTones kAsh{{0x241C34, 0x443C58, 0x6C6480, 0xA098AC, 0xD0CCD8, 0xF8F4F4}};
inline constexpr SixTones kEarth{{0x2C1C20, 0x54383C, 0x84604C, 0xB08C64, 0xD8BC88, 0xFCECC0}};
inline constexpr SixTones kSteel{{0x1C1454, 0x3840BC, 0x3C84F4, 0x6CC8FC, 0xC4F4FC, 0xFFFFFF}};

// What a shape gives for a place: a colour where it is hit, nothing elsewhere. The middle of the
// cell is (0, 0), its edges lie at 12; x grows to the right, y downward.
using Shape = std::function<std::optional<Colour>(double x, double y)>;

// Paints `shape` into cell (column, row): the picture at the left, its mask 192 pixels to the
// right. The outermost pixels of a cell stay clear whatever the shape says.
void PaintCell(Image& sheet, int column, int row, const Shape& shape);

// A value in [0, 1) that wanders smoothly with x and y.
double Wander(double x, double y, int seed);

}  // namespace orvane::paint::effects
