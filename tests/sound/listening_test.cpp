// The ear itself: it must hear the faults that are there, and no others.
#include "tests/sound/listening.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "tests/sound/finding.h"

namespace orvane::test {
namespace {

constexpr int kRate = 44100;

Recording Tone(double hertz, double seconds, double level) {
  Recording recording;
  for (int i = 0; i < static_cast<int>(seconds * kRate); ++i) {
    const double turn = 2 * std::numbers::pi * hertz * i / kRate;
    recording.Left.push_back(static_cast<float>(std::sin(turn) * level));
    recording.Right.push_back(static_cast<float>(std::cos(turn) * level));
  }
  return recording;
}

TEST(Listening, CleanToneHasNoFaults) {
  for (const double hertz : {55.0, 440.0, 5000.0}) {
    const Recording tone = Tone(hertz, 1, 0.9);
    EXPECT_TRUE(FindGaps(tone, 0.01).empty()) << hertz;
    EXPECT_TRUE(FindClicks(tone).empty()) << hertz;
    EXPECT_NEAR(LevelOf(tone), 0.9 / std::numbers::sqrt2, 0.001);
    EXPECT_NEAR(PeakOf(tone), 0.9, 0.001);
  }
}

TEST(Listening, HearsAGapAndHowLongItIs) {
  Recording tone = Tone(440, 1, 0.5);
  for (size_t i = 22050; i < 22050 + 2646; ++i) tone.Left[i] = tone.Right[i] = 0;
  const auto gaps = FindGaps(tone, 0.05);
  ASSERT_EQ(gaps.size(), 1U);
  EXPECT_NEAR(gaps[0].From, 0.5, 0.001);
  EXPECT_NEAR(gaps[0].Seconds, 0.06, 0.001);
  EXPECT_TRUE(FindGaps(tone, 0.07).empty());
  // One side alone is no gap.
  for (size_t i = 22050; i < 22050 + 2646; ++i) tone.Right[i] = 0.1F;
  EXPECT_TRUE(FindGaps(tone, 0.05).empty());
}

TEST(Listening, HearsAGapAtTheEnd) {
  Recording tone = Tone(440, 1, 0.5);
  tone.Add(std::vector<float>(2 * 4410, 0.0F));
  const auto gaps = FindGaps(tone, 0.05);
  ASSERT_EQ(gaps.size(), 1U);
  EXPECT_NEAR(gaps[0].Seconds, 0.1, 0.001);
}

TEST(Listening, HearsSoundCutOff) {
  Recording tone = Tone(220, 1, 0.5);
  for (size_t i = 22050; i < tone.Left.size(); ++i) tone.Left[i] = tone.Right[i] = 0;
  const auto clicks = FindClicks(tone);
  ASSERT_EQ(clicks.size(), 1U);  // the right side, which stood at its crest
  EXPECT_NEAR(clicks[0].At, 0.5, 0.001);
  EXPECT_NEAR(clicks[0].Leap, 0.5, 0.02);
}

TEST(Listening, HearsALeapInTheMiddleOfASound) {
  Recording tone = Tone(220, 1, 0.3);
  for (size_t i = 22050; i < tone.Left.size(); ++i) tone.Left[i] += 0.15F;
  EXPECT_EQ(FindClicks(tone).size(), 1U);
}

// Noise that swells and dies, and other noise beneath it: the known one is found to the frame, at
// its own loudness, though it is no louder; what is not there is not found.
TEST(Finding, FindsAKnownSoundUnderAnother) {
  std::uint32_t seed = 1;
  const auto noise = [&seed] {
    seed = seed * 1664525U + 1013904223U;
    return static_cast<float>(static_cast<double>(seed >> 8) / 8388608.0 - 1);
  };
  std::vector<float> known;
  for (int i = 0; i < 4410; ++i)
    known.push_back(noise() * 0.3F * std::sin(static_cast<float>(i) / 1404.0F));
  std::vector<float> recording;
  float low = 0;
  for (int i = 0; i < kRate; ++i) recording.push_back(low = low * 0.95F + noise() * 0.05F);
  const Finding nothing = Find(recording, kRate, known, 0.45, 0.55, 0.45);
  EXPECT_LT(nothing.Gain, 0.3);
  for (size_t i = 0; i < known.size(); ++i) recording[22050 + i] += 0.8F * known[i];
  const Finding found = Find(recording, kRate, known, 0.45, 0.55, 0.45);
  EXPECT_NEAR(found.At, 0.5, 0.0001);
  EXPECT_NEAR(found.Gain, 0.8, 0.15);
  EXPECT_LT(found.Doubt, 0.3);
  EXPECT_LT(Find(recording, kRate, known, 0.52, 0.58, 0.45).Gain, 0.3);
}

TEST(Listening, AnAttackIsNoClick) {
  Recording recording;
  recording.Left.assign(22050, 0.0F);
  std::uint32_t noise = 1;
  for (int i = 0; i < 22050; ++i) {
    noise = noise * 1664525U + 1013904223U;
    const double fade = std::exp(-i / 4000.0);
    recording.Left.push_back(
        static_cast<float>((static_cast<double>(noise >> 8) / 8388608.0 - 1) * 0.5 * fade));
  }
  recording.Right = recording.Left;
  EXPECT_TRUE(FindClicks(recording).empty());
  const auto onsets = FindOnsets(recording);
  ASSERT_EQ(onsets.size(), 1U);
  EXPECT_NEAR(onsets[0], 0.5, 0.001);
}

}  // namespace
}  // namespace orvane::test
