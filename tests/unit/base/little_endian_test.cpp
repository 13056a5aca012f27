#include "src/base/little_endian.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace orvane {
namespace {

TEST(LittleEndian, AppendsTheLowestByteFirst) {
  std::string bytes = "x";
  AppendLittleEndian(bytes, 0x12345678, 4);
  AppendLittleEndian(bytes, 0xABCDEF, 2);
  EXPECT_EQ(bytes, "x\x78\x56\x34\x12\xEF\xCD");
}

TEST(LittleEndian, FillsUpBeyondTheNumber) {
  std::string bytes;
  AppendLittleEndian(bytes, UINT64_MAX, 10);
  EXPECT_EQ(bytes, std::string(8, '\xFF') + std::string(2, '\0'));
}

TEST(LittleEndian, ReadsWhatItWrites) {
  std::string bytes;
  AppendLittleEndian(bytes, 0xFEDCBA9876543210, 8);
  EXPECT_EQ(FromLittleEndian(bytes), 0xFEDCBA9876543210U);
  EXPECT_EQ(FromLittleEndian(std::string_view(bytes).substr(1, 2)), 0x5432U);
  EXPECT_EQ(FromLittleEndian(std::vector<uint8_t>{0x80, 0xFF}), 0xFF80U);
  EXPECT_EQ(FromLittleEndian(std::string_view()), 0U);
}

}  // namespace
}  // namespace orvane
