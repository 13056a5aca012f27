// The machine's audio device, for which a file stands here; and what is told of a recording.
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
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
    SetVariable("SDL_DISKAUDIOFILE", folder_.Path() + "/Sound/device.raw");
  }
  ~FileForDevice() {
    SetVariable("SDL_AUDIODRIVER", "");
    SetVariable("SDL_DISKAUDIOFILE", "");
  }
  FileForDevice(const FileForDevice&) = delete;
  FileForDevice& operator=(const FileForDevice&) = delete;

  // The samples that were played.
  size_t Samples() const {
    return ReadWholeFile(folder_.Path() + "/Sound/device.raw").value_or("").size() / sizeof(float);
  }

 private:
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
    EXPECT_EQ(OpenDevice(kRate, [](float*, size_t, auto) {}), nullptr) << driver;
  }
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
