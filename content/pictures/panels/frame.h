// Frames of metal round old paper, and the stones set in them.
#pragma once

#include <array>
#include <cstdint>

#include "content/pictures/scenes/canvas.h"

namespace orvane::paint::panel {

struct Area {
  int Left;
  int Top;
  int Width;
  int Height;
};

// The frame's lines from the outermost inwards where light falls on them and where it does not, the
// paper with its stains, and the corner pieces' colours for the letters a to e.
struct Style {
  std::array<uint32_t, 5> Lit;
  std::array<uint32_t, 5> Shaded;
  uint32_t Paper;
  uint32_t Stain;
  uint32_t Rim;
  std::array<uint32_t, 5> Corner;
};

constexpr Style kParchment{{0x24120C, 0xF0C860, 0xFFF4B8, 0xB47830, 0x4C2A16},
                           {0x24120C, 0x80501C, 0xC48C38, 0xE4B450, 0x4C2A16},
                           0xFAF0D0,
                           0xE4CE9C,
                           0xC8A468,
                           {0x3C1C10, 0x9C6424, 0xD8A040, 0xFCE078, 0xFFFCE0}};
constexpr Style kAzure{{0x0C1430, 0x88B4E8, 0xF0FCFF, 0x4874B4, 0x1C2C5C},
                       {0x0C1430, 0x2C4C88, 0x5888C8, 0x98C4EC, 0x1C2C5C},
                       0xECF6FF,
                       0xC4DAF2,
                       0x90B0DC,
                       {0x142450, 0x3860A8, 0x6CA4DC, 0xB8E0FC, 0xFFFFFF}};
constexpr Style kCrimson{{0x280818, 0xF0907C, 0xFFE8DC, 0xA83C44, 0x581424},
                         {0x280818, 0x781C30, 0xBC4C50, 0xE8907C, 0x581424},
                         0xFFF0E6,
                         0xF2CCBC,
                         0xD8948C,
                         {0x480C20, 0x982838, 0xD85C54, 0xF8AC94, 0xFFF8F0}};

constexpr Style kCloth{{0x24120C, 0xB47830, 0xE4B450, 0x80501C, 0x180C20},
                       {0x24120C, 0x4C2A16, 0x80501C, 0xB47830, 0x180C20},
                       0x3C2C5C,
                       0x2C1E48,
                       0x6C5490,
                       {0x24120C, 0x64380F, 0x9C6424, 0xD8A040, 0xFCE078}};

// Fills the area, which must lie on the canvas and be at least 14 pixels wide and high.
void DrawWindow(scene::Canvas& canvas, const Style& style, const Area& area);

// A cut stone about (x, y), 9 pixels high; its lit and its shaded face.
void DrawGem(scene::Canvas& canvas, const Style& style, int x, int y,
             std::array<uint32_t, 2> faces);

}  // namespace orvane::paint::panel
