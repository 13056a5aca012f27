// The woman: wide eyes and a smile that no dragon spoils, a ribbon in long fair hair.
#include <array>

#include "content/pictures/panels/panels.h"
#include "content/pictures/panels/portrait.h"

namespace orvane::paint::panel {
namespace {

constexpr uint32_t kInk = 0x3C1C20;
constexpr uint32_t kSkinLine = 0x945040;
constexpr uint32_t kSkin = 0xFCDCBC;
constexpr uint32_t kSkinLit = 0xFFF2E0;
constexpr uint32_t kSkinShade = 0xECA888;
constexpr uint32_t kSkinDeep = 0xC87C68;
constexpr uint32_t kHair = 0xE4B040;
constexpr uint32_t kHairShade = 0xB47C24;
constexpr uint32_t kHairDeep = 0x80501C;
constexpr uint32_t kHairLit = 0xF8D868;
constexpr uint32_t kHairShine = 0xFFF8B8;
constexpr uint32_t kHairLine = 0x54300C;

constexpr const char* kHead =
    "M34.4 19 Q35.2 27.6 33 32 Q30.4 36.4 26 39.4 Q22.6 41.2 20 40.8 Q17.4 39.8 15 36.2"
    " Q12.6 32.8 11.8 30 Q11 28 11.8 25.8 Q12.4 24 11.8 20 Q12 9 24 9 Q34 10 34.4 19 Z";
constexpr const char* kFringe =
    "M22 4.4 Q36 3.6 39 14 Q41 24 38.8 32 Q38.4 38 40 43 Q35.6 41.8 34.6 35 Q35.4 28 34.8 22.4 "
    "Q32.6 20 31.4 15.6"
    " Q30.6 19.4 27.6 22.4 Q28 18.4 26.6 14.8 Q23.4 20.4 17 22 Q19.6 18.6 20 15.2 Q16.6 20 12.4 "
    "21.4 Q10.8 27 11.6 33"
    " Q11 38.4 8.2 41 Q6.8 33 7.4 21 Q8.6 5.6 22 4.4 Z";
constexpr const char* kFringeShadow =
    "M8 18 L24 8 L40 18 L36 27 Q33.8 23 32.4 18.6 Q31 23 27.8 25.2 Q28.6 21.4 27.2 17.8 Q23.6 23.6 "
    "16.4 24.6 Q19.6 21.6 20.4 18.6"
    " Q16.6 23 11 24 Z";
constexpr const char* kNearEye =
    "M23.6 25.4 Q25.4 22 28.8 22 Q31.6 22.4 32 25.2 L31.2 29.6 Q27.8 31.4 24.4 29.6 Z";
constexpr const char* kFarEye =
    "M12.8 25 Q13.8 22.2 16.4 22 Q18.8 22.2 19.6 25.2 L19 29.4 Q16.2 31 13.6 29.2 Z";

constexpr std::array kMarks{
    Mark{"M0 0 H48 V48 H0 Z", 0x6C4C84},
    Mark{"M0 0 H48 V14 L0 34 Z", 0x9874A8},
    // Ribbon and hair behind.
    Mark{"M33 7.4 Q36 1 43.6 1.4 Q46.4 5 43 9.4 Q46.8 12.4 44.6 17 Q38.6 17.4 35 11.6 Z", 0xE0507C,
         0x5C1030, 1},
    Mark{"M36 7 Q38.6 3.6 42.8 3.2 Q42.4 6.4 38 8.6 Z", 0xF898B0},
    Mark{"M38 10.6 Q42.4 11.6 43.6 15.2 Q39.4 14.8 36.6 11.8 Z", 0xA82C5C},
    Mark{"M24 2.4 Q38 2.4 41.6 15 Q43.6 26 43.4 34 Q43.6 42 46.8 48 L3.6 48 Q5 40 4.6 32 Q4 24 5 "
         "18 Q8 2.6 24 2.4 Z",
         kHairShade, kHairLine, 1.1},
    Mark{"M36 22 Q39.4 34 37 48 L31 48 L30 38 Z M9 30 Q12 38 10.4 48 L17 48 L16.4 38 Z", kHairDeep},
    Mark{"M40.6 20 Q41 34 42.8 46 M6.6 26 Q6.8 38 5.8 47", kNone, kHair, 1.2},
    // Neck, blouse, bow.
    Mark{"M18.6 34 L18.6 44 L29.6 44 L29.6 35 Z", kSkinShade, kSkinLine, 0.8},
    Mark{"M19 38.6 Q22 41.6 26 40 L29.6 37 L29.6 43 L19 43 Z", kSkinDeep},
    Mark{"M7.6 48 Q9.4 43.4 17.4 42 Q23.6 46.4 30.6 41.8 Q38.6 43 41 48 Z", 0xF4F0F8, 0x5C5080, 1},
    Mark{"M29 44 Q36.6 43.6 40 48 L31 48 Z", 0xB8B0D0},
    Mark{"M16.6 42 Q23.4 47.4 31.4 41.6 L32.6 44.4 Q24 49.6 15.4 44.6 Z", 0x58A0E0, 0x1C3068, 0.8},
    Mark{"M19.4 44 Q16.8 47.6 20.4 48 L28.4 48 Q31 47 28.4 43.8 L24 45.4 Z", 0xE0507C, 0x5C1030,
         0.8},
    Mark{"M23 44.6 H25.4 V47 H23 Z", 0xFCE070, 0x80501C, 0.5},
    // Head.
    Mark{kHead, kSkin, kSkinLine, 0.9},
    Mark{"M30.4 20 Q31.6 30 27.6 35 Q25 38.4 21.6 40 Q25 42 28.6 39 Q34 34 35 28 L35 19 Z",
         kSkinShade, kNone, 0, 0.9, kHead},
    Mark{"M12.8 24 Q12.6 30 16.4 35 Q15.4 30 16.8 24 Z", kSkinLit, kNone, 0, 1, kHead},
    Mark{kFringeShadow, kSkinDeep, kNone, 0, 0.6, kHead},
    Mark{"M26.6 32.4 Q28.6 31 30.6 32 Q30 34 28 34.2 Q26.6 33.8 26.6 32.4 Z M13 31.4 Q14.6 30.8 "
         "15.6 32 Q15.4 33.6 14.4 33.6 Z",
         0xF48C80, kNone, 0, 0.85},
    // Eyes.
    Mark{kNearEye, 0xFFFFFF},
    Mark{kFarEye, 0xFFFFFF},
    Mark{"M24.4 22 H30 Q30.4 30.4 27.2 30.6 Q24.2 30.4 24.4 22 Z", 0x146440, kNone, 0, 1, kNearEye},
    Mark{"M13.4 22 H18 Q18.4 30 15.7 30.2 Q13 30 13.4 22 Z", 0x146440, kNone, 0, 1, kFarEye},
    Mark{"M24.8 27.4 H29.6 Q29.2 30.3 27.2 30.3 Q25.2 30.2 24.8 27.4 Z", 0x64DC94},
    Mark{"M13.8 27.2 H17.7 Q17.4 29.9 15.7 29.9 Q14.1 29.8 13.8 27.2 Z", 0x64DC94},
    Mark{"M26.2 24.2 H28.2 V27.6 H26.2 Z M14.8 24.2 H16.6 V27.4 H14.8 Z", 0x041C18},
    Mark{"M24.8 23.8 H26.6 V25.8 H24.8 Z M13.8 23.8 H15.2 V25.6 H13.8 Z", 0xFFFFFF},
    Mark{"M28.4 28 H29.4 V29 H28.4 Z M16.6 27.8 H17.4 V28.8 H16.6 Z", 0xE8FFF0},
    Mark{"M25.4 30.6 Q27.8 31.6 30.4 30.4 M14.2 30.2 Q16 31 18 30", kNone, 0xB06C58, 0.7},
    // Nose and smile.
    Mark{"M20.6 30.2 L19.8 31.8 L21.2 32.2", kNone, kSkinDeep, 0.9},
    Mark{"M17.8 34 Q21 35.4 25 33.6 Q24.6 37.6 21.4 37.8 Q18.6 37.6 17.8 34 Z", 0xE06068, 0x8C3438,
         0.9},
    Mark{"M18.6 34.6 Q21 35.6 24.3 34.3 L23.9 35.6 Q21 36.5 19 35.7 Z", 0xFFF4F0},
    // Hair over the brow and beside the cheeks.
    Mark{kFringe, kHair, kHairLine, 1},
    Mark{"M39.4 18 Q41 26 38.8 33 Q38.6 38 39.8 42.4 Q36 41 35 35 Q36.4 27 36 20 Q33.6 18 32.6 12 "
         "Q36 14 39.4 18 Z",
         kHairShade, kNone, 0, 1, kFringe},
    Mark{"M26.6 14.8 Q28 11 31 10 Q30 15 27.6 21 Z M20 15.2 Q21 12.4 23 11.4 Q22 17 17.6 21.6 Z",
         kHairShade, kNone, 0, 1, kFringe},
    Mark{"M9 20 Q9.6 9 20 6.6 Q29 5 34.6 10 Q30 9 26 12.6 Q22 10.6 18.8 14 Q14 16 11.4 19.6 Q9.8 "
         "24 10 30 Q8.6 26 9 20 Z",
         kHairLit, kNone, 0, 1, kFringe},
    Mark{"M11 15.4 Q13.6 9.6 20 8.6 Q17.6 10.4 17.2 12 Q20 9.2 25.4 8.6 Q23.4 9.8 23 11.4 Q27 8.6 "
         "31.4 9.6 Q27.6 10.4 25.6 12.6"
         " Q22 11 18.4 14.2 Q13.8 14.6 11 15.4 Z",
         kHairShine},
    Mark{"M37.4 24 Q37.8 30 36.8 35 M9.2 26 Q9.2 32 9.4 36", kNone, kHairLit, 0.9},
    // Lashes and brows lie over the hair, or the eyes would lose their rim.
    Mark{"M23 25.8 Q24.8 21.6 28.6 21.5 Q31.4 21.8 32.4 24.4 L33.6 23.8", kNone, kInk, 1.7},
    Mark{"M12.2 24.6 Q13.4 21.7 16.4 21.5 Q18.8 21.6 20 25", kNone, kInk, 1.6},
    Mark{"M24.4 19.6 Q28.4 17.6 32 19.6 M12.8 19.8 Q15 18 18.6 19.4", kNone, 0x80501C, 1, 0.9},
};

}  // namespace

Image PaintFaceWoman() {
  return PaintPortrait(kMarks);
}

}  // namespace orvane::paint::panel
