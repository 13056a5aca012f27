#include "src/platform/windows/instance.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <optional>
#include <string>
#include <thread>

#include "src/platform/temporary_folder.h"

namespace orvane {
namespace {

namespace fs = std::filesystem;

class InstanceTest : public testing::Test {
 protected:
  ~InstanceTest() override { fs::remove_all(folder_); }

  const fs::path folder_ = MakeTemporaryFolder("orvane-一つ の-");
};

TEST_F(InstanceTest, TheSecondInAFolderIsNotTheFirst) {
  const Instance first(folder_);
  const Instance second(folder_);
  EXPECT_TRUE(first.IsFirst());
  EXPECT_FALSE(second.IsFirst());
}

TEST_F(InstanceTest, AFolderIsTheSameHoweverItIsWritten) {
  const Instance first(folder_);
  EXPECT_FALSE(Instance(folder_.parent_path() / "." / folder_.filename()).IsFirst());
  std::wstring upper = folder_.native();
  for (wchar_t& letter : upper) {
    if (letter >= L'a' && letter <= L'z') letter = static_cast<wchar_t>(letter - L'a' + L'A');
  }
  EXPECT_FALSE(Instance(upper).IsFirst());
}

TEST_F(InstanceTest, AnotherFolderIsFree) {
  fs::create_directory(folder_ / "other");
  const Instance first(folder_);
  EXPECT_TRUE(Instance(folder_ / "other").IsFirst());
}

TEST_F(InstanceTest, AFolderIsFreeAgainAtTheEnd) {
  { const Instance first(folder_); }
  EXPECT_TRUE(Instance(folder_).IsFirst());
}

TEST_F(InstanceTest, AFolderThatIsNotThereIsFree) {
  const Instance first(folder_ / "none");
  EXPECT_TRUE(first.IsFirst());
  EXPECT_TRUE(Instance(folder_ / "none").IsFirst());
  first.CallFirst();
}

TEST_F(InstanceTest, EveryCallOfALaterOneIsHeard) {
  std::atomic<int> calls = 0;
  {
    Instance first(folder_);
    first.WhenCalled([&calls] { ++calls; });
    for (int expected = 1; expected <= 3; ++expected) {
      Instance(folder_).CallFirst();
      for (int i = 0; i < 200 && calls < expected; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
      }
      EXPECT_EQ(calls, expected);
    }
  }
  Instance(folder_).CallFirst();
  EXPECT_EQ(calls, 3) << "nobody is there any more";
}

}  // namespace
}  // namespace orvane
