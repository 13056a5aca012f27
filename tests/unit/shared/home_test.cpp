// The game folder made ready at the start.
#include "src/frontend/shared/home.h"

#include <gtest/gtest.h>

#include "src/platform/temporary_folder.h"
#include "src/platform/whole_file.h"

namespace orvane {
namespace {

class HomeTest : public testing::Test {
 protected:
  HomeTest() : base_(MakeTemporaryFolder("orvane-home-")) {
    std::filesystem::create_directory(base_ / "installed");
    EXPECT_TRUE(WriteWholeFile(base_ / "installed" / "Item.dat", "items"));
  }
  ~HomeTest() override { RemoveFolder(base_); }

  std::filesystem::path base_;
};

TEST_F(HomeTest, OfThePlayersOwnIsMadeAfterWhatIsInstalled) {
  EXPECT_EQ(MakeReady({base_ / "own", base_ / "installed", {}}), "");
  EXPECT_EQ(ReadWholeFile(base_ / "own" / "Item.dat"), "items");
}

TEST_F(HomeTest, ThatStandsByItselfStaysAsItIs) {
  EXPECT_EQ(MakeReady({base_ / "own", {}, {}}), "");
  EXPECT_FALSE(std::filesystem::exists(base_ / "own"));
}

TEST_F(HomeTest, ThatIsNowhereTellsWhy) {
  EXPECT_EQ(MakeReady({{}, base_ / "installed", "no place"}), "no place");
}

}  // namespace
}  // namespace orvane
