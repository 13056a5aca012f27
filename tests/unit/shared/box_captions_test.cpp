#include "src/frontend/shared/box_captions.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(BoxCaptions, EnterAgreesAndEscapeDeclines) {
  EXPECT_EQ(ChoicesOf(BoxButtons::Ok).size(), 1);
  EXPECT_EQ(ChoicesOf(BoxButtons::Ok).front().Answer, BoxAnswer::Ok);
  EXPECT_EQ(ChoicesOf(BoxButtons::OkCancel).front().Answer, BoxAnswer::Ok);
  EXPECT_EQ(ChoicesOf(BoxButtons::OkCancel).back().Answer, BoxAnswer::Cancel);
  EXPECT_EQ(ChoicesOf(BoxButtons::YesNo).front().Answer, BoxAnswer::Yes);
  EXPECT_EQ(ChoicesOf(BoxButtons::YesNo).back().Answer, BoxAnswer::No);
}

TEST(BoxCaptions, AreInJapanese) {
  EXPECT_STREQ(ChoicesOf(BoxButtons::YesNo).front().Caption, "はい");
  EXPECT_STREQ(ChoicesOf(BoxButtons::YesNo).back().Caption, "いいえ");
  EXPECT_STREQ(ChoicesOf(BoxButtons::OkCancel).back().Caption, "キャンセル");
}

}  // namespace
}  // namespace orvane
