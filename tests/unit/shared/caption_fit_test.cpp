// Captions on small buttons.
#include "src/frontend/shared/caption_fit.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(CaptionFit, LettersAreNoHigherThanTheButtonHasRoomFor) {
  EXPECT_EQ(CaptionSize(12, 33), 12);
  EXPECT_EQ(CaptionSize(12, 12), 10);
  EXPECT_EQ(CaptionSize(12, 3), 6);
}

TEST(CaptionFit, BreaksAtTheLastBlankOfEitherWidth) {
  EXPECT_EQ(InTwoLines("<< すべて はずす"), "<< すべて\nはずす");
  EXPECT_EQ(InTwoLines("すべて　　はずす"), "すべて\nはずす");
}

TEST(CaptionFit, LeavesAloneWhatHasNoBlankWithin) {
  EXPECT_EQ(InTwoLines("閉じる"), "閉じる");
  EXPECT_EQ(InTwoLines(" 閉じる"), " 閉じる");
  EXPECT_EQ(InTwoLines("閉じる "), "閉じる ");
  EXPECT_EQ(InTwoLines(""), "");
}

}  // namespace
}  // namespace orvane
