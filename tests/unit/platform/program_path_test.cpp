#include "src/platform/program_path.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(ProgramPath, IsTheFileOfTheRunningProgram) {
  const auto path = ProgramPath();
  EXPECT_TRUE(path.is_absolute());
  EXPECT_TRUE(std::filesystem::is_regular_file(path));
  EXPECT_EQ(path.stem(), "orvane-unit");
}

}  // namespace
}  // namespace orvane
