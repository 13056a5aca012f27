#include "src/platform/temporary_folder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <future>

#include "src/platform/windows/windows_api.h"

namespace orvane {
namespace {

namespace fs = std::filesystem;

HANDLE Hold(const fs::path& path) {
  constexpr DWORD all = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  return CreateFileW(path.c_str(), GENERIC_READ, all, nullptr, OPEN_EXISTING, 0, nullptr);
}

// A file that is linked to goes when the last who has it open, by any of its names, lets go of it:
// sooner or later while it is being removed.
TEST(TemporaryFolder, GoesWhoeverHasHeldItsFiles) {
  const auto place = MakeTemporaryFolder("orvane-held-");
  std::ofstream(place / "original") << "sound";
  for (int held = 0; held < 60; ++held) {
    const auto folder = place / "scratch";
    fs::create_directories(folder / "Sound");
    fs::create_hard_link(place / "original", folder / "Sound" / "Fresh.wav");
    const HANDLE file = Hold(place / "original");
    ASSERT_NE(file, INVALID_HANDLE_VALUE);
    auto removed = std::async(std::launch::async, [&folder] { RemoveFolder(folder); });
    Sleep(static_cast<DWORD>(held % 6));
    CloseHandle(file);
    ASSERT_EQ(removed.wait_for(std::chrono::seconds(60)), std::future_status::ready) << held;
    EXPECT_FALSE(fs::exists(folder)) << held;
  }
  RemoveFolder(place);
}

// One that is held on and on is left, and nothing waits for ever.
TEST(TemporaryFolder, StaysWhereAFileIsHeldOn) {
  const auto folder = MakeTemporaryFolder("orvane-held-");
  std::ofstream(folder / "a") << "a";
  const HANDLE file = CreateFileW((folder / "a").c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                  OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(file, INVALID_HANDLE_VALUE);
  RemoveFolder(folder);
  EXPECT_TRUE(fs::exists(folder / "a"));
  CloseHandle(file);
  RemoveFolder(folder);
  EXPECT_FALSE(fs::exists(folder));
}

}  // namespace
}  // namespace orvane
