// The machine's audio device, which here is SDL's own that writes to a file.
#include <gtest/gtest.h>
#include <stdlib.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <thread>

#include "src/platform/path_text.h"
#include "src/platform/whole_file.h"
#include "src/sound/output.h"
#include "tests/unit/sound/sound_files.h"

namespace orvane {
namespace {

using namespace std::chrono_literals;

bool Within(std::chrono::seconds time, const std::function<bool()>& is_so) {
  const auto end = std::chrono::steady_clock::now() + time;
  while (std::chrono::steady_clock::now() < end) {
    if (is_so()) return true;
    std::this_thread::sleep_for(10ms);
  }
  return is_so();
}

constexpr float kLevel = 0.5;

// The loudest sample that was written to a file; 0 where there is none.
float Loudest(const std::filesystem::path& file) {
  const std::string bytes = ReadWholeFile(file).value_or("");
  float loudest = 0;
  for (size_t at = 0; at + sizeof(float) <= bytes.size(); at += sizeof(float)) {
    float sample = 0;
    std::memcpy(&sample, bytes.data() + at, sizeof sample);
    loudest = std::max(loudest, sample);
  }
  return loudest;
}

// Of the environment, for as long as this lives.
class Variable {
 public:
  Variable(const char* name, const std::string& value) : name_(name) {
    if (const char* before = getenv(name)) before_ = before;
    setenv(name, value.c_str(), 1);
  }
  ~Variable() {
    if (before_) {
      setenv(name_, before_->c_str(), 1);
    } else {
      unsetenv(name_);
    }
  }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  const char* name_;
  std::optional<std::string> before_;
};

TEST(DeviceOutputTest, ADeviceThatIsLostIsFoundAgain) {
  const test::Folder folder;
  const auto device = PathOf(folder.Path()) / "device";
  const auto heard = PathOf(folder.Path()) / "heard";
  // Writing to it fails, and for SDL the device is gone.
  std::filesystem::create_symlink("/dev/full", device);
  const Variable driver("SDL_AUDIODRIVER", "disk");
  const Variable file("SDL_DISKAUDIOFILE", TextOf(device));
  std::atomic<int> pulls = 0;
  const auto output = OpenDevice(44100, [&](float* out, size_t frames, auto /*from*/) {
    std::fill_n(out, 2 * frames, kLevel);
    ++pulls;
  });
  ASSERT_NE(output, nullptr);
  EXPECT_TRUE(Within(10s, [&] { return pulls > 100; })) << "time goes on without it";
  std::filesystem::remove(device);
  std::filesystem::create_symlink(heard, device);
  EXPECT_TRUE(Within(10s, [&] { return Loudest(heard) == kLevel; })) << "it is there again";
}

}  // namespace
}  // namespace orvane
