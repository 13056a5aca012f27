// Sounds played into files ahead of time.
#include "tools/render/rendering.h"

#include <gtest/gtest.h>

#include "src/platform/whole_file.h"
#include "src/sound/fluid/sound_font.h"
#include "src/sound/sound_engine.h"
#include "tests/unit/sound/sound_files.h"

namespace orvane {
namespace {

constexpr int kRate = SoundEngine::Rate;
constexpr size_t kHeaderBytes = 44;

class RenderingTest : public testing::Test {
 protected:
  std::string Path(const std::string& name) const { return folder_.Path() + "/Sound/" + name; }

  // The left samples of what was rendered.
  std::vector<int> Left(const std::string& wav) const {
    const std::string bytes = ReadWholeFile(Path(wav)).value_or("");
    std::vector<int> samples;
    for (size_t at = kHeaderBytes; at + 3 < bytes.size(); at += 4) {
      const auto low = static_cast<unsigned char>(bytes[at]);
      const auto high = static_cast<signed char>(bytes[at + 1]);
      samples.push_back(high * 256 + low);
    }
    return samples;
  }

  test::Folder folder_;
};

TEST_F(RenderingTest, AnEffectIsItsRecording) {
  const std::vector<std::int16_t> tone = test::Tone(440, kRate, 0.5, 0.5);
  folder_.Write("Cut.wav", test::Wave(kRate, 1, tone));
  const std::optional<Rendering> rendering = RenderSound(Path("Cut.wav"), Path("out.wav"));
  ASSERT_TRUE(rendering);
  EXPECT_EQ(rendering->Length, static_cast<std::int64_t>(tone.size()));
  const std::vector<int> heard = Left("out.wav");
  ASSERT_EQ(heard.size(), static_cast<size_t>(rendering->Frames));
  ASSERT_EQ(heard.size(), tone.size());
  for (size_t i = 0; i < tone.size(); ++i) ASSERT_NEAR(heard[i], tone[i], 1) << i;
}

TEST_F(RenderingTest, APieceRingsOutBehindItsLengthAndNoFurther) {
  if (FindSoundFont().empty()) GTEST_SKIP() << "no sound font is installed";
  folder_.Write("Round1.mid", test::SimpleSong(2));
  const std::optional<Rendering> rendering = RenderSound(Path("Round1.mid"), Path("out.wav"));
  ASSERT_TRUE(rendering);
  EXPECT_EQ(rendering->Length, std::int64_t{4} * kRate);
  EXPECT_GT(rendering->Frames, rendering->Length);
  EXPECT_LT(rendering->Frames, rendering->Length + 9 * kRate);
  const std::vector<int> heard = Left("out.wav");
  ASSERT_EQ(heard.size(), static_cast<size_t>(rendering->Frames));
  EXPECT_NE(heard.back(), 0);
}

TEST_F(RenderingTest, IsTheSameEachTime) {
  if (FindSoundFont().empty()) GTEST_SKIP() << "no sound font is installed";
  folder_.Write("Round1.mid", test::SimpleSong(2));
  ASSERT_TRUE(RenderSound(Path("Round1.mid"), Path("one.wav")));
  ASSERT_TRUE(RenderSound(Path("Round1.mid"), Path("two.wav")));
  EXPECT_EQ(ReadWholeFile(Path("one.wav")), ReadWholeFile(Path("two.wav")));
}

TEST_F(RenderingTest, NoSoundGivesNothing) {
  folder_.Write("Round2.mid", {'n', 'o'});
  EXPECT_FALSE(RenderSound(Path("Round2.mid"), Path("out.wav")));
  EXPECT_FALSE(RenderSound(Path("Missing.wav"), Path("out.wav")));
}

TEST_F(RenderingTest, ARowTellsNameAndLengths) {
  ASSERT_TRUE(WriteRow("some/Round1.mid", {2 * kRate, 3 * kRate}, Path("row")));
  EXPECT_EQ(ReadWholeFile(Path("row")), "Round1\t2000\t88200\t132300\n");
  EXPECT_FALSE(WriteRow("some/Round1.mid", {}, Path("missing/row")));
}

}  // namespace
}  // namespace orvane
