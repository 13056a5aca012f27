#include "src/base/byte_sum.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

// As its authors have published them.
TEST(ByteSum, IsThatOfItsAuthors) {
  EXPECT_EQ(SumOfBytes(""), 0xCBF29CE484222325);
  EXPECT_EQ(SumOfBytes("a"), 0xAF63DC4C8601EC8C);
  EXPECT_EQ(SumOfBytes("foobar"), 0x85944171F73967E8);
}

TEST(ByteSum, TakesANumberInOneStep) {
  ByteSum one;
  one.Add(0x6261);
  EXPECT_NE(one.Value(), SumOfBytes("ab"));
  ByteSum other;
  other.Add('a');
  EXPECT_EQ(other.Value(), SumOfBytes("a"));
}

}  // namespace
}  // namespace orvane
