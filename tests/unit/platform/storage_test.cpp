#include "src/platform/storage.h"

#include <gtest/gtest.h>

#include "src/platform/folder_storage.h"
#include "src/platform/path_text.h"
#include "src/platform/temporary_folder.h"
#include "src/platform/whole_file.h"

namespace orvane {
namespace {

TEST(MatchesPattern, AnEndingIsThatOfAName) {
  EXPECT_TRUE(MatchesPattern("Save01.SAV", "*.sav"));
  EXPECT_FALSE(MatchesPattern("Save01.sav.new", "*.sav"));
  EXPECT_FALSE(MatchesPattern(".sav", "*.sav")) << "there is nothing before it";
  EXPECT_FALSE(MatchesPattern("", "*.sav"));
  EXPECT_TRUE(MatchesPattern("", "*"));
  EXPECT_FALSE(MatchesPattern("a", ""));
}

class FolderStorageTest : public testing::Test {
 protected:
  ~FolderStorageTest() override { RemoveFolder(folder_); }

  const std::filesystem::path folder_ = MakeTemporaryFolder("orvane-storage-");
};

TEST_F(FolderStorageTest, ItsNameHasNoSeparatorAtTheEnd) {
  const std::string name = TextOf(folder_);
  EXPECT_EQ(FolderStorage(folder_).FolderName(), name);
  EXPECT_EQ(FolderStorage(PathOf(name + "/")).FolderName(), name);
  EXPECT_EQ(FolderStorage(PathOf(name + "//")).FolderName(), name);
  EXPECT_EQ(FolderStorage(PathOf("/")).FolderName(), "/");
}

TEST_F(FolderStorageTest, ReadsFilesAndNoFolders) {
  WriteWholeFile(folder_ / "b.sav", "bytes");
  WriteWholeFile(folder_ / "a.sav", "");
  std::filesystem::create_directory(folder_ / "c.sav");
  const FolderStorage storage(folder_);
  EXPECT_EQ(storage.Read("b.sav"), "bytes");
  EXPECT_EQ(storage.Read("c.sav"), std::nullopt);
  EXPECT_EQ(storage.Read("d.sav"), std::nullopt);
  EXPECT_EQ(storage.Open("d.sav"), nullptr);
  EXPECT_EQ(storage.List("*.sav"), (std::vector<std::string>{"a.sav", "b.sav"}));
}

}  // namespace
}  // namespace orvane
