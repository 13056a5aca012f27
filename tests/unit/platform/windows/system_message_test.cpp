#include "src/platform/system_message.h"

#include <gtest/gtest.h>

#include "src/platform/windows/windows_api.h"

namespace orvane {
namespace {

TEST(SystemMessage, IsTheSystemsOwnAboutWhatTheStandardLibraryReports) {
  const std::error_code reported = std::make_error_code(std::errc::no_space_on_device);
  EXPECT_EQ(SystemMessage(reported), SystemMessage(ERROR_DISK_FULL));
  EXPECT_NE(SystemMessage(reported), reported.message());
}

TEST(SystemMessage, HasNoWordsForAnUnknownNumberButTheNumber) {
  EXPECT_EQ(SystemMessage(0x2FFFFFFF), "error 805306367");
}

}  // namespace
}  // namespace orvane
