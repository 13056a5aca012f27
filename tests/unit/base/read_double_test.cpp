// Numbers with a fraction, read alike by all standard libraries.
#include "src/base/read_double.h"

#include <gtest/gtest.h>

#include <string>
#include <system_error>

namespace orvane {
namespace {

struct Reading {
  double Value = -1;
  size_t Length = 0;
  std::errc Error{};
};

Reading Read(const std::string& text) {
  Reading reading;
  const auto [stop, error] = ReadDouble(text.data(), text.data() + text.size(), reading.Value);
  reading.Length = static_cast<size_t>(stop - text.data());
  reading.Error = error;
  return reading;
}

TEST(ReadDoubleTest, ReadsANumberUpToItsEnd) {
  EXPECT_EQ(Read("12.5,").Value, 12.5);
  EXPECT_EQ(Read("12.5,").Length, 4U);
  EXPECT_EQ(Read("-3e2").Value, -300);
  EXPECT_EQ(Read("0x1F").Value, 0);
  EXPECT_EQ(Read("0x1F").Length, 1U);
}

TEST(ReadDoubleTest, RefusesWhatBeginsNoNumber) {
  for (const char* text : {"", "+1", " 1", "x", ".", "e5"}) {
    EXPECT_EQ(Read(text).Error, std::errc::invalid_argument) << text;
    EXPECT_EQ(Read(text).Length, 0U) << text;
    EXPECT_EQ(Read(text).Value, -1) << text;
  }
}

TEST(ReadDoubleTest, TellsOfNumbersThatNoDoubleHolds) {
  for (const char* text : {"1e999", "-1e999", "1e-999"}) {
    EXPECT_EQ(Read(text).Error, std::errc::result_out_of_range) << text;
    EXPECT_EQ(Read(text).Value, -1) << text;
  }
  EXPECT_EQ(Read("0e-999").Value, 0);
}

}  // namespace
}  // namespace orvane
