#include "src/frontend/shared/instance.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <optional>
#include <string>

#include "src/frontend/desktop/app/signals.h"

namespace orvane {
namespace {

namespace fs = std::filesystem;

// A session of its own, in whose folder the locks lie.
class InstanceTest : public testing::Test {
 protected:
  InstanceTest() {
    if (const char* before = std::getenv("XDG_RUNTIME_DIR")) before_ = before;
    fs::create_directories(session_);
    setenv("XDG_RUNTIME_DIR", session_.c_str(), 1);
  }
  ~InstanceTest() override {
    fs::remove_all(session_);
    if (before_) setenv("XDG_RUNTIME_DIR", before_->c_str(), 1);
    if (!before_) unsetenv("XDG_RUNTIME_DIR");
  }

  // The only file of the session.
  fs::path Lock() const {
    const fs::directory_iterator files(session_);
    return files == fs::directory_iterator() ? fs::path() : files->path();
  }

  // The exit status of a process of its own that does this, or minus the signal that ends it.
  static int InAnother(const std::function<int()>& act) {
    const pid_t child = fork();
    if (child == 0) _exit(act());
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
  }

  const fs::path session_ =
      fs::temp_directory_path() / ("orvane-instance-" + std::to_string(getpid()));

 private:
  std::optional<std::string> before_;
};

TEST_F(InstanceTest, OneIsFirstInAFolderAndOthersInOtherFolders) {
  const Instance first("/a");
  EXPECT_TRUE(first.IsFirst());
  EXPECT_EQ(InAnother([] { return int(Instance("/a").IsFirst()); }), 0);
  EXPECT_EQ(InAnother([] { return int(Instance("/b").IsFirst()); }), 1);
}

TEST_F(InstanceTest, TheEndOfTheSecondLeavesTheFirstItsFolder) {
  const Instance first("/a");
  for (int start = 0; start < 3; ++start) {
    EXPECT_EQ(InAnother([] { return int(Instance("/a").IsFirst()); }), 0) << start;
  }
}

// In a process of one thread: another would take the signal that this one keeps waiting.
TEST_F(InstanceTest, TheSecondCallsTheFirst) {
  const auto called = InAnother([] {
    sigset_t call;
    sigemptyset(&call);
    sigaddset(&call, kCallSignal);
    sigprocmask(SIG_BLOCK, &call, nullptr);
    const Instance first("/a");
    InAnother([] {
      Instance("/a").CallFirst();
      return 0;
    });
    const timespec second = {1, 0};
    return sigtimedwait(&call, nullptr, &second);
  });
  EXPECT_EQ(called, kCallSignal);
}

TEST_F(InstanceTest, NobodyIsCalledWhereNobodyPlays) {
  const Instance first("/a");
  // A signal that is not blocked would end the process.
  EXPECT_EQ(InAnother([] {
              Instance("/b").CallFirst();
              return 7;
            }),
            7);
}

TEST_F(InstanceTest, LeavesNothingBehind) {
  { EXPECT_TRUE(Instance("/a").IsFirst()); }
  EXPECT_TRUE(Lock().empty()) << Lock();
}

// In a container the numbers of processes begin anew: a game that follows a crash may have the very
// number that the crashed one had.
TEST_F(InstanceTest, WhatACrashLeftIsNoHindranceEvenWithItsNumber) {
  EXPECT_EQ(InAnother([] {
              const Instance crashing("/a");
              return raise(SIGKILL);
            }),
            -SIGKILL);
  ASSERT_FALSE(Lock().empty());
  std::ifstream file(Lock());
  std::string rest;
  std::getline(file, rest);
  rest.assign(std::istreambuf_iterator<char>(file), {});
  std::ofstream(Lock()) << getpid() << "\n" << rest;
  EXPECT_TRUE(Instance("/a").IsFirst());
}

TEST_F(InstanceTest, IsFirstWhereNoLockCanBeWritten) {
  setenv("XDG_RUNTIME_DIR", (session_ / "missing").c_str(), 1);
  EXPECT_TRUE(Instance("/a").IsFirst());
}

}  // namespace
}  // namespace orvane
