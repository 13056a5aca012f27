// Replays that no program has made, and those of another game: each is refused, or tells where it
// differs.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "src/core/new_game.h"
#include "src/core/save_file.h"
#include "src/platform/folder_storage.h"
#include "src/platform/memory_storage.h"
#include "src/replay/replayer.h"
#include "tests/unit/replay/written_replay.h"

namespace orvane {
namespace {

using test::WrittenReplay;
using testing::HasSubstr;

std::string Refusal(const WrittenReplay& replay) {
  try {
    const ReplayReader reader(replay.Bytes());
    return "none";
  } catch (const BrokenReplay& broken) {
    return broken.what();
  }
}

TEST(BrokenReplay, HeadAndVersionAreAsked) {
  EXPECT_THROW(ReplayReader("orvane replay 1\nversion 1"), BrokenReplay) << "the line has no end";
  EXPECT_THROW(ReplayReader("orvane replay 1\nedition 1\n"), BrokenReplay);
  EXPECT_EQ(ReplayReader("orvane replay 1\nversion 7\n").Version(), "7");
}

TEST(BrokenReplay, NamesAndTimersAreKnownBeforeTheyAreUsed) {
  EXPECT_EQ(Refusal(WrittenReplay().Put(Mark::Press).Number(1)), "a name in it is not known");
  EXPECT_EQ(Refusal(WrittenReplay().Byte(kTicks)), "a timer in it is not known");
  EXPECT_EQ(Refusal(WrittenReplay().Tick("Main", "Timer1").Byte(kTicks | 1 << kTimerShift)),
            "a timer in it is not known");
}

TEST(BrokenReplay, BehindANewTimerComesAnEvent) {
  WrittenReplay named;
  named.Put(Mark::Timer).Name("Main").Name("Timer1");
  EXPECT_EQ(Refusal(WrittenReplay(named).Put(Mark::Draw).Float(0)), "an event was to come");
  EXPECT_EQ(Refusal(WrittenReplay(named).Byte(kNextSeed)), "an event was to come");
  EXPECT_EQ(Refusal(WrittenReplay(named).Put(Mark::EndHold)), "none");
}

TEST(BrokenReplay, NoSeedIsDrawnFromForEver) {
  const auto drawn = [](uint64_t times) {
    return WrittenReplay().Put(Mark::Seed).Number(1).Number(26).Number(times);
  };
  EXPECT_EQ(Refusal(drawn(50'000'000)), "none");
  EXPECT_EQ(Refusal(drawn(50'000'001)), "a seed in it was drawn from too often");
}

// What the replay of a program that starts with its item file says of the difference.
class DifferentReplay : public testing::Test {
 protected:
  DifferentReplay() {
    files_.Files["Item.dat"] = FolderStorage(ORVANE_GAME_FOLDER).Read("Item.dat").value_or("");
    start_.File("Item.dat", files_.Files["Item.dat"]);
  }

  std::string Difference(const WrittenReplay& replay) const {
    Replayer replayer(replay.Bytes(), files_);
    try {
      while (replayer.Next() != nullptr) {
      }
      return "none";
    } catch (const ReplayDiffers& difference) {
      return difference.what();
    }
  }

  // Grass all over.
  static std::string Map() {
    std::string map;
    for (int tile = 0; tile < 480; ++tile) map += "7,";
    return map;
  }

  MemoryStorage files_;
  WrittenReplay start_;
};

TEST_F(DifferentReplay, SameAsItsStartIsNone) {
  EXPECT_EQ(Difference(start_), "none");
}

TEST_F(DifferentReplay, TellsAReadOrAListThatWasNotRecorded) {
  EXPECT_THAT(Difference(WrittenReplay()), HasSubstr("a read of Item.dat"));
  EXPECT_THAT(Difference(start_.Put(Mark::ClickItem).Name("Main").Name("m11")),
              HasSubstr("a list of *.sav"));
}

TEST_F(DifferentReplay, TellsAFileOfTheGameFolderThatIsMissingOrAnother) {
  const auto with = [](uint64_t length) {
    return WrittenReplay().Put(Mark::File).Name("Item.dat").Number(length).Fixed64(7);
  };
  const size_t length = files_.Files["Item.dat"].size();
  EXPECT_THAT(Difference(with(length + 1)), HasSubstr("another Item.dat in the game folder"));
  EXPECT_THAT(Difference(with(length)), HasSubstr("another Item.dat in the game folder"));
  files_.Files.clear();
  EXPECT_THAT(Difference(with(length)), HasSubstr("Item.dat missing in the game folder"));
}

TEST_F(DifferentReplay, TellsWhatIsNoScreenControlOrKey) {
  EXPECT_THAT(Difference(WrittenReplay(start_).Put(Mark::Press).Name("None")),
              HasSubstr("no screen None"));
  EXPECT_THAT(Difference(WrittenReplay(start_).Put(Mark::Click).Name("Main").Name("None")),
              HasSubstr("no control Main.None"));
  for (const int64_t key : {-1, 4}) {
    EXPECT_THAT(Difference(WrittenReplay(start_).Put(Mark::KeyDown).Signed(key)),
                HasSubstr("a key that is none"));
  }
}

TEST_F(DifferentReplay, TellsAControlThatIsOfAnotherKind) {
  const auto on_button = [this](Mark mark) {
    return WrittenReplay(start_).Put(mark).Name("Main").Name("Command1");
  };
  const std::string other = "Command1 of another kind";
  EXPECT_THAT(Difference(on_button(Mark::ClickItem)), HasSubstr(other));
  EXPECT_THAT(Difference(on_button(Mark::SelectTab).Signed(0)), HasSubstr(other));
  EXPECT_THAT(Difference(on_button(Mark::EnterText).Text("")), HasSubstr(other));
  EXPECT_THAT(Difference(on_button(Mark::Slide).Signed(0)), HasSubstr(other));
  EXPECT_THAT(Difference(WrittenReplay(start_).Tick("Main", "Command1")), HasSubstr(other));
}

TEST_F(DifferentReplay, TellsATickOfATimerThatIsOff) {
  EXPECT_THAT(Difference(start_.Tick("Main", "Timer1")), HasSubstr("Main.Timer1 off"));
}

TEST_F(DifferentReplay, TellsATickOfATimerThatWaitsForItsBox) {
  // A save of a party with a full bag that stands on a chest.
  GameRecord record;
  FreshRecord(record);
  record.ItemCount = 20;
  record.SaveMapA = record.SaveMapB = 3;
  record.SaveX = 192;
  record.SaveY = 96;
  std::string map = Map();
  map.replace(2 * (12 * kMapRows + 6), 1, "36");
  start_.Put(Mark::ClickItem).Name("Main").Name("m11");
  start_.Put(Mark::Names).Name("*.sav").Number(1).Name("Save01.sav");
  start_.Put(Mark::Choose).Name("Load").Name("File1").Signed(0);
  start_.File("Save01.sav", PackRecord(record));
  start_.Put(Mark::Click).Name("Load").Name("OKButton").File("Mapdata/map3-3.dat", map);
  start_.Tick("Main", "Timer1");
  EXPECT_EQ(Difference(start_), "none");
  EXPECT_THAT(Difference(start_.Byte(kTicks)), HasSubstr("Main.Timer1 off"));
}

TEST_F(DifferentReplay, TellsAnEventAfterTheEnd) {
  EXPECT_THAT(Difference(start_.Put(Mark::End).Signed(0).Put(Mark::EndHold)),
              HasSubstr("the program has ended"));
}

TEST_F(DifferentReplay, TellsWhatWasRecordedAndIsNotAskedFor) {
  const auto event = [this] { return WrittenReplay(start_).Put(Mark::EndHold); };
  EXPECT_THAT(Difference(event().Put(Mark::Draw).Float(0)), HasSubstr("fewer draws"));
  EXPECT_THAT(Difference(event().Put(Mark::Draws).Number(1)), HasSubstr("fewer draws"));
  EXPECT_EQ(Difference(event().Put(Mark::Draws).Number(0)), "none");
  EXPECT_THAT(Difference(event().Put(Mark::Reply).Number(0).Name("playing")),
              HasSubstr("fewer sound commands"));
  EXPECT_THAT(Difference(event().Put(Mark::KeptNow).Name("")), HasSubstr("fewer files written"));
}

TEST_F(DifferentReplay, TellsAFileThatIsKeptThoughNoneWaits) {
  for (const uint64_t number : {uint64_t{0}, uint64_t{5}, uint64_t{0xFFFFFFFF}}) {
    EXPECT_THAT(Difference(WrittenReplay(start_).Put(Mark::Kept).Number(number).Name("")),
                HasSubstr("no file that waits"));
  }
}

TEST_F(DifferentReplay, TellsASeedThatFollowsNone) {
  start_.Put(Mark::Click).Name("Main").Name("Command1");
  start_.Put(Mark::EnterText).Name("InputName").Name("Text1(0)").Text("a");
  start_.Put(Mark::EnterText).Name("InputName").Name("Text1(1)").Text("b");
  start_.Put(Mark::Confirm).Name("InputName").File("Mapdata/map3-3.dat", Map());
  for (int line = 0; line < 20; ++line) {
    start_.Put(Mark::Click).Name("Main").Name("Picture1");
    if (line == 19) start_.File("Mapdata/map3-3.dat", Map());
  }
  start_.Put(Mark::KeyDown).Signed(3).Tick("Main", "Timer1").Byte(kNextSeed | 3);
  EXPECT_THAT(Difference(start_), HasSubstr("a seed that follows none"));
}

}  // namespace
}  // namespace orvane
