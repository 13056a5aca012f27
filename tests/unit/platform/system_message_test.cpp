#include "src/platform/system_message.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace orvane {
namespace {

TEST(SystemMessage, IsOneLineAboutTheError) {
  std::error_code failed;
  std::filesystem::create_directory("no/such/folder", failed);
  const std::string said = SystemMessage(failed);
  EXPECT_NE(said, "");
  EXPECT_EQ(said.find_first_of("\r\n"), std::string::npos);
  EXPECT_EQ(said, SystemMessage(failed.value()));
  EXPECT_NE(said, SystemMessage(failed.value() + 1));
}

TEST(SystemMessage, KnowsTheStandardLibrarysOwnErrors) {
  const std::error_code own = std::make_error_code(std::errc::no_space_on_device);
  EXPECT_EQ(SystemMessage(own), own.message());
}

}  // namespace
}  // namespace orvane
