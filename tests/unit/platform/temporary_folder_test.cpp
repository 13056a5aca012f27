#include "src/platform/temporary_folder.h"

#include <gtest/gtest.h>

#include "src/platform/path_text.h"

namespace orvane {
namespace {

TEST(TemporaryFolder, IsANewOneEachTime) {
  const auto one = MakeTemporaryFolder("orvane-遊び の-");
  const auto another = MakeTemporaryFolder("orvane-遊び の-");
  EXPECT_NE(one, another);
  for (const auto& folder : {one, another}) {
    EXPECT_TRUE(folder.is_absolute());
    EXPECT_TRUE(std::filesystem::is_empty(folder));
    EXPECT_TRUE(TextOf(folder.filename()).starts_with("orvane-遊び の-"));
    std::filesystem::remove(folder);
  }
}

TEST(TemporaryFolder, ThrowsWhereNoneCanBeMade) {
  EXPECT_THROW(MakeTemporaryFolder("no/such/folder/"), std::filesystem::filesystem_error);
}

}  // namespace
}  // namespace orvane
