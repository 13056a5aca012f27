// The fonts of the game's texts on this desktop.
#include "src/frontend/desktop/paint/fonts.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QStringList>

namespace orvane {
namespace {

TEST(Fonts, TheFacesAreTriedInTheirOrder) {
  EXPECT_EQ(DesktopFont({kMincho, 9, false}).families().first(), "IPAPMincho");
  EXPECT_EQ(DefaultFont().families().first(), "IPAPGothic");
  EXPECT_EQ(DefaultFont().families().last(), "sans-serif");
}

TEST(Fonts, ADesktopWithoutJapaneseLettersIsToldSo) {
  EXPECT_EQ(DesktopFontHint().empty(), !QFontDatabase::families(QFontDatabase::Japanese).isEmpty());
}

TEST(Fonts, HaveTheSizeAndTheWeightThatAreAskedFor) {
  EXPECT_EQ(DesktopFont({kMincho, 36, true}).pixelSize(), 48);
  EXPECT_TRUE(DesktopFont({kMincho, 36, true}).bold());
  EXPECT_FALSE(DefaultFont().bold());
}

}  // namespace
}  // namespace orvane
