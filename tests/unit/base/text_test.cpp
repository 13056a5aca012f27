#include "src/base/text.h"

#include <gtest/gtest.h>

#include "src/base/array.h"
#include "src/base/cp932.h"

namespace orvane {
namespace {

TEST(Text, CountsCharactersAndNotBytes) {
  EXPECT_EQ(CharCount("アキラ"), 3);
  EXPECT_EQ(CharCount("a〜é"), 3);
  EXPECT_EQ(LeftChars("アキラ", 2), "アキ");
  EXPECT_EQ(LeftChars("アキラ", 9), "アキラ");
}

TEST(Text, ABrokenByteCountsAsOneCharacter) {
  EXPECT_EQ(CharCount("\xE3\x81"), 2) << "the end cuts a character";
  EXPECT_EQ(CharCount("\xE3"
                      "ab"),
            3)
      << "a character is cut by the next";
  EXPECT_EQ(LeftChars("\xE3"
                      "ab",
                      2),
            "\xE3"
            "a");
  EXPECT_EQ(CharCount("\x81\x81"), 2) << "there is no beginning";
}

TEST(Text, TrimTakesBlanksAtBothEnds) {
  EXPECT_EQ(Trim("  なし  "), "なし");
  EXPECT_EQ(Trim("    "), "");
  EXPECT_EQ(Trim("　な"), "　な") << "a full-width blank is a character";
}

TEST(FixedText, CutsAndPads) {
  const FixedText<8> text("アキラ");
  EXPECT_EQ(text.Full(), "アキラ     ");
  EXPECT_EQ(text.Trimmed(), "アキラ");
  EXPECT_EQ(FixedText<3>("あいうえお").Full(), "あいう");
  EXPECT_EQ(FixedText<3>().Full(), "   ");
}

TEST(Array, RefusesAnIndexOutside) {
  Array<int, 3> array;
  array[2] = 5;
  EXPECT_EQ(array[2], 5);
  EXPECT_THROW(array[3], RunError);
  EXPECT_THROW(array[-1], RunError);
}

TEST(Cp932, GoesBothWays) {
  const std::string text = "Aｱ炎舞剣･～①㈱髙";
  EXPECT_EQ(FromCp932(ToCp932(text)), text);
  EXPECT_EQ(ToCp932("あ"), "\x82\xA0");
  EXPECT_EQ(ToCp932("表"), "\x95\x5C") << "a trail byte may look like a backslash";
  EXPECT_EQ(ToCp932("ｱ"), "\xB1");
}

TEST(Cp932, WhatItLacksBecomesAQuestionMark) {
  EXPECT_EQ(ToCp932("☃"), "\x81\x48");
  EXPECT_EQ(ToCp932("😀"), "\x81\x48");
  EXPECT_EQ(FromCp932("\x81"), "？") << "half a character";
  EXPECT_EQ(FromCp932("\x81\x20"), "？ ") << "the byte after it stands for itself";
  EXPECT_EQ(FromCp932("\xFF"), "？");
}

TEST(Cp932, AByteThatIsNoCharacterBecomesAQuestionMark) {
  EXPECT_EQ(ToCp932("\xE3"), "\x81\x48");
  EXPECT_EQ(ToCp932("\x81"
                    "A"),
            "\x81\x48"
            "A");
}

TEST(Cp932, ABadByteNeverTakesTheNextOneWithIt) {
  for (const char* bad : {"\x80", "\xA0", "\xFD", "\xFE", "\xFF"}) {
    EXPECT_EQ(FromCp932(bad), "？");
    EXPECT_EQ(FromCp932(bad + std::string("A")), "？A");
    EXPECT_EQ(FromCp932(bad + std::string("\x82\xA0")), "？あ");
    EXPECT_EQ(FromCp932(bad + std::string("\xB1")), "？ｱ");
  }
  EXPECT_EQ(FromCp932("\x85\x40"), "？") << "a pair that stands for nothing is one character";
}

TEST(Cp932, ZeroBytesReadAsBlanks) {
  EXPECT_EQ(FromCp932(std::string("a\0b", 3)), "a b");
}

TEST(Cp932, AFieldIsCutAtAWholeCharacter) {
  EXPECT_EQ(Cp932Field("あいうえおか", 8), ToCp932("あいうえ"));
  EXPECT_EQ(Cp932Field("aあいうえお", 8), ToCp932("aあいう") + " ");
  EXPECT_EQ(Cp932Field("", 4), "    ");
}

TEST(Cp932, EveryDoubleByteCharacterComesBack) {
  int characters = 0;
  for (int lead = 0x81; lead <= 0xFC; ++lead) {
    if (lead >= 0xA0 && lead <= 0xDF) continue;
    for (int trail = 0x40; trail <= 0xFC; ++trail) {
      const std::string bytes{static_cast<char>(lead), static_cast<char>(trail)};
      const std::string text = FromCp932(bytes);
      if (text == "？" || CharCount(text) != 1) continue;
      ++characters;
      EXPECT_EQ(FromCp932(ToCp932(text)), text);
    }
  }
  EXPECT_GT(characters, 7000);
}

}  // namespace
}  // namespace orvane
