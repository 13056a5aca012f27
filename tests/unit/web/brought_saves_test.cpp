// What a player brings into the page.
#include "src/frontend/web/services/brought_saves.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "src/core/new_game.h"
#include "src/core/save_file.h"

namespace orvane {
namespace {

using testing::HasSubstr;

std::string Save(int level) {
  GameRecord record;
  FreshRecord(record);
  record.HeroName[0] = "カイ";
  record.HeroName[1] = "リナ";
  record.Level[0] = record.Level[1] = static_cast<int16_t>(level);
  return PackRecord(record);
}

TEST(BroughtSavesTest, ASaveGoesWhereItIsWanted) {
  const BroughtSaves brought = ReadBrought("friend.sav", Save(3), "Save02.sav");
  EXPECT_EQ(brought.Problem, "");
  EXPECT_EQ(brought.Saves, (NamedFiles{{"Save02.sav", Save(3)}}));
  EXPECT_EQ(ReadBrought("friend", Save(3), "Save02.sav").Saves, brought.Saves);
}

TEST(BroughtSavesTest, WithoutASlotTheNameTells) {
  EXPECT_EQ(ReadBrought("Save05.SAV", Save(3), "").Saves, (NamedFiles{{"Save05.SAV", Save(3)}}));
  EXPECT_THAT(ReadBrought("save.txt", Save(3), "").Problem, HasSubstr("save.txt"));
  EXPECT_THAT(ReadBrought(".sav", Save(3), "").Problem, HasSubstr(".sav"));
}

TEST(BroughtSavesTest, AnArchiveBringsItsSavesWithoutTheirFolders) {
  const std::string archive =
      WriteZip({{"mine/Save01.sav", Save(1)}, {"mine/read me", "words"}, {"Save02.sav", Save(2)}});
  EXPECT_EQ(ReadBrought("all.zip", archive, "").Saves,
            (NamedFiles{{"Save01.sav", Save(1)}, {"Save02.sav", Save(2)}}));
  EXPECT_THAT(ReadBrought("all.zip", archive, "Save03.sav").Problem, HasSubstr("ひとつ"));
  const std::string one = WriteZip({{"mine/Save01.sav", Save(1)}});
  EXPECT_EQ(ReadBrought("one.zip", one, "Save03.sav").Saves, (NamedFiles{{"Save03.sav", Save(1)}}));
}

TEST(BroughtSavesTest, HiddenCompanionsOfSavesAreLeftOut) {
  const std::string archive =
      WriteZip({{"mine/Save01.sav", Save(1)}, {"__MACOSX/mine/._Save01.sav", "of another kind"}});
  EXPECT_EQ(ReadBrought("all.zip", archive, "").Saves, (NamedFiles{{"Save01.sav", Save(1)}}));
}

TEST(BroughtSavesTest, AllAreTakenOrNone) {
  const std::string archive = WriteZip({{"Save01.sav", Save(1)}, {"Save02.sav", "short"}});
  const BroughtSaves brought = ReadBrought("all.zip", archive, "");
  EXPECT_THAT(brought.Problem, HasSubstr("Save02.sav"));
  EXPECT_TRUE(brought.Saves.empty());
}

TEST(BroughtSavesTest, ForeignFilesAreRefusedByTheirNames) {
  EXPECT_THAT(ReadBrought("short.sav", "short", "Save01.sav").Problem, HasSubstr("short.sav"));
  EXPECT_THAT(ReadBrought("broken.zip", "PK\3\4", "").Problem, HasSubstr("broken.zip"));
  EXPECT_THAT(ReadBrought("other.zip", WriteZip({{"a", "b"}}), "").Problem, HasSubstr("other.zip"));
}

}  // namespace
}  // namespace orvane
