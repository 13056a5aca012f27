#include "src/base/decimal.h"

#include <gtest/gtest.h>

#include <limits>

namespace orvane {
namespace {

TEST(Decimal, ReadsWhatWritesANumber) {
  EXPECT_EQ(ReadDecimal("12"), 12.0);
  EXPECT_EQ(ReadDecimal("-5"), -5.0);
  EXPECT_EQ(ReadDecimal(".5"), 0.5);
  EXPECT_EQ(ReadDecimal("2."), 2.0);
  EXPECT_EQ(ReadDecimal("2.25"), 2.25);
  EXPECT_EQ(ReadDecimal("1e2"), 100.0);
  EXPECT_EQ(ReadDecimal("-1.5E+1"), -15.0);
  EXPECT_EQ(ReadDecimal("25e-1"), 2.5);
}

TEST(Decimal, RefusesWhatIsNoNumber) {
  for (const char* text :
       {"",   "-",  ".",    "-.",  "e5",       "5e",  "5e+",   "+5",  "--5", "+-5", " 5",
        "5 ", "5x", "0x10", "inf", "infinity", "nan", "1.2.3", "1,5", "5-",  "1e5x"}) {
    EXPECT_EQ(ReadDecimal(text), std::nullopt) << text;
  }
}

TEST(Decimal, KeepsNumbersBeyondADoubleFinite) {
  EXPECT_EQ(ReadDecimal("1e999"), std::numeric_limits<double>::max());
  EXPECT_EQ(ReadDecimal("-1e999"), -std::numeric_limits<double>::max());
  ASSERT_TRUE(ReadDecimal("1e-999"));
  EXPECT_LT(*ReadDecimal("1e-999"), 1e-300);
}

}  // namespace
}  // namespace orvane
