#include "src/replay/bytes.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace orvane {
namespace {

TEST(ReplayBytes, NumbersComeBackAsTheyWere) {
  std::string bytes;
  ByteWriter out(bytes);
  constexpr int64_t numbers[] = {0,
                                 1,
                                 -1,
                                 63,
                                 -64,
                                 64,
                                 1'000'000,
                                 -1'000'000,
                                 std::numeric_limits<int64_t>::max(),
                                 std::numeric_limits<int64_t>::min()};
  for (const int64_t number : numbers) out.Signed(number);
  out.Number(std::numeric_limits<uint64_t>::max());
  out.Double(-2.25);
  out.Float(0.5F);
  ByteReader in(bytes);
  for (const int64_t number : numbers) EXPECT_EQ(in.Signed(), number);
  EXPECT_EQ(in.Number(), std::numeric_limits<uint64_t>::max());
  EXPECT_EQ(in.Double(), -2.25);
  EXPECT_EQ(in.Float(), 0.5F);
  EXPECT_TRUE(in.AtEnd());
}

TEST(ReplayBytes, ANumberWithoutAnEndIsRefused) {
  const std::string endless(20, '\xFF');
  EXPECT_THROW(ByteReader(endless).Number(), BrokenReplay);
}

TEST(ReplayBytes, NothingIsReadBeyondTheEnd) {
  EXPECT_THROW(ByteReader("").Byte(), BrokenReplay);
  EXPECT_THROW(ByteReader("\xFF").Number(), BrokenReplay);
  EXPECT_THROW(ByteReader("\x05"
                          "four")
                   .Text(),
               BrokenReplay);
  EXPECT_EQ(ByteReader("\x04"
                       "four")
                .Text(),
            "four");
}

}  // namespace
}  // namespace orvane
