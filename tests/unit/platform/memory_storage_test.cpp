// Files in memory that are kept at once or later, or not at all.
#include "src/platform/memory_storage.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

class MemoryStorageTest : public testing::Test {
 protected:
  void Replace(const std::string& name) {
    files_.Replace(name, "bytes", [this, name](const std::string& failure) {
      told_ += name + (failure.empty() ? " " : ": " + failure + " ");
    });
  }

  MemoryStorage files_;
  std::string told_;
};

TEST_F(MemoryStorageTest, KeepsAFileAtOnce) {
  Replace("a");
  EXPECT_EQ(told_, "a ");
  EXPECT_EQ(files_.Read("a"), "bytes");
  EXPECT_EQ(files_.Read("b"), std::nullopt);
}

TEST_F(MemoryStorageTest, OfThoseThatWaitTheOldestIsKeptFirst) {
  files_.AnswersLater = true;
  Replace("a");
  Replace("b");
  EXPECT_EQ(told_, "");
  EXPECT_TRUE(files_.Files.empty());
  files_.Settle();
  EXPECT_EQ(told_, "a ");
  EXPECT_EQ(files_.Read("b"), std::nullopt);
  files_.Settle();
  EXPECT_EQ(told_, "a b ");
  files_.Settle();
  EXPECT_EQ(told_, "a b ") << "none waits";
}

TEST_F(MemoryStorageTest, KeepsNothingWhereSomethingIsInTheWay) {
  files_.Failure = "no room";
  Replace("a");
  EXPECT_EQ(told_, "a: no room ");
  EXPECT_TRUE(files_.Files.empty());
}

}  // namespace
}  // namespace orvane
