// What keys do in a list of a page.
#include "src/frontend/web/list_keys.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

const std::vector<std::string> kRows{"Save01.sav", "save02.sav", "  こおり", "ほのお", "こだま"};

class ListKeysTest : public testing::Test {
 protected:
  int Take(int row, std::string_view key, double time = 0) {
    return keys_.Take(kRows, row, 3, key, time).value_or(-2);
  }

  ListKeys keys_;
};

TEST_F(ListKeysTest, ArrowsStayWithinTheRows) {
  EXPECT_EQ(Take(0, "ArrowDown"), 1);
  EXPECT_EQ(Take(4, "ArrowDown"), 4);
  EXPECT_EQ(Take(0, "ArrowUp"), 0);
  EXPECT_EQ(Take(-1, "ArrowDown"), 0);
  EXPECT_EQ(Take(-1, "ArrowUp"), 0);
}

TEST_F(ListKeysTest, PagesAndEnds) {
  EXPECT_EQ(Take(0, "PageDown"), 2);
  EXPECT_EQ(Take(3, "PageUp"), 1);
  EXPECT_EQ(Take(2, "End"), 4);
  EXPECT_EQ(Take(2, "Home"), 0);
}

TEST_F(ListKeysTest, AnEmptyListStaysAsItIs) {
  EXPECT_EQ(keys_.Take({}, -1, 3, "ArrowDown", 0), -1);
  EXPECT_EQ(keys_.Take({}, -1, 3, "a", 0), -1);
}

TEST_F(ListKeysTest, OtherKeysAreNoneOfAList) {
  EXPECT_EQ(Take(0, "Escape"), -2);
  EXPECT_EQ(Take(0, "F5"), -2);
}

TEST_F(ListKeysTest, ALetterGoesToTheNextRowThatBeginsSo) {
  EXPECT_EQ(Take(0, "s", 0), 1);
  EXPECT_EQ(Take(1, "S", 2000), 0);
  EXPECT_EQ(Take(0, "こ", 4000), 2);
  EXPECT_EQ(Take(2, "こ", 6000), 4);
  EXPECT_EQ(Take(4, "z", 8000), 4) << "none does";
}

TEST_F(ListKeysTest, LettersInQuickSuccessionAreAWord) {
  EXPECT_EQ(Take(-1, "こ", 0), 2);
  EXPECT_EQ(Take(2, "だ", 500), 4);
  EXPECT_EQ(Take(4, " ", 1000), 4) << "a blank within it";
  EXPECT_EQ(Take(4, " ", 3000), -2) << "and one that chooses";
  EXPECT_EQ(Take(4, "ほ", 4000), 3);
}

}  // namespace
}  // namespace orvane
