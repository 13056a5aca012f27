// Music as recordings make it: the game's own pieces.
#include <gtest/gtest.h>

#include "src/platform/path_text.h"
#include "src/platform/whole_file.h"
#include "src/sound/song.h"
#include "src/sound/vorbis/decoder.h"
#include "src/sound/vorbis/recordings.h"
#include "tests/unit/sound/engine.h"

namespace orvane {
namespace {

using namespace test;

constexpr const char* kFolder = ORVANE_GAME_FOLDER;
// The limiter's, one block.
constexpr size_t kLate = 2 * size_t{kBlockFrames};

std::string OpenPiece(SoundEngine& engine, const std::string& alias) {
  const std::string reply = engine.Send(OpenCommand(kFolder, SoundFile(alias), alias));
  engine.WaitUntilReady();
  return reply;
}

// So many blocks of a recording, from its beginning.
std::vector<float> Decoded(const std::string& name, size_t blocks) {
  const auto decoder = Decoder::Open(FindRecording(name), kRate);
  std::vector<float> samples;
  for (size_t i = 0; decoder && i < blocks; ++i) {
    Block block{};
    decoder->Mix(block, 1, 1);
    samples.insert(samples.end(), block.begin(), block.end());
  }
  return samples;
}

std::int64_t FramesOf(const std::string& alias) {
  const std::string bytes =
      ReadWholeFile(PathOf(kFolder) / "Sound" / SoundFile(alias)).value_or("");
  const auto song = ReadSong(std::vector<std::uint8_t>(bytes.begin(), bytes.end()));
  return song ? std::llround(song->Seconds * kRate) : 0;
}

TEST(RecordedMusic, EveryPieceOfTheGameHasItsRecording) {
  for (const char* alias : kMusicChannels) {
    const std::string file = SoundFile(alias);
    EXPECT_NE(Decoder::Open(FindRecording(file.substr(0, file.size() - 4)), kRate), nullptr)
        << file;
  }
  EXPECT_TRUE(FindRecording("Round9").empty());
  EXPECT_TRUE(FindRecording("").empty());
}

TEST(RecordedMusic, ADecoderTakesNothingElse) {
  EXPECT_EQ(Decoder::Open({}, kRate), nullptr);
  const Bytes wave = Wave(kRate, 2, Tone(440, kRate, 0.5, 0.5));
  EXPECT_EQ(Decoder::Open(wave, kRate), nullptr);
  const auto recording = FindRecording("Round1");
  EXPECT_EQ(Decoder::Open(recording, 48000), nullptr) << "another rate";
  EXPECT_EQ(Decoder::Open(recording.subspan(1000), kRate), nullptr);
}

TEST(RecordedMusic, SoundsAsTheRecordingFromItsFirstFrame) {
  SoundEngine engine(ForCaller());
  ASSERT_EQ(OpenPiece(engine, "bgm1"), "1");
  engine.Send(PlayCommand("bgm1"));
  const std::vector<float> heard = Pull(engine, 2);
  const std::vector<float> played = Decoded("Round1", 1000);
  ASSERT_GT(LevelOf(played), 0.01);
  for (size_t i = 0; i < 2 * 60000; ++i) ASSERT_NEAR(heard[i + kLate], played[i], 0.0001) << i;
}

TEST(RecordedMusic, TheNextRoundBeginsUnderTheLastNotesOfTheOneBefore) {
  const std::int64_t length = FramesOf("bgm1");
  ASSERT_GT(length, 0);
  SoundEngine engine(ForCaller());
  OpenPiece(engine, "bgm1");
  std::vector<float> heard;
  while (heard.size() < 2 * static_cast<size_t>(length + 3 * kRate)) {
    if (Status(engine, "bgm1") == "stopped") engine.Send(PlayCommand("bgm1"));
    const std::vector<float> part = Pull(engine, 0.1);
    heard.insert(heard.end(), part.begin(), part.end());
  }
  // Rounds begin with a block, the first one after the end.
  const size_t blocks = static_cast<size_t>((length + kBlockFrames - 1) / kBlockFrames);
  const size_t seam = blocks * kLate;
  const std::vector<float> played = Decoded("Round1", blocks + 1000);
  for (size_t i = 0; i < 2 * 60000; ++i) {
    ASSERT_NEAR(heard[seam + i + kLate], played[seam + i] + played[i], 0.0001) << i;
  }
}

TEST(RecordedMusic, AStartInTheMidstLetsTheOldSoundDie) {
  SoundEngine engine(ForCaller());
  OpenPiece(engine, "bgm1");
  engine.Send(PlayCommand("bgm1"));
  Pull(engine, 3);
  engine.Send(PlayCommand("bgm1"));
  Pull(engine, 1);
  const std::vector<float> heard = Pull(engine, 1);
  const std::vector<float> played = Decoded("Round1", 2000);
  // Where the second round is by now, to the block.
  double best = 1;
  for (size_t late = 0; late < 10 * kLate; late += 2) {
    double difference = 0;
    for (size_t i = 0; i < 2 * 1000; ++i) {
      difference = std::max<double>(
          difference, std::abs(heard[i] - played[2 * static_cast<size_t>(kRate) + i - late]));
    }
    best = std::min(best, difference);
  }
  EXPECT_LT(best, 0.0001);
}

TEST(RecordedMusic, ClosingFadesAndIsSilentThen) {
  SoundEngine engine(ForCaller());
  OpenPiece(engine, "bgm1");
  engine.Send(PlayCommand("bgm1"));
  Pull(engine, 3);
  engine.Send(CloseCommand("bgm1"));
  EXPECT_GT(LevelOf(Pull(engine, 0.1)), 0.001) << "it is not cut";
  Pull(engine, 0.3);
  EXPECT_EQ(LevelOf(Pull(engine, 0.5)), 0);
  OpenPiece(engine, "bgm1");
  engine.Send(PlayCommand("bgm1"));
  EXPECT_GT(LevelOf(Pull(engine, 1)), 0.01) << "and sounds again";
}

TEST(RecordedMusic, PiecesOnTwoChannelsAreIndependent) {
  SoundEngine engine(ForCaller());
  OpenPiece(engine, "bgm1");
  OpenPiece(engine, "bgm4");
  engine.Send(PlayCommand("bgm1"));
  engine.Send(PlayCommand("bgm4"));
  Pull(engine, 1);
  engine.Send(CloseCommand("bgm1"));
  Pull(engine, 0.5);
  EXPECT_EQ(Status(engine, "bgm4"), "playing");
  EXPECT_GT(LevelOf(Pull(engine, 0.5)), 0.01);
}

TEST_F(SoundEngineTest, APieceThatIsNotTheRecordedOneLastsItsTimeInSilence) {
  SoundEngine engine(ForCaller());  // its "Round1.mid" is four seconds long
  Open(engine, "Round1.mid", "bgm1");
  engine.WaitUntilReady();
  engine.Send(PlayCommand("bgm1"));
  EXPECT_EQ(LevelOf(Pull(engine, 3.5)), 0);
  EXPECT_EQ(Status(engine, "bgm1"), "playing");
  Pull(engine, 0.5);
  EXPECT_EQ(Status(engine, "bgm1"), "stopped");
}

}  // namespace
}  // namespace orvane
