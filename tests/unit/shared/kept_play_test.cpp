#include "src/frontend/shared/kept_play.h"

#include "src/platform/path_text.h"
#include "src/platform/temporary_folder.h"
#include "src/platform/whole_file.h"
#include "src/replay/replayer.h"
#include "tests/unit/replay/recorded_play.h"

namespace orvane {
namespace {

class KeptPlayTest : public testing::Test {
 protected:
  KeptPlayTest() : folder_(MakeTemporaryFolder("orvane-kept-")) {}
  ~KeptPlayTest() override {
    // A file that is open cannot go on every system.
    play_.TheProgram.reset();
    kept_.reset();
    RemoveFolder(folder_);
  }

  void Start(const std::optional<std::filesystem::path>& record) {
    Start(record, folder_ / kReplayAfterError);
  }
  void Start(const std::optional<std::filesystem::path>& record,
             const std::filesystem::path& after_error) {
    kept_ = std::make_unique<KeptPlay>(Services{play_.Sound, play_.Luck, play_.Files}, record,
                                       after_error);
    play_.TheProgram = std::make_unique<Program>(kept_->TheServices());
    kept_->Watch(*play_.TheProgram);
  }
  // A map that is missing when the field is entered again.
  void Fail() {
    play_.Files.Files.erase("Mapdata/map3-3.dat");
    play_.TheProgram->Click(play_.On("Main", "m33"));
    play_.TheProgram->Close(play_.ScreenOf("Custom"));
    ASSERT_TRUE(play_.TheProgram->Error().has_value());
  }
  // How many events the file leads through.
  int EventsIn(const std::filesystem::path& file) {
    const FolderStorage folder(ORVANE_GAME_FOLDER);
    Replayer replayer(ReadWholeFile(file).value_or(""), folder);
    while (replayer.Next() != nullptr) {
    }
    is_closed_ = replayer.IsClosed();
    return replayer.Events();
  }
  Box LastBox() {
    const auto& boxes = play_.TheProgram->TheStage().Boxes();
    return boxes.empty() ? Box() : boxes.back().Shown;
  }

  std::filesystem::path folder_;
  std::unique_ptr<KeptPlay> kept_;  // outlives the program
  test::RecordedPlay play_;
  bool is_closed_ = false;
};

TEST_F(KeptPlayTest, WritesNothingWithoutAnErrorUnlessItIsWished) {
  Start({});
  play_.Begin();
  play_.TheProgram->End(0);
  EXPECT_TRUE(std::filesystem::is_empty(folder_));
}

TEST_F(KeptPlayTest, NamesTheFileAfterAnErrorInItsBoxButNotInItsText) {
  Start({});
  play_.Begin();
  Fail();
  EXPECT_THAT(ShownText(LastBox()), testing::HasSubstr(TextOf(folder_ / kReplayAfterError)));
  EXPECT_EQ(LastBox().Text, play_.TheProgram->TextOfError());
  EXPECT_GT(EventsIn(folder_ / kReplayAfterError), 20);
  EXPECT_TRUE(is_closed_);
}

TEST_F(KeptPlayTest, NamesTheFileThatTookThePlayFromTheBeginning) {
  Start(folder_ / "mine");
  play_.Begin();
  Fail();
  EXPECT_THAT(ShownText(LastBox()), testing::HasSubstr(TextOf(folder_ / "mine")));
  EXPECT_FALSE(std::filesystem::exists(folder_ / kReplayAfterError));
}

TEST_F(KeptPlayTest, NamesNoFileThatCannotBeWritten) {
  std::filesystem::remove_all(folder_);
  Start({});
  play_.Begin();
  Fail();
  EXPECT_EQ(ShownText(LastBox()), play_.TheProgram->TextOfError());
}

TEST_F(KeptPlayTest, NamesNoFileOnADiskThatIsFull) {
  const std::filesystem::path full = "/dev/full";
  if (!std::filesystem::exists(full)) GTEST_SKIP() << "this system has no such file";
  Start({}, full);
  play_.Begin();
  Fail();
  EXPECT_EQ(ShownText(LastBox()), play_.TheProgram->TextOfError());
}

TEST_F(KeptPlayTest, NamesNoFileWhereThereIsNoPlaceForOne) {
  Start({}, {});
  play_.Begin();
  Fail();
  EXPECT_EQ(ShownText(LastBox()), play_.TheProgram->TextOfError());
  EXPECT_TRUE(std::filesystem::is_empty(folder_));
}

TEST_F(KeptPlayTest, IsAsItWasWhenTheErrorCameWhateverFollows) {
  Start({});
  play_.Begin();
  Fail();
  const std::string bytes = ReadWholeFile(folder_ / kReplayAfterError).value_or("");
  play_.TheProgram->Tick(play_.TimerOf("Main", "Timer1"));
  play_.TheProgram->Answer(BoxAnswer::Ok);
  EXPECT_TRUE(play_.TheProgram->HasEnded());
  EXPECT_EQ(ReadWholeFile(folder_ / kReplayAfterError), bytes);
}

TEST_F(KeptPlayTest, WhatNoPlayerCouldDoEndsTheFileAndItIsNotNamed) {
  Start(folder_ / "mine");
  play_.Begin();
  const std::string before = ReadWholeFile(folder_ / "mine").value_or("");
  play_.TheProgram->Enter([] {});
  EXPECT_FALSE(kept_->IsWhole());
  play_.Walk(Direction::Right, 5);
  EXPECT_EQ(ReadWholeFile(folder_ / "mine"), before);
  Fail();
  EXPECT_EQ(ShownText(LastBox()), play_.TheProgram->TextOfError());
  EXPECT_EQ(ReadWholeFile(folder_ / "mine"), before);
}

TEST_F(KeptPlayTest, TheFileLeadsToEveryEventBeforeItIsOver) {
  Start(folder_ / "mine");
  play_.Begin();
  const int before = EventsIn(folder_ / "mine");
  for (int i = 1; i < 40; ++i) {
    play_.TheProgram->Tick(play_.TimerOf("Main", "Timer1"));
    ASSERT_EQ(EventsIn(folder_ / "mine"), before + i);
  }
  EXPECT_FALSE(is_closed_);
  play_.TheProgram->End(0);
  EXPECT_EQ(EventsIn(folder_ / "mine"), before + 40);
  EXPECT_TRUE(is_closed_);
}

TEST_F(KeptPlayTest, AnErrorOfAnotherKindIsKeptToo) {
  Start({});
  play_.Begin();
  play_.TheProgram->Break("no memory");
  EXPECT_THAT(ShownText(LastBox()), testing::HasSubstr(kReplayAfterError));
}

}  // namespace
}  // namespace orvane
