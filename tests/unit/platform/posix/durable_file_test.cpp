#include "src/platform/durable_file.h"

#include <gtest/gtest.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "src/platform/whole_file.h"

namespace orvane {
namespace {

class DurableFileTest : public testing::Test {
 protected:
  DurableFileTest()
      : folder_(std::filesystem::temp_directory_path() /
                ("orvane-durable-" + std::to_string(getpid()))) {
    std::filesystem::create_directories(folder_);
    std::ofstream(File()) << old_record;
  }
  ~DurableFileTest() override { std::filesystem::remove_all(folder_); }

  std::string File() const { return (folder_ / "Save01.sav").string(); }
  std::string Content() const { return ReadWholeFile(File()).value_or(""); }
  int FilesInFolder() const {
    return static_cast<int>(std::distance(std::filesystem::directory_iterator(folder_), {}));
  }

  const std::string old_record = std::string(540, 'o');
  const std::string new_record = std::string(540, 'n');

 private:
  std::filesystem::path folder_;
};

TEST_F(DurableFileTest, ReplacesTheFile) {
  EXPECT_EQ(ReplaceFileDurably(File(), new_record), "");
  EXPECT_EQ(Content(), new_record);
  EXPECT_EQ(FilesInFolder(), 1) << "nothing is left beside it";
}

TEST_F(DurableFileTest, MakesAFileThatIsNotThere) {
  std::filesystem::remove(File());
  EXPECT_EQ(ReplaceFileDurably(File(), new_record), "");
  EXPECT_EQ(Content(), new_record);
}

TEST_F(DurableFileTest, RefusesAFolderThatIsNotThere) {
  EXPECT_EQ(ReplaceFileDurably(File() + "/no/such", new_record), "Not a directory");
}

TEST_F(DurableFileTest, AFileThatIsReplacedHandsItsModeOn) {
  for (const mode_t mode : {0600u, 0664u}) {
    chmod(File().c_str(), mode);
    EXPECT_EQ(ReplaceFileDurably(File(), new_record), "");
    struct stat facts {};
    stat(File().c_str(), &facts);
    EXPECT_EQ(facts.st_mode & 07777u, mode);
  }
}

TEST_F(DurableFileTest, AFileThatNobodyMayWriteIsNotReplaced) {
  chmod(File().c_str(), 0444);
  EXPECT_EQ(ReplaceFileDurably(File(), new_record), "Permission denied");
  EXPECT_EQ(Content(), old_record);
  EXPECT_EQ(FilesInFolder(), 1);
}

// Replaces the file as a user who owns neither it nor the folder; returns what is in the way.
std::string ReplaceAsAnother(const std::string& file, const std::string& record) {
  int ends[2];
  if (pipe(ends) != 0) return "no pipe";
  const pid_t child = fork();
  if (child == 0) {
    constexpr uid_t nobody = 65534;
    const std::string failure =
        setuid(nobody) == 0 ? ReplaceFileDurably(file, record) : "no other user";
    const bool told = write(ends[1], failure.data(), failure.size()) >= 0;
    _exit(told ? 0 : 1);
  }
  close(ends[1]);
  std::string failure(200, ' ');
  const ssize_t size = read(ends[0], failure.data(), failure.size());
  close(ends[0]);
  waitpid(child, nullptr, 0);
  return failure.substr(0, static_cast<size_t>(std::max<ssize_t>(size, 0)));
}

TEST_F(DurableFileTest, WhatBelongsToAnotherStaysAsItIs) {
  if (getuid() != 0) GTEST_SKIP() << "only root can become somebody else";
  chmod(File().c_str(), 0644);
  EXPECT_EQ(ReplaceAsAnother(File(), new_record), "Permission denied") << "the file";
  chmod(File().c_str(), 0666);
  EXPECT_EQ(ReplaceAsAnother(File(), new_record), "Permission denied") << "the folder";
  EXPECT_EQ(Content(), old_record);
  EXPECT_EQ(FilesInFolder(), 1);
}

// Kills a child that saves as it enters or leaves a system call, counted by `step` from its start.
// Returns false when the child ends before.
bool KillAtStep(int step, const std::string& file, const std::string& record) {
  const pid_t child = fork();
  if (child == 0) {
    ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    raise(SIGSTOP);
    ReplaceFileDurably(file, record);
    _exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  for (int i = 0; i < step; ++i) {
    ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
    waitpid(child, &status, 0);
    if (WIFEXITED(status)) return false;
  }
  kill(child, SIGKILL);
  waitpid(child, &status, 0);
  return true;
}

TEST_F(DurableFileTest, AWriterKilledAtAnyStepLeavesTheOldOrTheNewRecordWhole) {
  int old_ones = 0;
  int new_ones = 0;
  int step = 1;
  while (KillAtStep(step, File(), new_record)) {
    const std::string content = Content();
    ASSERT_TRUE(content == old_record || content == new_record) << "killed at step " << step;
    (content == old_record ? old_ones : new_ones) += 1;
    ASSERT_EQ(ReplaceFileDurably(File(), old_record), "") << "after a kill at step " << step;
    ASSERT_LT(++step, 1000);
  }
  EXPECT_EQ(Content(), new_record) << "the last run came to its end";
  EXPECT_GT(old_ones, 5) << "it was stopped before, within";
  EXPECT_GT(new_ones, 1) << "and after the rename";
}

TEST_F(DurableFileTest, ADiskThatIsFullLeavesTheOldRecord) {
  // A limit on the size of files stops the write as a full disk does, after a part or at once.
  for (const rlim_t room : {0u, 1u, 100u, 539u}) {
    const pid_t child = fork();
    if (child == 0) {
      signal(SIGXFSZ, SIG_IGN);
      const rlimit limit{room, room};
      setrlimit(RLIMIT_FSIZE, &limit);
      _exit(ReplaceFileDurably(File(), new_record).empty() ? 1 : 0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "room for " << room << " bytes";
    EXPECT_EQ(Content(), old_record);
    EXPECT_EQ(FilesInFolder(), 1);
  }
}

}  // namespace
}  // namespace orvane
