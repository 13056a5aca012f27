// Which faces stand in for those that the game asks for.
#include "src/frontend/shared/faces.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orvane {
namespace {

using Families = std::vector<std::string>;

// The face that a system with these families, all of them with Japanese letters, would show.
std::string Chosen(const char* asked, const Families& installed) {
  for (const std::string& family : Substitutes(asked, installed)) {
    if (std::find(installed.begin(), installed.end(), family) != installed.end()) return family;
  }
  return {};
}

TEST(Faces, FacesLikeTheGamesOwnComeFirst) {
  const Families all = {"Noto Sans CJK JP", "Noto Serif CJK JP", "IPAPGothic", "IPAPMincho",
                        "VL PGothic"};
  EXPECT_EQ(Chosen(kGothic, all), "IPAPGothic");
  EXPECT_EQ(Chosen(kMincho, all), "IPAPMincho");
  EXPECT_EQ(Chosen("no face at all", all), "IPAPGothic");
}

TEST(Faces, OtherKnownFacesFollow) {
  const Families noto = {"Noto Serif CJK KR", "Noto Sans CJK HK", "Noto Sans Mono CJK JP",
                         "Noto Serif CJK JP", "Noto Sans CJK JP"};
  EXPECT_EQ(Chosen(kGothic, noto), "Noto Sans CJK JP");
  EXPECT_EQ(Chosen(kMincho, noto), "Noto Serif CJK JP");
  EXPECT_EQ(Chosen(kGothic, {"VL Gothic", "VL PGothic"}), "VL PGothic");
}

TEST(Faces, AnUnknownFaceOfTheSameKindIsBetterThanAnother) {
  const Families some = {"WenQuanYi Micro Hei Mono", "WenQuanYi Micro Hei", "Shippori Mincho"};
  EXPECT_EQ(Chosen(kGothic, some), "WenQuanYi Micro Hei");
  EXPECT_EQ(Chosen(kMincho, some), "Shippori Mincho");
  EXPECT_EQ(Chosen(kGothic, {"AR PL UMing CN", "Sawarabi Gothic", "AR PL UKai CN"}),
            "Sawarabi Gothic");
  EXPECT_EQ(Chosen(kGothic, {"Source Han Sans KR", "Source Han Sans JP"}), "Source Han Sans JP");
  EXPECT_EQ(Chosen(kMincho, {"ヒラギノ角ゴシック", "ヒラギノ明朝"}), "ヒラギノ明朝");
}

TEST(Faces, AnyFaceWithJapaneseLettersIsBetterThanNone) {
  EXPECT_EQ(Chosen(kMincho, {"Droid Sans Fallback"}), "Droid Sans Fallback");
  EXPECT_EQ(Chosen(kGothic, {"Shippori Mincho"}), "Shippori Mincho");
  EXPECT_EQ(Substitutes(kGothic, {}).back(), "sans-serif");
  EXPECT_EQ(Substitutes(kMincho, {"VL PGothic"}).back(), "serif");
}

TEST(Faces, OnlyASystemWithoutJapaneseLettersIsToldWhatToInstall) {
  EXPECT_EQ(FontHint({"Droid Sans Fallback"}), "");
  const std::string hint = FontHint({});
  EXPECT_NE(hint.find("日本語のフォント"), std::string::npos);
  EXPECT_NE(hint.find("No installed font has Japanese letters"), std::string::npos);
  EXPECT_NE(hint.find("fonts-ipafont-gothic"), std::string::npos);
  EXPECT_EQ(hint.find('\n'), std::string::npos) << "one line";
}

TEST(Faces, SizesArePixelsOf96ToTheInch) {
  EXPECT_EQ(PixelSize({kGothic, 9, false}), 12);
  EXPECT_EQ(PixelSize({kMincho, 36, true}), 48);
  EXPECT_EQ(PixelSize({kGothic, 0, false}), 1);
}

}  // namespace
}  // namespace orvane
