#include "src/platform/temporary_folder.h"

#include <gtest/gtest.h>

#include <fstream>

#include "src/platform/path_text.h"

namespace orvane {
namespace {

namespace fs = std::filesystem;

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

TEST(TemporaryFolder, GoesWithAllThatIsInIt) {
  const auto folder = MakeTemporaryFolder("orvane-遊び の-");
  fs::create_directories(folder / "one" / "記録");
  fs::create_directories(folder / "two");
  std::ofstream(folder / "one" / "記録" / "a") << "a";
  std::ofstream(folder / "one" / "b") << "b";
  RemoveFolder(folder);
  EXPECT_FALSE(fs::exists(folder));
  RemoveFolder(folder);
}

TEST(TemporaryFolder, LeavesWhatItsLinksLeadTo) {
  const auto other = MakeTemporaryFolder("orvane-other-");
  const auto folder = MakeTemporaryFolder("orvane-遊び の-");
  std::ofstream(other / "a") << "a";
  fs::create_hard_link(other / "a", folder / "hard");
  std::error_code no_such_links;
  fs::create_directory_symlink(other, folder / "soft", no_such_links);
  RemoveFolder(folder);
  EXPECT_FALSE(fs::exists(folder));
  EXPECT_TRUE(fs::exists(other / "a"));
  RemoveFolder(other);
}

}  // namespace
}  // namespace orvane
