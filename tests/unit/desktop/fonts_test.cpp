// Which faces stand in for those that the game asks for.
#include "src/frontend/desktop/paint/fonts.h"

#include <gtest/gtest.h>

#include <QFontDatabase>

namespace orvane {
namespace {

// The face that a desktop with these families, all of them with Japanese letters, would show.
QString Chosen(const char* asked, const QStringList& installed) {
  for (const QString& family : Substitutes(asked, installed)) {
    if (installed.contains(family)) return family;
  }
  return {};
}

TEST(Fonts, FacesLikeTheGamesOwnComeFirst) {
  const QStringList all = {"Noto Sans CJK JP", "Noto Serif CJK JP", "IPAPGothic", "IPAPMincho",
                           "VL PGothic"};
  EXPECT_EQ(Chosen(Gothic, all), "IPAPGothic");
  EXPECT_EQ(Chosen(Mincho, all), "IPAPMincho");
  EXPECT_EQ(Chosen("no face at all", all), "IPAPGothic");
}

TEST(Fonts, OtherKnownFacesFollow) {
  const QStringList noto = {"Noto Serif CJK KR", "Noto Sans CJK HK", "Noto Sans Mono CJK JP",
                            "Noto Serif CJK JP", "Noto Sans CJK JP"};
  EXPECT_EQ(Chosen(Gothic, noto), "Noto Sans CJK JP");
  EXPECT_EQ(Chosen(Mincho, noto), "Noto Serif CJK JP");
  EXPECT_EQ(Chosen(Gothic, {"VL Gothic", "VL PGothic"}), "VL PGothic");
}

TEST(Fonts, AnUnknownFaceOfTheSameKindIsBetterThanAnother) {
  const QStringList some = {"WenQuanYi Micro Hei Mono", "WenQuanYi Micro Hei", "Shippori Mincho"};
  EXPECT_EQ(Chosen(Gothic, some), "WenQuanYi Micro Hei");
  EXPECT_EQ(Chosen(Mincho, some), "Shippori Mincho");
  EXPECT_EQ(Chosen(Gothic, {"AR PL UMing CN", "Sawarabi Gothic", "AR PL UKai CN"}),
            "Sawarabi Gothic");
  EXPECT_EQ(Chosen(Gothic, {"Source Han Sans KR", "Source Han Sans JP"}), "Source Han Sans JP");
}

TEST(Fonts, AnyFaceWithJapaneseLettersIsBetterThanNone) {
  EXPECT_EQ(Chosen(Mincho, {"Droid Sans Fallback"}), "Droid Sans Fallback");
  EXPECT_EQ(Chosen(Gothic, {"Shippori Mincho"}), "Shippori Mincho");
  EXPECT_EQ(Substitutes(Gothic, {}).last(), "sans-serif");
  EXPECT_EQ(Substitutes(Mincho, {"VL PGothic"}).last(), "serif");
}

TEST(Fonts, OnlyADesktopWithoutJapaneseLettersIsToldWhatToInstall) {
  EXPECT_EQ(FontHint({"Droid Sans Fallback"}), "");
  const std::string hint = FontHint(QStringList());
  EXPECT_NE(hint.find("日本語のフォント"), std::string::npos);
  EXPECT_NE(hint.find("No installed font has Japanese letters"), std::string::npos);
  EXPECT_NE(hint.find("fonts-ipafont-gothic"), std::string::npos);
  EXPECT_EQ(hint.find('\n'), std::string::npos) << "one line";
  EXPECT_EQ(FontHint().empty(), !QFontDatabase::families(QFontDatabase::Japanese).isEmpty());
}

TEST(Fonts, SizesArePixelsOf96ToTheInch) {
  EXPECT_EQ(DesktopFont({Gothic, 9, false}).pixelSize(), 12);
  EXPECT_EQ(DesktopFont({Mincho, 36, true}).pixelSize(), 48);
  EXPECT_TRUE(DesktopFont({Mincho, 36, true}).bold());
  EXPECT_EQ(DesktopFont({Gothic, 0, false}).pixelSize(), 1);
}

}  // namespace
}  // namespace orvane
