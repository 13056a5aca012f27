// The machine's audio device, for which a file stands here; and what is told of a recording.
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <string>
#include <thread>

#include "src/platform/whole_file.h"
#include "src/sound/output.h"
#include "src/sound/play_log.h"
#include "src/sound/recorder.h"
#include "tests/unit/environment.h"
#include "tests/unit/sound/engine.h"

namespace orvane {
namespace {

using namespace test;
using std::chrono::milliseconds;

// Lets SDL play into a file of the test's own while it lives.
class FileForDevice {
 public:
  explicit FileForDevice(const std::string& driver) {
    SetVariable("SDL_AUDIODRIVER", driver);
    PutBack();
  }
  ~FileForDevice() {
    SetVariable("SDL_AUDIODRIVER", "");
    SetVariable("SDL_DISKAUDIOFILE", "");
  }
  FileForDevice(const FileForDevice&) = delete;
  FileForDevice& operator=(const FileForDevice&) = delete;

  // The device plays into the file again, after it was another.
  void PutBack() const { SetVariable("SDL_DISKAUDIOFILE", folder_.Path() + "/Sound/device.raw"); }

  // How many samples were played, and the loudest of them, or 0.
  size_t Samples() const { return Read().size() / sizeof(float); }
  float Loudest() const {
    const std::string bytes = Read();
    float loudest = 0;
    for (size_t at = 0; at + sizeof(float) <= bytes.size(); at += sizeof(float)) {
      float sample = 0;
      std::memcpy(&sample, bytes.data() + at, sizeof sample);
      loudest = std::max(loudest, sample);
    }
    return loudest;
  }

 private:
  std::string Read() const {
    return ReadWholeFile(folder_.Path() + "/Sound/device.raw").value_or("");
  }

  Folder folder_;
};

TEST(Device, AsksForFramesUntilItIsClosed) {
  const FileForDevice file("disk");
  std::atomic<size_t> frames = 0;
  {
    const auto output = OpenDevice(kRate, [&](float* out, size_t count, auto from) {
      EXPECT_LE(from, std::chrono::steady_clock::now());
      std::fill_n(out, 2 * count, 0.25F);
      frames += count;
      return false;
    });
    if (!output) GTEST_SKIP() << "SDL cannot play into a file here";
    EXPECT_GT(output->Delay(), 0);
    EXPECT_LT(output->Delay(), 1);
    for (int i = 0; i < 500 && frames < 1000; ++i) std::this_thread::sleep_for(milliseconds(10));
    // It looks about once a second whether the device is still there.
    std::this_thread::sleep_for(milliseconds(1200));
  }
  EXPECT_GE(frames, 1000u);
  EXPECT_GE(file.Samples(), 2000u);
}

TEST(Device, OneThatMakesNoSoundIsNone) {
  for (const char* driver : {"dummy", "none such"}) {
    const FileForDevice file(driver);
    EXPECT_EQ(OpenDevice(kRate, [](float*, size_t, auto) { return true; }), nullptr) << driver;
  }
}

TEST(Device, OneThatCannotBeOpenedIsNone) {
  const FileForDevice file("disk");
  SetVariable("SDL_DISKAUDIOFILE", "/no/such/folder/device.raw");
  EXPECT_EQ(OpenDevice(kRate, [](float*, size_t, auto) { return true; }), nullptr);
}

TEST(Device, OneThatWasPulledOutIsLookedForUntilThereIsOne) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no such device here";
  const FileForDevice file("disk");
  constexpr float level = 0.25;
  std::atomic<int> pulls = 0;
  const auto output = [&] {
    SetVariable("SDL_DISKAUDIOFILE", "/dev/full");
    auto opened = OpenDevice(kRate, [&](float* out, size_t count, auto) {
      std::fill_n(out, 2 * count, level);
      ++pulls;
      return false;
    });
    SetVariable("SDL_DISKAUDIOFILE", "/no/such/folder/device.raw");
    return opened;
  }();
  if (!output) GTEST_SKIP() << "SDL cannot play into a file here";
  // It has looked for another at least once, and there was none.
  std::this_thread::sleep_for(milliseconds(2500));
  EXPECT_EQ(file.Samples(), 0u);
  EXPECT_GT(pulls, 30) << "time goes on without it";
  file.PutBack();
  for (int i = 0; i < 1000 && file.Loudest() == 0; ++i)
    std::this_thread::sleep_for(milliseconds(10));
  EXPECT_EQ(file.Loudest(), level) << "it is there again";
}

// A system without a sound card has much to say about it, and nobody wants to hear.
TEST(Device, WhereTheSystemHasNoneNothingIsSaid) {
  if (std::filesystem::exists("/dev/snd")) GTEST_SKIP() << "there is one here";
  const FileForDevice file("alsa");
  testing::internal::CaptureStderr();
  EXPECT_EQ(OpenDevice(kRate, [](float*, size_t, auto) { return true; }), nullptr);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(SoundEngineTest, PlaysToTheDeviceOrToTheClockWhereThereIsNone) {
  for (const char* driver : {"disk", "dummy"}) {
    const FileForDevice file(driver);
    SoundEngine engine{SoundOptions()};
    engine.WaitUntilReady();
    Open(engine, "Cut.wav", "snd2");
    engine.Send(PlayCommand("snd2"));
    for (int i = 0; i < 500 && Status(engine, "snd2") == "playing"; ++i) {
      std::this_thread::sleep_for(milliseconds(10));
    }
    EXPECT_EQ(Status(engine, "snd2"), "stopped") << driver;
    EXPECT_EQ(file.Samples() > 0, std::string(driver) == "disk");
  }
}

}  // namespace
}  // namespace orvane
