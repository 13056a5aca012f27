// The mixer, pulled by hand: what sounds when, and that it never exceeds full scale.
#include "src/sound/mixer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>

#include "tests/unit/sound/sound_files.h"

namespace orvane {
namespace {

constexpr int kRate = 44100;

std::shared_ptr<const Clip> ToneClip(double hertz, double seconds, double level) {
  auto clip = std::make_shared<Clip>();
  clip->Samples = test::Tone(hertz, kRate, seconds, level);
  return clip;
}

std::shared_ptr<const Piece> ReadyPiece(int bars) {
  auto piece = std::make_shared<Piece>();
  piece->Notes = *ReadSong(test::SimpleSong(bars));
  piece->Ready = true;
  return piece;
}

std::vector<float> Pull(Mixer& mixer, double seconds) {
  std::vector<float> out(2 * static_cast<size_t>(seconds * kRate));
  mixer.Pull(out.data(), out.size() / 2);
  return out;
}

float PeakOf(const std::vector<float>& samples) {
  float peak = 0;
  for (const float sample : samples) peak = std::max(peak, std::fabs(sample));
  return peak;
}

// The largest leap of one side from a frame to the next: a click is a large one.
float LeapOf(const std::vector<float>& samples) {
  float leap = 0;
  for (size_t i = 2; i < samples.size(); ++i) {
    leap = std::max(leap, std::fabs(samples[i] - samples[i - 2]));
  }
  return leap;
}

TEST(Mixer, FreshChannelIsStoppedAndSilent) {
  Mixer mixer(kRate);
  mixer.Open(9, ToneClip(440, 1, 0.5));
  EXPECT_FALSE(mixer.Playing(9));
  EXPECT_EQ(PeakOf(Pull(mixer, 0.2)), 0);
  EXPECT_FALSE(mixer.Playing(9));
}

TEST(Mixer, EffectPlaysUnchangedAndEndsAfterItsLength) {
  Mixer mixer(kRate);
  const auto clip = ToneClip(440, 0.5, 0.5);
  mixer.Open(9, clip);
  mixer.Play(9);
  EXPECT_TRUE(mixer.Playing(9));  // at once, before anything is pulled
  const std::vector<float> out = Pull(mixer, 0.4);
  EXPECT_TRUE(mixer.Playing(9));
  for (size_t i = 0; i < 1000; ++i) {
    const float expected = static_cast<float>(clip->Samples[i]) / 32768.0F;
    EXPECT_FLOAT_EQ(out[2 * (i + kBlockFrames)], expected);  // one block late, for the limiter
    EXPECT_FLOAT_EQ(out[2 * (i + kBlockFrames) + 1], expected);
  }
  Pull(mixer, 0.12);
  EXPECT_FALSE(mixer.Playing(9));
  Pull(mixer, 0.01);
  EXPECT_EQ(PeakOf(Pull(mixer, 0.2)), 0);
}

TEST(Mixer, TheSameSoundWhateverThePullSizes) {
  std::vector<float> whole;
  for (const size_t size : {size_t{4410}, size_t{64}, size_t{1}, size_t{333}}) {
    Mixer mixer(kRate);
    mixer.Open(0, ToneClip(500, 0.05, 0.5));
    mixer.Play(0);
    std::vector<float> out(std::size_t{2} * 4410);
    for (size_t done = 0; done < 4410;) {
      const size_t count = std::min(size, 4410 - done);
      mixer.Pull(out.data() + 2 * done, count);
      done += count;
    }
    if (whole.empty()) whole = out;
    EXPECT_EQ(out, whole) << size;
  }
  EXPECT_GT(PeakOf(whole), 0.4F);
}

TEST(Mixer, PlayStartsFromTheBeginningAgain) {
  Mixer mixer(kRate);
  // Silence, then a burst: it can only come again if the beginning does.
  auto clip = std::make_shared<Clip>();
  clip->Samples = test::Tone(440, kRate, 0.3, 0.5);
  std::fill_n(clip->Samples.begin(), kRate / 5, std::int16_t{0});
  mixer.Open(9, clip);
  mixer.Play(9);
  EXPECT_EQ(PeakOf(Pull(mixer, 0.19)), 0);
  mixer.Play(9);
  EXPECT_TRUE(mixer.Playing(9));
  EXPECT_EQ(PeakOf(Pull(mixer, 0.005)), 0);
  Pull(mixer, 0.09);  // what was left of the first start has died away
  EXPECT_EQ(PeakOf(Pull(mixer, 0.1)), 0);
  EXPECT_TRUE(mixer.Playing(9));
  EXPECT_GT(PeakOf(Pull(mixer, 0.1)), 0.4F);
  Pull(mixer, 0.01);
  EXPECT_FALSE(mixer.Playing(9));
}

TEST(Mixer, SeveralStartsBetweenTwoBlocksAreOne) {
  Mixer mixer(kRate);
  mixer.Open(9, ToneClip(440, 0.5, 0.3));
  for (int i = 0; i < 4; ++i) mixer.Play(9);
  EXPECT_NEAR(PeakOf(Pull(mixer, 0.2)), 0.3F, 0.01F);
}

// Whether anything plays behind a pull of so many seconds.
bool Plays(Mixer& mixer, double seconds, Mixer::TimePoint from = Mixer::TimePoint::max()) {
  std::vector<float> out(2 * static_cast<size_t>(seconds * kRate));
  return mixer.Pull(out.data(), out.size() / 2, from);
}

TEST(Mixer, APullTellsWhetherAnythingPlays) {
  Mixer mixer(kRate);
  EXPECT_FALSE(Plays(mixer, 0.1));
  mixer.Open(9, ToneClip(440, 0.2, 0.5));
  mixer.Open(0, ReadyPiece(2));
  EXPECT_FALSE(Plays(mixer, 0.1)) << "both stand";
  mixer.Play(9);
  EXPECT_TRUE(Plays(mixer, 0.1));
  EXPECT_FALSE(Plays(mixer, 0.15)) << "the effect has ended";
  mixer.Play(9);
  EXPECT_TRUE(Plays(mixer, 0.1));
  mixer.Close(9);
  EXPECT_TRUE(Plays(mixer, 0.002)) << "it dies away";
  EXPECT_FALSE(Plays(mixer, 0.1));
  mixer.Play(0);
  EXPECT_TRUE(Plays(mixer, 3.8)) << "music that only counts";
  EXPECT_FALSE(Plays(mixer, 0.3)) << "and that has ended";
  mixer.Play(0);
  EXPECT_TRUE(Plays(mixer, 0.05, std::chrono::steady_clock::now() - std::chrono::seconds(1)))
      << "one that is still to begin";
}

// The first frame that is not silent, of a pull that begins to stand for the time `from`.
size_t OnsetOf(Mixer& mixer, size_t frames, Mixer::TimePoint from) {
  std::vector<float> out(2 * frames);
  mixer.Pull(out.data(), frames, from);
  const auto sounds = [](float sample) { return std::fabs(sample) > 1e-4F; };
  return static_cast<size_t>(std::find_if(out.begin(), out.end(), sounds) - out.begin()) / 2;
}

// How large the pulls are must not be heard: what is asked for between two of them is started as
// far into the second as it was asked for after the first.
TEST(Mixer, AStartFallsWhereItsTimeLies) {
  for (const int milliseconds : {0, 7, 20, 33}) {
    Mixer mixer(kRate);
    mixer.Open(9, ToneClip(440, 0.5, 0.5));
    mixer.Play(9);
    const auto asked = std::chrono::steady_clock::now();
    const auto onset = OnsetOf(mixer, kRate / 10, asked - std::chrono::milliseconds(milliseconds));
    const int due = milliseconds * kRate / 1000;
    EXPECT_NEAR(static_cast<double>(onset), due + kBlockFrames, kBlockFrames + 4) << milliseconds;
  }
}

TEST(Mixer, AStartThatLiesBehindThePullWaitsForTheNext) {
  Mixer mixer(kRate);
  mixer.Open(9, ToneClip(440, 0.5, 0.5));
  mixer.Play(9);
  const auto from = std::chrono::steady_clock::now() - std::chrono::milliseconds(100);
  EXPECT_EQ(OnsetOf(mixer, kRate / 20, from), size_t{kRate / 20});
  EXPECT_TRUE(mixer.Playing(9));
  const auto next = from + std::chrono::milliseconds(50);
  EXPECT_NEAR(static_cast<double>(OnsetOf(mixer, kRate / 10, next)), kRate / 20, 2 * kBlockFrames);
}

// A frame that asks four times, or is hurried by the next, is heard as one.
TEST(Mixer, StartsWithinFourMillisecondsAreOne) {
  for (const double apart : {0.001, 0.006}) {
    Mixer mixer(kRate);
    mixer.Open(9, ToneClip(440, 0.5, 0.3));
    mixer.Play(9);
    Pull(mixer, apart);
    mixer.Play(9);
    const float peak = PeakOf(Pull(mixer, 0.2));
    if (apart < 0.004) {
      EXPECT_NEAR(peak, 0.3F, 0.01F);
    } else {
      EXPECT_GT(std::fabs(peak - 0.3F), 0.03F);
    }
  }
}

TEST(Mixer, AllEffectsAtOnceDoNotClip) {
  Mixer mixer(kRate);
  for (int channel = 0; channel < Mixer::Channels; ++channel) {
    mixer.Open(channel, ToneClip(200 + 37 * channel, 1, 0.9));
    mixer.Play(channel);
  }
  const std::vector<float> out = Pull(mixer, 1.2);
  EXPECT_LE(PeakOf(out), Limiter::Ceiling + 1e-4F);
  EXPECT_GT(PeakOf(out), 0.8F);
}

TEST(Mixer, SoundBelowTheCeilingPassesTheLimiterUnchanged) {
  Mixer mixer(kRate);
  mixer.Open(0, ToneClip(440, 0.5, 0.45));
  mixer.Open(1, ToneClip(440, 0.5, 0.45));
  mixer.Play(0);
  mixer.Play(1);
  EXPECT_NEAR(PeakOf(Pull(mixer, 0.3)), 0.9F, 0.001F);
}

TEST(Mixer, LimiterRecovers) {
  Mixer mixer(kRate);
  mixer.Open(0, ToneClip(440, 3, 0.5));
  mixer.Open(1, ToneClip(300, 0.2, 1.0));
  mixer.Open(2, ToneClip(400, 0.2, 1.0));
  for (int channel = 0; channel < 3; ++channel) mixer.Play(channel);
  EXPECT_LE(PeakOf(Pull(mixer, 0.25)), Limiter::Ceiling + 1e-4F);
  Pull(mixer, 0.75);
  EXPECT_NEAR(PeakOf(Pull(mixer, 0.5)), 0.5F, 0.005F);
}

TEST(Mixer, CloseEndsASoundAtOnceWithoutAClick) {
  Mixer mixer(kRate);
  mixer.Open(9, ToneClip(100, 2, 0.9));
  mixer.Play(9);
  const float leap = LeapOf(Pull(mixer, 0.3025));  // a quarter of a swing more: at the crest
  mixer.Close(9);
  EXPECT_FALSE(mixer.Playing(9));
  EXPECT_LE(LeapOf(Pull(mixer, 0.012)), leap * 1.5F);
  EXPECT_EQ(PeakOf(Pull(mixer, 0.2)), 0);
}

TEST(Mixer, RestartOnEveryFrameHasNoClicks) {
  Mixer mixer(kRate);
  mixer.Open(9, ToneClip(100, 1, 0.3));
  std::vector<float> all;
  for (int frame = 0; frame < 20; ++frame) {
    mixer.Play(9);
    const std::vector<float> out = Pull(mixer, 0.016);
    all.insert(all.end(), out.begin(), out.end());
  }
  // A tone of 100 Hz moves by 0.0043 a frame at this level. At most seven of them meet.
  EXPECT_LT(LeapOf(all), 0.0043F * 7);
  EXPECT_GT(PeakOf(all), 0.25F);
  EXPECT_LE(PeakOf(all), Limiter::Ceiling + 1e-4F);
}

TEST(Mixer, MusicWithoutASynthLastsItsLength) {
  Mixer mixer(kRate);
  mixer.Open(0, ReadyPiece(2));
  EXPECT_FALSE(mixer.Playing(0));
  mixer.Play(0);
  EXPECT_EQ(PeakOf(Pull(mixer, 3.8)), 0);
  EXPECT_TRUE(mixer.Playing(0));
  Pull(mixer, 0.21);
  EXPECT_FALSE(mixer.Playing(0));
}

TEST(Mixer, MusicStartedOverJustBeforeItsEndKeepsTheBar) {
  Mixer mixer(kRate);
  mixer.Open(0, ReadyPiece(2));
  mixer.Play(0);
  Pull(mixer, 3.9);
  EXPECT_FALSE(mixer.Playing(0));  // as good as ended
  mixer.Play(0);
  EXPECT_TRUE(mixer.Playing(0));
  // 0.1 s of the first round are left: the second ends 4.1 s from here, not 4.
  Pull(mixer, 3.9);
  EXPECT_TRUE(mixer.Playing(0));
  Pull(mixer, 0.06);
  EXPECT_FALSE(mixer.Playing(0));
}

// Half a second is no whole number of blocks: what a round is late must not add up.
TEST(Mixer, ManyRoundsOfMusicDoNotDrift) {
  constexpr int kRounds = 60;
  Mixer mixer(kRate);
  auto piece = std::make_shared<Piece>();
  const test::Bytes beat{0, 0x90, 60, 100, 96, 0x80, 60, 0};
  piece->Notes = *ReadSong(test::Join({test::MidiHeader(0, 1, 96), test::MidiTrack(beat)}));
  piece->Ready = true;
  mixer.Open(0, std::shared_ptr<const Piece>(piece));
  int rounds = 0;
  int blocks = 0;
  std::vector<float> out(2 * static_cast<size_t>(kBlockFrames));
  while (rounds < kRounds || mixer.Playing(0)) {
    if (!mixer.Playing(0)) {
      mixer.Play(0);
      ++rounds;
    }
    mixer.Pull(out.data(), kBlockFrames);
    ++blocks;
  }
  // The last end is told an eighth of its half second early.
  EXPECT_NEAR(blocks * static_cast<double>(kBlockFrames) / kRate, kRounds * 0.5 - 0.0625, 0.005);
}

TEST(Mixer, MusicRestartedInTheMiddleBeginsAtOnce) {
  Mixer mixer(kRate);
  mixer.Open(0, ReadyPiece(2));
  mixer.Play(0);
  Pull(mixer, 2);
  mixer.Play(0);
  Pull(mixer, 3.8);
  EXPECT_TRUE(mixer.Playing(0));
  Pull(mixer, 0.2);
  EXPECT_FALSE(mixer.Playing(0));
}

TEST(Mixer, MusicWaitsForItsInstruments) {
  Mixer mixer(kRate);
  auto piece = std::make_shared<Piece>();
  piece->Notes = *ReadSong(test::SimpleSong(1));
  mixer.Open(0, std::shared_ptr<const Piece>(piece));
  mixer.Play(0);
  Pull(mixer, 5);
  EXPECT_TRUE(mixer.Playing(0));
  piece->Ready = true;
  Pull(mixer, 1.7);
  EXPECT_TRUE(mixer.Playing(0));
  Pull(mixer, 0.3);
  EXPECT_FALSE(mixer.Playing(0));
}

TEST(Mixer, EmptySoundsEndAtOnce) {
  Mixer mixer(kRate);
  mixer.Open(0, std::make_shared<const Clip>());
  auto piece = std::make_shared<Piece>();
  piece->Ready = true;
  mixer.Open(1, std::shared_ptr<const Piece>(piece));
  mixer.Play(0);
  mixer.Play(1);
  EXPECT_EQ(PeakOf(Pull(mixer, 0.01)), 0);
  EXPECT_FALSE(mixer.Playing(0));
  EXPECT_FALSE(mixer.Playing(1));
}

}  // namespace
}  // namespace orvane
