#include "src/platform/player_folder.h"

#include <gtest/gtest.h>

#include <fstream>

#include "src/platform/temporary_folder.h"
#include "src/platform/whole_file.h"

namespace orvane {
namespace {

namespace fs = std::filesystem;

class PlayerFolderTest : public testing::Test {
 protected:
  PlayerFolderTest()
      : base_(MakeTemporaryFolder("orvane-player-")),
        installed_(base_ / "share" / "game"),
        own_(base_ / "home" / "data" / "game") {
    Write(installed_ / "Item.dat", "items");
    Write(installed_ / "Sound" / "Round1.mid", "tune");
    Write(installed_ / "Save01.sav", "empty");
  }
  ~PlayerFolderTest() override { RemoveFolder(base_); }

  static void Write(const fs::path& path, const std::string& bytes) {
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
  }
  static std::string Read(const fs::path& path) { return ReadWholeFile(path).value_or(""); }
  std::string Prepare() const { return PreparePlayerFolder(installed_, own_); }

  fs::path base_;
  fs::path installed_;
  fs::path own_;
};

TEST_F(PlayerFolderTest, IsMadeWholeAtTheFirstStart) {
  EXPECT_EQ(Prepare(), "");
  EXPECT_EQ(Read(own_ / "Item.dat"), "items");
  EXPECT_EQ(Read(own_ / "Sound" / "Round1.mid"), "tune");
  EXPECT_EQ(Read(own_ / "Save01.sav"), "empty");
}

TEST_F(PlayerFolderTest, KeepsSavesAndWhatThePlayerPutThere) {
  Prepare();
  Write(own_ / "Save01.sav", "mine");
  Write(own_ / "Save77.sav", "mine too");
  Write(own_ / "notes.txt", "dragon on the left");
  EXPECT_EQ(Prepare(), "");
  EXPECT_EQ(Read(own_ / "Save01.sav"), "mine");
  EXPECT_EQ(Read(own_ / "Save77.sav"), "mine too");
  EXPECT_EQ(Read(own_ / "notes.txt"), "dragon on the left");
}

TEST_F(PlayerFolderTest, FollowsAnUpdate) {
  Prepare();
  Write(installed_ / "Item.dat", "ITEMS");
  Write(installed_ / "Sound" / "Round2.mid", "another tune");
  Write(installed_ / "Save01.sav", "another empty one");
  EXPECT_EQ(Prepare(), "");
  EXPECT_EQ(Read(own_ / "Item.dat"), "ITEMS");
  EXPECT_EQ(Read(own_ / "Sound" / "Round2.mid"), "another tune");
  EXPECT_EQ(Read(own_ / "Save01.sav"), "empty");
}

TEST_F(PlayerFolderTest, MakesGoodAStartThatWasCutShort) {
  Prepare();
  fs::remove_all(own_ / "Sound");
  fs::remove(own_ / "Save01.sav");
  Write(own_ / "Item.dat", "it");
  Write(own_ / "Item.dat.new", "ite");
  EXPECT_EQ(Prepare(), "");
  EXPECT_EQ(Read(own_ / "Item.dat"), "items");
  EXPECT_EQ(Read(own_ / "Sound" / "Round1.mid"), "tune");
  EXPECT_EQ(Read(own_ / "Save01.sav"), "empty");
}

TEST_F(PlayerFolderTest, WritesNothingWhereAllIsWell) {
  Prepare();
  const auto before = fs::last_write_time(own_ / "Item.dat");
  fs::last_write_time(own_ / "Item.dat", before - std::chrono::hours(1));
  EXPECT_EQ(Prepare(), "");
  EXPECT_EQ(fs::last_write_time(own_ / "Item.dat"), before - std::chrono::hours(1));
}

TEST_F(PlayerFolderTest, TellsWhatIsWrong) {
  Write(base_ / "home", "a file where a folder should be");
  EXPECT_NE(Prepare().find("cannot make the folder"), std::string::npos);
  fs::remove(base_ / "home");
  Prepare();
  fs::remove(own_ / "Item.dat");
  fs::create_directories(own_ / "Item.dat");
  EXPECT_NE(Prepare().find("cannot write"), std::string::npos);
  EXPECT_NE(PreparePlayerFolder(base_ / "nowhere", own_).find("cannot read the folder"),
            std::string::npos);
}

TEST_F(PlayerFolderTest, TellsWhichFolderWithinCannotBeMade) {
  Write(own_ / "Sound", "a file where a folder should be");
  EXPECT_NE(Prepare().find("cannot make the folder"), std::string::npos);
  EXPECT_NE(Prepare().find("Sound"), std::string::npos);
}

TEST_F(PlayerFolderTest, TellsWhichFileCannotBeRead) {
  std::error_code no_such_links;
  fs::create_symlink(base_ / "nothing", installed_ / "Sound" / "Round3.mid", no_such_links);
  if (no_such_links) GTEST_SKIP() << "no links here";
  EXPECT_NE(Prepare().find("cannot read"), std::string::npos);
  EXPECT_NE(Prepare().find("Round3.mid"), std::string::npos);
}

}  // namespace
}  // namespace orvane
