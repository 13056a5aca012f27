#include "src/replay/replayer.h"
#include "src/replay/sums.h"
#include "tests/unit/replay/recorded_play.h"

namespace orvane {
namespace {

using test::RecordedPlay;

// Plays a replay again. Returns the difference, empty when there is none.
std::string Difference(const std::string& bytes, const Storage& folder,
                       std::optional<uint64_t>* sum = nullptr) {
  Replayer replayer(bytes, folder);
  try {
    while (replayer.Next() != nullptr) {
    }
    if (sum != nullptr) *sum = SumOfAll(replayer.TheProgram());
    return {};
  } catch (const ReplayDiffers& difference) {
    return difference.what();
  }
}

class ReplayTest : public testing::Test {
 protected:
  const FolderStorage built_{ORVANE_GAME_FOLDER};
  RecordedPlay play_;
};

TEST_F(ReplayTest, ComesToTheSameEndWhateverChanceSoundAndFilesGave) {
  play_.PlayAll();
  const uint64_t sum = SumOfAll(*play_.TheProgram);
  play_.TheRecorder->Close(false);
  std::optional<uint64_t> again;
  EXPECT_EQ(Difference(play_.TheRecorder->Bytes(), built_, &again), "");
  EXPECT_EQ(again, sum);
}

TEST_F(ReplayTest, TakesAFewBytesForAStep) {
  play_.Start();
  play_.Begin();
  const size_t before = play_.TheRecorder->Bytes().size();
  constexpr int steps = 60;
  play_.TheProgram->TheState().InBook = kTrue;  // where nobody comes in the way
  play_.Walk(Direction::Right, steps);
  EXPECT_LT(play_.TheRecorder->Bytes().size() - before, 4 * steps);
}

TEST_F(ReplayTest, FindsAStateThatIsNotThatOfTheRecord) {
  play_.Start();
  play_.Begin();
  play_.TheProgram->TheState().HP[0] = 17;  // as if a rule were another
  for (int i = 0; i < 100; ++i) play_.TheProgram->Tick(play_.TimerOf("Main", "Timer1"));
  play_.TheRecorder->Close(false);
  EXPECT_THAT(Difference(play_.TheRecorder->Bytes(), built_), testing::HasSubstr("another state"));
}

TEST_F(ReplayTest, FindsPixelsThatAreNotThoseOfTheRecord) {
  play_.Start();
  play_.Begin();
  FillBox(static_cast<PictureBox&>(play_.On("Main", "Picture1")).Picture, 3, 3, 3, 3, 0x123456);
  play_.TheRecorder->Close(false);
  EXPECT_THAT(Difference(play_.TheRecorder->Bytes(), built_), testing::HasSubstr("another end"));
}

TEST_F(ReplayTest, FindsAnotherFileInTheGameFolder) {
  play_.Files.Files["Mapdata/map3-3.dat"] += " ";
  play_.Start();
  play_.Begin();
  play_.TheRecorder->Close(false);
  EXPECT_THAT(Difference(play_.TheRecorder->Bytes(), built_),
              testing::HasSubstr("another Mapdata/map3-3.dat"));
}

TEST_F(ReplayTest, BringsTheFilesAlongWhereItIsToldTo) {
  play_.Files.Files["Mapdata/map3-3.dat"] += " ";
  play_.Start();
  play_.Begin();
  play_.TheRecorder->Close(true);
  EXPECT_EQ(Difference(play_.TheRecorder->Bytes(), built_), "");
}

TEST_F(ReplayTest, EndsWithTheErrorThatEndedThePlay) {
  play_.Start();
  play_.Begin();
  play_.Files.Files.erase("Mapdata/map3-3.dat");
  play_.TheProgram->Click(play_.On("Main", "m33"));
  play_.TheProgram->Close(play_.ScreenOf("Custom"));
  ASSERT_TRUE(play_.TheProgram->Error().has_value());
  play_.TheRecorder->Close(true);
  EXPECT_EQ(Difference(play_.TheRecorder->Bytes(), built_), "");
}

TEST_F(ReplayTest, SaysWhenASaveFailed) {
  play_.Start();
  play_.Begin();
  play_.Files.Failure = "no room";
  play_.Save();
  ASSERT_TRUE(play_.TheProgram->Error().has_value());
  play_.TheRecorder->Close(false);
  EXPECT_EQ(Difference(play_.TheRecorder->Bytes(), built_), "");
}

TEST_F(ReplayTest, ThatWasCutGoesAsFarAsItGoes) {
  play_.PlayAll();
  const std::string cut = play_.TheRecorder->Bytes();
  Replayer replayer(cut, built_);
  while (replayer.Next() != nullptr) {
  }
  EXPECT_FALSE(replayer.IsClosed());
  EXPECT_EQ(SumOfAll(replayer.TheProgram()), SumOfAll(*play_.TheProgram));
}

TEST_F(ReplayTest, OfBrokenBytesIsRefused) {
  EXPECT_THROW(Replayer("", built_), BrokenReplay);
  EXPECT_THROW(Replayer("orvane replay 2\nversion 1\n", built_), BrokenReplay);
  EXPECT_THROW(Replayer("orvane replay 1\nversion 1\n\x3F", built_), BrokenReplay);
  play_.PlayAll();
  const std::string whole = play_.TheRecorder->Bytes();
  for (size_t size = 0; size < whole.size(); ++size) {
    // Some ends fall between two events.
    try {
      Replayer(whole.substr(0, size), built_);
    } catch (const BrokenReplay&) {
      continue;
    }
  }
}

TEST_F(ReplayTest, IsNotWholeOnceSomethingWasDoneThatIsNoEvent) {
  play_.Start();
  EXPECT_TRUE(play_.TheRecorder->IsWhole());
  play_.TheProgram->Enter([] {});
  EXPECT_FALSE(play_.TheRecorder->IsWhole());
}

TEST_F(ReplayTest, KeepsDrawsThatNoGeneratorMade) {
  class NoGenerator : public Chance {
   public:
    float Draw() override { return value_ = value_ < 0.9F ? value_ + 0.001F : 0; }
    void Reseed() override {}

   private:
    float value_ = 0;
  };
  NoGenerator luck;
  PlayRecorder recorder({play_.Sound, luck, play_.Files});
  play_.TheProgram = std::make_unique<Program>(recorder.TheServices());
  recorder.Watch(*play_.TheProgram);
  play_.TheProgram->SetWatcher(&recorder);
  play_.Begin();
  play_.Walk(Direction::Right, 50);
  play_.TheProgram->SetWatcher(nullptr);
  recorder.Close(false);
  EXPECT_EQ(Difference(recorder.Bytes(), built_), "");
  play_.TheProgram.reset();
}

}  // namespace
}  // namespace orvane
