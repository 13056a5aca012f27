#include "content/pictures/panels/title_letters.h"

#include <array>

namespace orvane::paint::panel {
namespace {

using scene::Drawing;
using scene::Fill;

// Capitals 44 units high from y = 10 to y = 54; the first one is larger. `x` is where it stands.
struct Letter {
  double X;
  const char* Path;
};

constexpr std::array<Letter, 6> kLetters{{
    {58,
     "M29 4 Q46 4 54 16 Q59 24 58 33 Q56 48 44 55 Q36 60 27 59 Q10 58 3 44 Q-1 34 2 24 Q8 5 29 4 Z"
     " M28 9.5 Q19 10 15.4 20 Q12.4 29 14.4 39 Q17.6 52.6 29.6 53.6 Q40 53.6 44 43 Q47 34 45.6 25.4"
     " Q42.4 10 28 9.5 Z"},
    {121,
     "M0 12 L22 12 Q37 12.4 37.6 24.4 Q37.4 33 28.6 36 L40 51.4 L46 54 L31 54 L19 37.4 L17.4 37.4 "
     "L17.4 50.6"
     " L21.6 54 L1 54 L5.4 50.6 L5.4 16 Z M17.4 17 L17.4 32.4 Q26 33 26 24.6 Q25.6 16.6 17.4 17 Z"},
    {162,
     "M0 12 L20 12 L16.4 15.8 L26.4 41 L36 16.6 L31.6 12 L47 12 L43.4 16 L27.6 55 L22.4 55 L4.6 16 "
     "Z"},
    {203,
     "M24.6 11 L27.6 11 L44.6 51 L49 54 L29 54 L32.8 50.4 L30.4 44 L15.6 44 L13.2 50.6 L17.4 54 L1 "
     "54 L6.6 50 Z"
     " M22.8 23.6 L17.2 39 L28.6 39 Z"},
    {253,
     "M0 12 L14.4 12 L35.6 38.6 L35.6 15.8 L31 12 L46.4 12 L42 15.8 L42 55 L38.6 55 L12 22.6 L12 "
     "50.4 L16.6 54 L1 54"
     " L5.6 50.4 L5.6 16 Z"},
    {300,
     "M0 12 L37 12 L39.6 24 Q32.6 16.8 17.4 17.2 L17.4 29.6 L25.6 29.6 L31 25.8 L31 39 L25.6 35 "
     "L17.4 35 L17.4 48.8"
     " Q34.4 49.2 41.4 40 L38 54 L1 54 L5.4 50.4 L5.4 15.8 Z"},
}};

// A tail that ends in a point, for both sides of the name; drawn to the left of x = 0.
constexpr const char* kFlourish =
    "M0 36 Q-14 27 -30 31 Q-44 35 -60 30 L-52 34 L-58 38 Q-44 40 -30 36 Q-14 32.4 -4 40 Z";

void ForEachLetter(Drawing& drawing, const auto& draw) {
  for (const Letter& letter : kLetters) {
    drawing.Place(letter.X, 0, 1, 1);
    draw(letter.Path);
    drawing.Replace();
  }
  for (const bool right : {false, true}) {
    drawing.Place(right ? 350 : 51, 0, right ? -0.74 : 0.74, 1);
    draw(kFlourish);
    drawing.Replace();
  }
}

}  // namespace

void DrawTitleLetters(Drawing& drawing) {
  const Fill gold(0, 6, 0, 58,
                  {{0, 0xFFFCE0},
                   {0.40, 0xF8D058},
                   {0.50, 0xB06820},
                   {0.56, 0xD89030},
                   {0.84, 0xFCE078},
                   {1, 0xFFFAD0}});
  ForEachLetter(drawing, [&](const char* path) { drawing.Line(path, 0x240818, 6.4); });
  ForEachLetter(drawing, [&](const char* path) { drawing.Line(path, 0x801C28, 3.2); });
  ForEachLetter(drawing, [&](const char* path) {
    drawing.Shape(path, gold);
    drawing.Line(path, 0x5C2410, 0.7);
    drawing.Clip(path);
    drawing.Place(0.9, 1.1, 1, 1);
    drawing.Line(path, 0xFFFFF4, 0.9, 0.8);
    drawing.Replace();
    drawing.Unclip();
  });
}

}  // namespace orvane::paint::panel
