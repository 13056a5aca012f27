#include "content/pictures/panels/icon_relief.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "content/pictures/panels/icon_frame.h"
#include "content/pictures/scenes/noise.h"
#include "content/pictures/shared/vec.h"

namespace orvane::paint::panel {
namespace {

using scene::Colour;
using scene::Fbm;
using scene::Hash;
using scene::Hex;
using scene::Mix;
using scene::Noise;
using scene::OnRamp;

// Everything is measured in sixty-fourths of the icon's side.
constexpr float kCornerX = 5.5F;  // the eye's inner corner, and the way from it to the outer one
constexpr float kCornerY = 38;
constexpr float kAxisX = 0.981F;
constexpr float kAxisY = -0.194F;
constexpr float kAxisLength = 55;
constexpr float kPupilX = 36.5F;
constexpr float kPupilY = 32.5F;
constexpr float kLid = 10.5F;  // how far the lids reach out from the eye, above
constexpr float kLowerLid = 7;

const Vec kKey = Unit({-0.52F, -0.66F, 0.62F});

constexpr std::array<uint32_t, 8> kSkin{0x1E0818, 0x3C0E22, 0x6A1626, 0x9A2428,
                                        0xC43E2A, 0xE06834, 0xF49C54, 0xFFDC9C};
constexpr std::array<uint32_t, 7> kIris{0x5C1C08, 0x9C4408, 0xD07C10, 0xF0AC20,
                                        0xFCD448, 0xFFF088, 0xFFFCD8};

// A place seen from the eye: how far along its axis, how far outside its rim (negative inside), and
// on which side.
struct AboutEye {
  float Along;
  float Out;
  bool Above;
};

AboutEye SeenFromEye(float x, float y) {
  const float dx = x - kCornerX;
  const float dy = y - kCornerY;
  const float along = (dx * kAxisX + dy * kAxisY) / kAxisLength;
  const float up = dx * kAxisY - dy * kAxisX;
  const float bow = 4 * along * (1 - along);
  const float upper = 13.2F * bow * (1 + 0.34F * (along - 0.5F));
  const float lower = 13.4F * bow * (1 - 0.25F * (along - 0.5F));
  const bool above = up - upper > -up - lower;
  // The bows are slanted, so that what is counted upward is more than the distance.
  const float slope = 1 + 0.45F * (along - 0.5F) * (along - 0.5F) * 4;
  return {along, std::max(up - upper, -up - lower) / slope, above};
}

// The scales beyond the lids: rows that follow the eye's rim, each half a scale off from the last,
// growing outward, with a keel, the free edge turned away from the eye.
struct Scale {
  float Height;
  float Chance;  // one number for the whole scale
  float Tip;     // 0 at its root, 1 at its free edge
};

Scale ScaleAt(const AboutEye& at) {
  const float from = at.Above ? kLid : kLowerLid;
  const float root = std::sqrt(std::max(0.0F, at.Out - from) * 0.34F + 0.9F) * 2.6F;
  const int row = static_cast<int>(root);
  float best = -1;
  Scale result{0, 0.5F, 0};
  // A scale reaches over the root of the next row.
  for (const int each : {row, row - 1}) {
    const float tip = (root - static_cast<float>(each)) / 1.45F;
    const float wide = 5.2F + 0.55F * static_cast<float>(each);
    const float along = at.Along * kAxisLength / wide + (each % 2 == 0 ? 0 : 0.5F);
    const float cell = std::floor(along);
    const float side = 2 * (along - cell) - 1;
    const float shape = 1 - side * side - std::pow(std::max(0.0F, tip), 3.0F) * 0.98F;
    if (shape < 0) continue;
    const float keel = 0.32F * std::exp(-side * side * 40) * (1 - 0.4F * tip);
    const float height = 0.7F + 1.5F * tip + 0.95F * std::sqrt(shape) + keel;
    if (height <= best) continue;
    best = height;
    result = {height, Hash(static_cast<int>(cell), each, at.Above ? 61 : 62), tip};
  }
  return result;
}

// How far the skin stands out towards the viewer.
float SkinHeight(float x, float y) {
  const AboutEye at = SeenFromEye(x, y);
  const float from = at.Above ? kLid : kLowerLid;
  const float share = Clamp(at.Out / from);
  // A lid is a roll about the eye, its wet edge a smaller one.
  const float roll = (at.Above ? 8.0F : 5.0F) * std::sqrt(std::max(0.0F, share * (1 - share) * 4));
  const float edge = at.Out < 2 ? 1.5F * std::sqrt(std::max(0.0F, at.Out * (2 - at.Out))) : 0;
  const float fold =
      at.Above ? 0.30F * std::sin(at.Out * 1.9F + 3 * Noise(at.Along * 7, 0.3F, 65)) : 0;
  const float leather = 0.42F * (Fbm(x * 0.7F, y * 0.7F, 2, 66) - 0.5F);
  const float lids = std::max(roll, edge) + (fold + leather) * share * (1 - share) * 4;
  if (at.Out < from) return lids;
  const float settled = SmoothStep(0, 2.5F, at.Out - from);
  return Mix(0.6F, ScaleAt(at).Height, settled) + 2.0F * SmoothStep(0, 16, at.Out - from);
}

Vec SkinNormal(float x, float y) {
  constexpr float step = 0.16F;
  const float across = SkinHeight(x + step, y) - SkinHeight(x - step, y);
  const float down = SkinHeight(x, y + step) - SkinHeight(x, y - step);
  return Unit({-across, -down, 2 * step});
}

Colour Skin(float x, float y) {
  const AboutEye at = SeenFromEye(x, y);
  const float from = at.Above ? kLid : kLowerLid;
  const Vec normal = SkinNormal(x, y);
  const float facing = Dot(normal, kKey);
  float light = 0.16F + 0.62F * Clamp(0.5F + 0.5F * facing) * Clamp(0.5F + 0.5F * facing);
  light += 0.24F * std::pow(Clamp(facing), 14.0F);
  // Light lies on the upper left of the whole head and fails towards the lower right.
  light += 0.10F * (1 - (x + 1.4F * y) / 76);
  light *= 0.66F + 0.34F * SmoothStep(0, 2.6F, at.Out);  // the eye lies in a hollow
  if (at.Out > from) {
    const Scale scale = ScaleAt(at);
    light *= 0.62F + 0.38F * SmoothStep(0.0F, 0.42F, scale.Tip);
    light += 0.10F * (scale.Chance - 0.5F);
    light *= 0.80F + 0.20F * SmoothStep(0, 3, at.Out - from);
  } else {
    light += 0.05F * (Fbm(x * 0.5F, y * 0.5F, 3, 67) - 0.5F);
  }
  Colour colour = OnRamp(kSkin, light);
  // A cool rim from behind on what turns away to the lower right.
  const float rim = std::pow(Clamp(Dot(normal, Unit({0.7F, 0.5F, 0.25F}))), 4.0F);
  colour = colour + Hex(0x5A3C9C) * (0.30F * rim);
  return Mix(colour, Hex(0x180414), 0.9F * (1 - SmoothStep(0.0F, 0.7F, at.Out)));
}

Colour Eye(float x, float y, float depth, bool fine) {
  const float dx = x - kPupilX;
  const float dy = y - kPupilY;
  const float radius = std::hypot(dx, dy);
  const float turn = std::atan2(dy, dx);
  // Fibres run outward from the pupil; they are drawn on a circle so that no seam shows.
  const float fineness = fine ? 9.0F : 5.0F;
  const float fibre_x = std::cos(turn) * fineness;
  const float fibre_y = std::sin(turn) * fineness;
  const float fibre = Fbm(fibre_x + 20 + 0.05F * radius, fibre_y + 20, 3, 71) - 0.5F;
  const float flecks = Noise(x * 0.8F, y * 0.8F, 72) - 0.5F;
  float light = 0.46F + 0.010F * dx + 0.017F * dy;  // it glows where the light leaves it again
  light += 0.62F * fibre + 0.10F * flecks;
  light += 0.20F * std::exp(-std::pow((radius - 8.5F) / 4.5F, 2.0F));
  light -= 0.34F * SmoothStep(6, 0, depth);  // the ball turns away at its rim
  // The upper lid throws its shadow on the ball.
  const AboutEye shaded = SeenFromEye(x + 0.9F, y - 1.2F);
  const float lid_shadow =
      SmoothStep(7.0F, 0.5F, -shaded.Out) * SmoothStep(kPupilY + 5, kPupilY - 4, y);
  light = Mix(light, 0.16F, 0.62F * lid_shadow);
  Colour colour = OnRamp(kIris, light);
  // The slit, a little aslant, with a burnt border and a pale one.
  const float lean = dx + 0.10F * dy;
  const float reach = dy / 14.6F;
  const float half = 3.5F * (1 - reach * reach);
  const float beside = std::fabs(lean) - std::max(half, 0.0F);
  const float ends = std::fabs(reach) < 1.12F ? 1.0F : 0.0F;
  colour =
      Mix(colour, Hex(0xFFE070), ends * 0.42F * std::exp(-std::pow((beside - 1.7F) / 0.7F, 2.0F)));
  colour = Mix(colour, Hex(0x5C1C08), ends * 0.85F * (1 - SmoothStep(0.2F, 1.1F, beside)));
  if (std::fabs(reach) < 1) {
    const Colour black =
        Mix(Hex(0x0C020C), Hex(0x3C1030), Clamp(0.5F + lean * 0.16F + dy * 0.02F) * 0.6F);
    colour = Mix(colour, black, 1 - SmoothStep(-0.35F, 0.35F, beside));
  }
  // Wet lights: a window at the upper left, a soft answer at the lower right.
  const float window = std::hypot((dx + 10.4F + 0.3F * dy) / 4.6F, (dy + 5.2F) / 3.1F);
  colour = Mix(colour, Hex(0xFFFFFF), 1 - SmoothStep(0.86F, 1.06F, window));
  const float answer = std::hypot((dx - 9.6F) / 4.2F, (dy - 7.0F) / 1.9F);
  colour = Mix(colour, Hex(0xFFFCE8), 0.75F * (1 - SmoothStep(0.3F, 1.05F, answer)));
  return Mix(Hex(0x1C0610), colour, SmoothStep(0.2F, 1.5F, depth));
}

}  // namespace

scene::Canvas DrawIconRelief(int size) {
  const int fine = size >= 128 ? 3 : 4;
  scene::Canvas canvas(size * fine, size * fine);
  const float unit = 64.0F / static_cast<float>(canvas.Width);
  for (int row = 0; row < canvas.Height; ++row) {
    for (int column = 0; column < canvas.Width; ++column) {
      const float x = (static_cast<float>(column) + 0.5F) * unit;
      const float y = (static_cast<float>(row) + 0.5F) * unit;
      const float out = SeenFromEye(x, y).Out;
      const Colour inside = out < 0 ? Eye(x, y, -out, size >= 128) : Skin(x, y);
      canvas.At(column, row) = IconFramed(inside, x, y);
    }
  }
  return scene::Shrink(canvas, fine, fine);
}

}  // namespace orvane::paint::panel
