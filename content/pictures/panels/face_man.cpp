// The man: half a grin, hair that no comb has tamed.
#include <array>

#include "content/pictures/panels/panels.h"
#include "content/pictures/panels/portrait.h"

namespace orvane::paint::panel {
namespace {

constexpr uint32_t kInk = 0x2C1418;
constexpr uint32_t kSkinLine = 0x74382C;
constexpr uint32_t kSkin = 0xF8CCA0;
constexpr uint32_t kSkinLit = 0xFFE8CC;
constexpr uint32_t kSkinShade = 0xDC9870;
constexpr uint32_t kSkinDeep = 0xB06C54;
constexpr uint32_t kHair = 0x98501E;
constexpr uint32_t kHairShade = 0x66301A;
constexpr uint32_t kHairDeep = 0x44201A;
constexpr uint32_t kHairLit = 0xC87C34;
constexpr uint32_t kHairShine = 0xF0B868;

constexpr const char* kHead =
    "M13.6 20 Q13 28 15.2 32.4 Q17.6 36.8 22.2 39.8 Q26 42.2 29 42 Q31.4 41.4 33.8 37.4"
    " Q36 33.6 36.8 30.6 Q37.4 28.6 36.6 26.2 Q36.2 24 36.8 20 Q36 9 24 9 Q14 10 13.6 20 Z";
constexpr const char* kFringe =
    "M10.4 28 L8.6 18 Q10 9.6 19.6 6.4 Q31 3.8 37.6 9.2 Q41.2 13 40.6 19.4 L38.8 27.4 L37.8 20.4"
    " L35.8 22 L33.4 18.6 L31.2 21 L28.4 16.6 L24.4 23.4 L22.2 18.6 L18.4 22 L17 18.4 L14.6 30.4 "
    "L13 23.6 Z";
constexpr const char* kFringeShadow =
    "M10 28 L9 18 L20 8 L40 12 L40 27 L38 23.2 L36.4 24.4 L34 18 L32 21.6 L28.8 16 L25.2 25"
    " L22.8 17.2 L19.2 22.8 L17.8 19 L16 32 L13 29 Z";
constexpr const char* kNearEye =
    "M17.4 25.4 Q19.4 23.4 21.8 23.4 Q24 23.8 24.6 25.6 L24 29.2 Q21 30.4 18.4 29 Z";
constexpr const char* kFarEye =
    "M29.6 25.6 Q31 23.6 33.4 23.4 Q35.2 23.6 35.8 25 L35.2 28.8 Q32.6 30 30.2 29 Z";

constexpr std::array kMarks{
    Mark{"M0 0 H48 V48 H0 Z", 0x3C5C98},
    Mark{"M0 0 H48 V14 L0 34 Z", 0x5880BC},
    // Hair behind the head.
    Mark{"M11 32 L6.6 32.6 L8 27.6 L2 25.4 L6.8 21.2 L1.6 14.6 L8.4 14.2 L7.4 5.6 L14.6 8.4"
         " L18.6 0.8 L23.4 5.4 L31 1 L32.4 5.8 L41.6 3.4 L40 9.6 L47 12.8 L42.4 17.2 L46.2 23.6"
         " L41 24.6 L41 30.4 L37 33 Z",
         kHairShade, kInk, 1.2},
    Mark{"M11 32 L12 22 L16 34 Z M41 30.4 L38 21 L36 33 Z M42.4 17.2 L38 20 L41 24.6 Z M40 9.6 L36 "
         "9 L42.4 17.2 Z",
         kHairDeep},
    // Neck, tunic, scarf.
    Mark{"M18.4 34 L18.4 43 L31 43 L31 36 Z", kSkinShade, kSkinLine, 0.8},
    Mark{"M18.4 37 Q23 42 29 42.2 L31 41 L31 44 L18.4 44 Z", kSkinDeep},
    Mark{"M2 48 Q3.6 42.6 12.6 40.8 L36.4 40.8 Q44 42.6 46 48 Z", 0x2C64B4, 0x101C44, 1},
    Mark{"M2 48 Q3.6 43 11 41.6 L13 48 Z", 0x58A0DC},
    Mark{"M36 42 Q43.4 43.4 45.6 48 L35 48 Z", 0x1C3C84},
    Mark{"M12.4 40.6 Q15.4 37.6 18.2 38.4 Q23.6 43.2 31.2 40.6 Q34.6 38.8 36.6 41.4"
         " Q36.4 45.4 31 46.8 Q22 48.6 14.8 45.8 Q11.8 43.4 12.4 40.6 Z",
         0xC83430, 0x480C18, 1},
    Mark{"M13.4 40.8 Q15.8 38.8 18 39.6 Q22 43 27 43 Q20 45 15.4 43.4 Q13.4 42.4 13.4 40.8 Z",
         0xF07850},
    Mark{"M16 45.6 Q24 47.8 33.6 45.4 Q31 47 24 47.4 Q18.4 47.4 16 45.6 Z", 0x841C28},
    // Head and ear.
    Mark{kHead, kSkin, kSkinLine, 1},
    Mark{"M33.4 21 Q34.4 29 31.8 34.6 Q29.4 39.4 25.4 41.4 Q29 43 31.4 41 Q36 36 37.4 29 L37 20 Z",
         kSkinShade, kNone, 0, 1, kHead},
    Mark{"M14.6 27 Q15.4 33 20 37 Q17 32 16.6 27 Z", kSkinLit, kNone, 0, 1, kHead},
    Mark{"M21.6 38.4 Q25.6 41 29 40.6 Q31 39.6 32 37.8 L32 43 L21 43 Z", kSkinShade, kNone, 0, 0.7,
         kHead},
    Mark{kFringeShadow, kSkinDeep, kNone, 0, 0.75, kHead},
    Mark{"M13.8 25.4 Q10.2 23.2 10.4 27.6 Q11.2 31.8 14.8 31.6 Z", kSkin, kSkinLine, 0.9},
    Mark{"M13.6 27 Q11.8 26.2 12 28.2 Q12.6 30 14 30 Z", kSkinDeep},
    // Eyes.
    Mark{kNearEye, 0xFFFFFF},
    Mark{kFarEye, 0xFFFFFF},
    Mark{"M18.8 23 H23.8 Q24 29.8 21.4 29.9 Q18.8 29.8 18.8 23 Z", 0x1C4C9C, kNone, 0, 1, kNearEye},
    Mark{"M31.4 23 H35.4 Q35.6 29.4 33.4 29.6 Q31.2 29.4 31.4 23 Z", 0x1C4C9C, kNone, 0, 1,
         kFarEye},
    Mark{"M19.4 27.4 H23.4 Q23 29.6 21.4 29.6 Q19.8 29.6 19.4 27.4 Z", 0x60B4F0},
    Mark{"M32 27.2 H35 Q34.8 29.2 33.4 29.2 Q32.2 29.2 32 27.2 Z", 0x60B4F0},
    Mark{"M20.6 24.4 H22.6 V27.4 H20.6 Z M32.8 24.4 H34.4 V27.2 H32.8 Z", 0x081028},
    Mark{"M19.2 24.2 H20.8 V25.8 H19.2 Z M31.6 24.2 H32.9 V25.6 H31.6 Z", 0xFFFFFF},
    Mark{"M16.8 25 Q19 23.4 21.8 23.7 L24.4 25.4 L24.4 24.4 L21 23 L17 23.6 Z", 0x241018, kNone, 0,
         0.35},
    Mark{"M16.4 26.2 Q18.6 23.4 22 23.5 Q24.2 23.8 25.2 25.8", kNone, kInk, 1.5},
    Mark{"M29 25.6 Q30.8 23.5 33.4 23.4 Q35.4 23.5 36.2 24.8", kNone, kInk, 1.4},
    Mark{"M18.2 29.9 Q20.6 30.9 23.2 30.1 M30.8 30 Q32.6 30.6 34.4 29.6", kNone, 0x9C5840, 0.7},
    // Nose, grin.
    Mark{"M28.6 28.8 L30.6 32.2 L28 33", kNone, kSkinDeep, 0.9},
    Mark{"M28.4 31.4 L30.4 32.2 L28.2 33 Z", kSkinDeep},
    Mark{"M24 35.4 Q27.6 36.6 32.2 34.4 Q31.2 37.6 28 37.8 Q25.4 37.6 24 35.4 Z", 0xFFFFFF,
         0x6C2420, 0.9},
    Mark{"M23.2 35 L24.2 35.6 M31.8 34.8 L32.8 33.6", kNone, 0x6C2420, 0.9},
    // Hair over the brow.
    Mark{kFringe, kHair, kInk, 1.1},
    Mark{"M40.4 14 L40.4 20 L38.8 27 L37.8 19.4 L35.4 20.4 L32.8 13.6 L30.8 17.6 L29 14.6 L31.4 11 "
         "L34 14.4 L35.6 11 Z",
         kHairShade, kNone, 0, 1, kFringe},
    Mark{"M14.8 31 L13 24.4 L11.4 18 L14.4 19.6 L16.2 16 Z M22.4 22 L22 16 L24 13.4 L26 18 Z",
         kHairShade, kNone, 0, 1, kFringe},
    Mark{"M10.2 18.6 Q11.8 10.8 19.6 7.6 Q28 5.2 34.4 8.2 L31.4 11.6 L28.6 9.6 L26.2 14.2 L22.8 "
         "10.6 L18.8 16.8 L17.2 12.8"
         " L12.8 20.4 Z",
         kHairLit, kNone, 0, 1, kFringe},
    Mark{"M13.2 15.4 Q15.4 11 20.4 9 L19 12 L24.6 8.4 L23.6 10.4 L29.4 7.6 L26.4 11.4 L22.8 9.8 "
         "L18.4 14.4 L17.2 11.8 Z",
         kHairShine},
    Mark{"M9.8 8.8 L14 11 L11.2 13 Z M19 4.4 L21.6 7 L18 7.6 Z M29.8 3.8 L29.8 6.2 L26 5.8 Z M38.6 "
         "6.6 L36.8 8.6 L34.6 7.2 Z"
         " M5.2 16.8 L9.4 17.4 L8.6 20.4 Z",
         kHairLit},
    // Brows show through the hair; the far one is raised.
    Mark{"M15.8 22.6 L19.4 20.6 L25.2 22.4 L25 23.4 L19.8 22.2 Z", kInk, kInk, 0.6},
    Mark{"M29.2 22.2 L32.8 19.4 L36.4 19.8 L33.4 21 Z", kInk, kInk, 0.6},
};

}  // namespace

Image PaintFaceMan() {
  return PaintPortrait(kMarks);
}

}  // namespace orvane::paint::panel
