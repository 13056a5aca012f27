#include "src/platform/windows/home.h"

#include <gtest/gtest.h>

#include <fstream>

#include "src/platform/temporary_folder.h"

namespace orvane {
namespace {

namespace fs = std::filesystem;

class HomeTest : public testing::Test {
 protected:
  HomeTest() { fs::create_directories(program_ / "game"); }
  ~HomeTest() override { fs::remove_all(program_); }

  const fs::path program_ = MakeTemporaryFolder("orvane-家 の-");
  const fs::path data_ = program_ / "Local";
};

TEST_F(HomeTest, IsBesideTheProgramWhereThatCanBeWritten) {
  const Home home = FindHome(program_, data_);
  EXPECT_EQ(home.Folder, program_ / "game");
  EXPECT_TRUE(home.Installed.empty());
  EXPECT_TRUE(fs::is_empty(program_ / "game")) << "trying leaves nothing behind";
}

TEST_F(HomeTest, IsThePlayersOwnWhereNothingCanBeWrittenBesideTheProgram) {
  // A folder of the name that is tried stands in the way as a right that is missing does.
  fs::create_directories(program_ / "game" / "writing.tmp");
  const Home home = FindHome(program_, data_);
  EXPECT_EQ(home.Folder, data_ / "Orvane" / "game");
  EXPECT_EQ(home.Installed, program_ / "game");
}

TEST_F(HomeTest, IsNowhereWithoutAPlaceForThePlayersOwn) {
  fs::create_directories(program_ / "game" / "writing.tmp");
  EXPECT_TRUE(FindHome(program_, {}).Folder.empty());
}

TEST_F(HomeTest, IsNamedBesideTheProgramWhereNoneIsThere) {
  const Home home = FindHome(program_ / "elsewhere", data_);
  EXPECT_EQ(home.Folder, program_ / "elsewhere" / "game");
  EXPECT_TRUE(home.Installed.empty());
}

TEST(Home, FindsTheLocalApplicationData) {
  const Home home = FindHome();
  EXPECT_TRUE(home.Folder.is_absolute());
}

}  // namespace
}  // namespace orvane
