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
  EXPECT_NE(said, SystemMessage(std::make_error_code(std::errc::no_space_on_device)));
}

TEST(SystemMessage, DiffersFromNumberToNumber) {
  constexpr int missing = 2;  // on every system
  constexpr int refused = 13;
  EXPECT_NE(SystemMessage(missing), "");
  EXPECT_NE(SystemMessage(missing), SystemMessage(refused));
}

}  // namespace
}  // namespace orvane
