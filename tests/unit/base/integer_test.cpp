#include "src/base/integer.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(Integer, KeepsItsRange) {
  EXPECT_EQ(int{Int16(32767)}, 32767);
  EXPECT_EQ(int{Int16(-32768)}, -32768);
  EXPECT_EQ(int{Int32(2147483647)}, 2147483647);
}

TEST(Integer, LeavingSixteenBitsIsAnOverflow) {
  EXPECT_THROW(Int16(32768), RunError);
  EXPECT_THROW(Int16(32767) + 1, RunError);
  EXPECT_THROW(Int16(-32768) - 1, RunError);
  EXPECT_THROW(Int16(3277) * 10, RunError);
  EXPECT_THROW(Int16(300) * Int16(300), RunError);
  EXPECT_THROW(-Int16(-32768), RunError);
  Int16 counter = 32767;
  EXPECT_THROW(counter += 1, RunError);
  EXPECT_EQ(int{counter}, 32767) << "a refused sum changes nothing";
}

TEST(Integer, LeavingThirtyTwoBitsIsAnOverflow) {
  EXPECT_THROW(Int32(2147483647) + 1, RunError);
  EXPECT_THROW(Int32(65536) * 65536, RunError);
}

TEST(Integer, TheErrorNamesItsKind) {
  try {
    static_cast<void>(Int16(32767) + 1);
    FAIL();
  } catch (const RunError& error) {
    EXPECT_EQ(error.Kind, ErrorKind::Overflow);
    EXPECT_STREQ(ErrorKindName(error.Kind), "overflow");
  }
}

TEST(Integer, TheWiderOfTwoWidthsCounts) {
  EXPECT_EQ(int{Int32(40000) + Int16(1)}, 40001);
  EXPECT_EQ(int{Int16(1) + Int32(40000)}, 40001);
  EXPECT_THROW(Int16(Int32(40000)), RunError);
}

TEST(Integer, RemaindersCutTowardZero) {
  EXPECT_EQ(int{Int16(7) % 3}, 1);
  EXPECT_EQ(int{Int16(-7) % 3}, -1);
}

TEST(Integer, IntIsTheFloor) {
  EXPECT_EQ(Int(2.9), 2);
  EXPECT_EQ(Int(-2.1), -3);
}

TEST(Integer, QuotientsGoDown) {
  EXPECT_EQ(Quotient(31, 16), 1);
  EXPECT_EQ(Quotient(-1, 16), -1);
  EXPECT_EQ(Quotient(-16, 16), -1);
  EXPECT_EQ(Quotient(-17, 16), -2);
}

TEST(Integer, RoundingTakesTheNearestAndTiesTheEven) {
  EXPECT_EQ(int{RoundToInt16(2.5)}, 2);
  EXPECT_EQ(int{RoundToInt16(3.5)}, 4);
  EXPECT_EQ(int{RoundToInt16(-2.5)}, -2);
  EXPECT_EQ(int{RoundToInt16(2.6)}, 3);
  EXPECT_THROW(RoundToInt16(32767.5), RunError);
  EXPECT_THROW(RoundToInt32(1e12), RunError);
  EXPECT_THROW(RoundToInt32(std::nan("")), RunError);
}

}  // namespace
}  // namespace orvane
