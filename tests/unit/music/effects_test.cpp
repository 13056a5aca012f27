// The effects themselves, made from their recipes, and what makes them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/unit/music/content_files.h"
#include "tools/effects/loudness.h"
#include "tools/effects/synth.h"
#include "tools/effects/wav_file.h"

namespace orvane::effects {
namespace {

constexpr double kPi = 3.14159265358979;

std::vector<float> Sine(double frequency, double level, double seconds) {
  std::vector<float> samples;
  for (int i = 0; i < static_cast<int>(seconds * kRate); ++i) {
    samples.push_back(static_cast<float>(level * std::sin(2 * kPi * frequency * i / kRate)));
  }
  return samples;
}

class Effects : public testing::TestWithParam<const char*> {
 protected:
  static std::vector<float> Made() {
    const Recipe recipe =
        ReadRecipe(tests::ContentText(std::string("effects/") + GetParam() + ".recipe"));
    EXPECT_EQ(recipe.Name, GetParam());
    return Finish(Mix(recipe));
  }
};

TEST_P(Effects, LastAsLongAsTheyMay) {
  const double seconds = static_cast<double>(Made().size()) / kRate;
  EXPECT_GE(seconds, 0.3);
  EXPECT_LE(seconds, std::string(GetParam()) == "Win" ? 4.0 : 2.5);
}

TEST_P(Effects, AreAtOneLoudnessUnderTheCeiling) {
  const std::vector<float> samples = Made();
  EXPECT_NEAR(PeakLoudness(samples, 0.2), kTargetLoudness, 1.0);
  for (const float sample : samples) ASSERT_LE(std::abs(sample), kCeiling);
}

TEST_P(Effects, StartAndEndAtRest) {
  const std::vector<float> samples = Made();
  EXPECT_LT(std::abs(samples.front()), 0.001F);
  EXPECT_LT(std::abs(samples[10]), 0.1F);
  EXPECT_LT(std::abs(samples.back()), 0.001F);
  EXPECT_LT(std::abs(samples[samples.size() - 100]), 0.02F);
}

TEST_P(Effects, AreHeardWithinAFrameOrTwo) {
  // The first 50 ms carry sound, so that an effect is on time with its picture.
  const std::vector<float> samples = Made();
  const auto end = samples.begin() + kRate / 20;
  const float peak = std::abs(*std::max_element(
      samples.begin(), end, [](float a, float b) { return std::abs(a) < std::abs(b); }));
  EXPECT_GT(peak, 0.04F);
}

INSTANTIATE_TEST_SUITE_P(All, Effects,
                         testing::Values("ItemGet", "Cut", "Fire", "Atomic", "Fresh", "Quake",
                                         "Win", "Thunder", "Bom", "Ice"),
                         [](const auto& one) { return std::string(one.param); });

TEST(RestartedEffects, RiseSoftlyAndAreThereBeforeTheNextStart) {
  // These four are begun anew every 15 to 30 ms: no click at the start, and body within 15 ms.
  for (const char* name : {"Bom", "Cut", "Atomic", "Fire"}) {
    const std::vector<float> samples =
        Finish(Mix(ReadRecipe(tests::ContentText(std::string("effects/") + name + ".recipe"))));
    float first = 0;
    float later = 0;
    for (size_t i = 0; i < kRate * 15 / 1000; ++i) {
      float& peak = i < kRate / 1000 ? first : later;
      peak = std::max(peak, std::abs(samples[i]));
    }
    EXPECT_LT(first, 0.02F) << name;
    EXPECT_GT(later, 0.06F) << name;
  }
}

TEST(Loudness, MeasuresTheReferenceTone) {
  // A full sine of 997 Hz on one side is -3.01 by the standard.
  const std::vector<float> tone = Sine(997, 1, 3);
  const std::vector<float> silence(tone.size(), 0);
  EXPECT_NEAR(WholeLoudness(tone, silence), -3.01, 0.05);
  EXPECT_NEAR(WholeLoudness(tone, tone), 0.0, 0.05);
  EXPECT_NEAR(PeakLoudness(Sine(997, 0.1, 1), 0.2), -23.01, 0.05);
  EXPECT_LT(PeakLoudness(Sine(40, 1, 1), 0.2), -6) << "low tones weigh less";
  EXPECT_EQ(WholeLoudness(silence, silence), -100);
}

TEST(Wav, ReadsWhatItWrites) {
  Wav wav;
  wav.Samples = {0, 0.5F, -0.5F, 2, -2};
  const Wav read = ReadWav(WriteWav(wav));
  EXPECT_EQ(read.Channels, 1);
  EXPECT_EQ(read.Rate, 44100);
  ASSERT_EQ(read.Samples.size(), 5U);
  EXPECT_NEAR(read.Samples[1], 0.5F, 0.0001F);
  EXPECT_EQ(read.Samples[3], 1.0F);
  EXPECT_EQ(read.Samples[4], -1.0F);
  const std::string bytes = WriteWav(wav);
  EXPECT_THROW(ReadWav("RIFF"), std::runtime_error);
  EXPECT_THROW(ReadWav(bytes.substr(0, bytes.size() - 1)), std::runtime_error);
}

TEST(Recipe, NamesTheLineOfAFault) {
  const auto fault = [](const std::string& text) -> std::string {
    try {
      ReadRecipe(text);
    } catch (const std::runtime_error& problem) {
      return problem.what();
    }
    return {};
  };
  EXPECT_EQ(fault("effect A\nlayer sine\n  pitch 440..220\n"), "");
  EXPECT_NE(fault("effect A\nlayer kazoo\n").find("line 2"), std::string::npos);
  EXPECT_NE(fault("effect A\nlayer sine\n  pitch x\n").find("line 3"), std::string::npos);
  EXPECT_NE(fault("effect A\nlayer sine\n  wobble 3\n").find("unknown word"), std::string::npos);
  EXPECT_NE(fault("effect A\n").find("needs"), std::string::npos);
  EXPECT_NE(fault("  level 1\n").find("belongs to a layer"), std::string::npos);
}

TEST(Glide, GoesByRatiosThroughItsPoints) {
  const Glide glide{{100, 400, 100}};
  EXPECT_DOUBLE_EQ(glide.At(0), 100);
  EXPECT_NEAR(glide.At(0.25), 200, 1e-9);
  EXPECT_NEAR(glide.At(0.5), 400, 1e-9);
  EXPECT_DOUBLE_EQ(glide.At(1), 100);
  EXPECT_DOUBLE_EQ((Glide{{0, 10}}).At(0.5), 5);
}

}  // namespace
}  // namespace orvane::effects
