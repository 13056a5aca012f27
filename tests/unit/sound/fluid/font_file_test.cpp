// A sound font that is read by the synthesizer, and not read to its end.
#include "src/sound/fluid/font_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <memory>
#include <stop_token>
#include <string>
#include <vector>

#include "src/sound/fluid/sound_font.h"
#include "tests/unit/sound/processor_time.h"
#include "tests/unit/sound/sound_files.h"

namespace orvane {
namespace {

constexpr int kDrumChannel = 9;
constexpr int kDrumBank = 128;

using Settings = std::unique_ptr<fluid_settings_t, decltype(&delete_fluid_settings)>;
using Voices = std::unique_ptr<fluid_synth_t, decltype(&delete_fluid_synth)>;

class FontFileTest : public testing::Test {
 protected:
  void SetUp() override {
    if (FindSoundFont().empty()) GTEST_SKIP() << "no sound font is installed";
    for (int level = 0; level < LAST_LOG_LEVEL; ++level) {
      fluid_set_log_function(level, nullptr, nullptr);
    }
    fluid_settings_setint(settings_.get(), "synth.dynamic-sample-loading", 1);
    TakeNewVoices();
  }

  // A synthesizer without a font.
  void TakeNewVoices() { voices_.reset(new_fluid_synth(settings_.get())); }
  int Load(FontFile& file) { return file.LoadInto(voices_.get(), settings_.get()); }
  // Processor time that it takes to choose the drums of a font, in seconds.
  double TimeOfDrums(int font) {
    return test::TimeOf([&] {
      EXPECT_EQ(fluid_synth_program_select(voices_.get(), kDrumChannel, font, kDrumBank, 0),
                FLUID_OK);
    });
  }
  // The loudest frame of a drum that is beaten.
  float LoudestDrum() {
    std::array<float, 4410> left{};
    std::array<float, 4410> right{};
    fluid_synth_noteon(voices_.get(), kDrumChannel, 38, 120);
    fluid_synth_write_float(voices_.get(), left.size(), left.data(), 0, 1, right.data(), 0, 1);
    return *std::max_element(left.begin(), left.end());
  }

  Settings settings_{new_fluid_settings(), &delete_fluid_settings};
  Voices voices_{nullptr, &delete_fluid_synth};
};

TEST_F(FontFileTest, WhatIsNoFontIsNotLoaded) {
  const test::Folder folder;
  FontFile missing(folder.Path() + "/missing.sf2");
  EXPECT_EQ(Load(missing), FLUID_FAILED);
  folder.Write("Broken.sf2", {'R', 'I', 'F', 'F'});
  FontFile broken(folder.Path() + "/Sound/Broken.sf2");
  EXPECT_EQ(Load(broken), FLUID_FAILED);
}

TEST_F(FontFileTest, WhatHasNoPlacesToGoToIsNotLoaded) {
  const test::Folder folder;
  const std::string pipe = folder.Path() + "/pipe.sf2";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  // Nobody waits for the other end.
  const int held = open(pipe.c_str(), O_RDWR | O_NONBLOCK);
  ASSERT_GE(held, 0);
  const std::vector<char> noise(4096, 'R');
  EXPECT_EQ(write(held, noise.data(), noise.size()), static_cast<ssize_t>(noise.size()));
  FontFile file(pipe);
  EXPECT_EQ(Load(file), FLUID_FAILED);
  close(held);
}

TEST_F(FontFileTest, ReadingStopsBetweenAnyTwoReads) {
  FontFile file(FindSoundFont());
  const int font = Load(file);
  ASSERT_NE(font, FLUID_FAILED);
  std::stop_source leaving;
  file.StopBy(leaving.get_token());
  leaving.request_stop();
  const double stopped = TimeOfDrums(font);

  TakeNewVoices();
  FontFile another(FindSoundFont());
  const double whole = TimeOfDrums(Load(another));
  EXPECT_GT(LoudestDrum(), 0.01F);
  EXPECT_LT(stopped, whole / 4);
}

}  // namespace
}  // namespace orvane
