// Where texts break.
#include "src/frontend/windows/paint/text_lines.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

using Lines = std::vector<std::wstring>;

// Each sign is as wide as any other.
int Length(std::wstring_view text) {
  return static_cast<int>(text.size());
}

TEST(TextLines, WordsStayWhole) {
  EXPECT_EQ(BreakLines(L"one two three", 8, Length), (Lines{L"one two", L"three"}));
  EXPECT_EQ(BreakLines(L"indivisible", 4, Length), Lines{L"indivisible"});
}

TEST(TextLines, JapaneseBreaksBetweenLetters) {
  EXPECT_EQ(BreakLines(L"龍の狭間の村", 4, Length), (Lines{L"龍の狭間", L"の村"}));
}

TEST(TextLines, SomeSignsNeverBeginALine) {
  EXPECT_EQ(BreakLines(L"龍の狭間。村", 4, Length), (Lines{L"龍の狭", L"間。村"}));
}

TEST(TextLines, ItsOwnEndsCount) {
  EXPECT_EQ(BreakLines(L"one\n\ntwo", 8, Length), (Lines{L"one", L"", L"two"}));
  EXPECT_EQ(BreakLines(L"", 8, Length), Lines{L""});
}

}  // namespace
}  // namespace orvane
