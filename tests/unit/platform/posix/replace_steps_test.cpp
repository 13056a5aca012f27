// What is done with each error of the steps that replace a file, and the steps on what refuses
// them.
#include "src/platform/posix/replace_steps.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>

#include "src/platform/system_message.h"
#include "src/platform/temporary_folder.h"

namespace orvane {
namespace {

// Steps that do nothing but note the folder and say what they are told to.
class ToldSteps : public ReplaceSteps {
 public:
  int AskToWrite(const std::string& /*name*/, std::optional<unsigned>& /*mode*/) override {
    return 0;
  }
  int Create(const std::string& /*name*/, std::optional<unsigned> /*mode*/, int& file) override {
    file = 3;
    return 0;
  }
  int Write(int /*file*/, const char* /*bytes*/, size_t size, size_t& written) override {
    written = WritesNothing ? 0 : size;
    return 0;
  }
  int Flush(int /*file*/) override { return OfFlush; }
  int Close(int /*file*/) override { return OfClose; }
  int Rename(const std::string& /*from*/, const std::string& /*to*/) override { return 0; }
  int FlushFolder(const std::string& folder) override {
    Folder = folder;
    return OfFolder;
  }
  int Delete(const std::string& /*name*/) override {
    ++Deleted;
    return 0;
  }

  bool WritesNothing = false;
  int OfFlush = 0;
  int OfClose = 0;
  int OfFolder = 0;
  int Deleted = 0;
  std::string Folder;
};

TEST(ReplaceSteps, AWriteThatWritesNothingIsAnErrorAndNoEndlessLoop) {
  ToldSteps steps;
  steps.WritesNothing = true;
  EXPECT_EQ(ReplaceFileBySteps("a/b", "bytes", steps), SystemMessage(EIO));
  EXPECT_EQ(steps.Deleted, 1);
}

TEST(ReplaceSteps, TheFirstErrorIsTold) {
  ToldSteps steps;
  steps.OfClose = ENOSPC;
  EXPECT_EQ(ReplaceFileBySteps("a/b", "bytes", steps), SystemMessage(ENOSPC));
  steps.OfFlush = EIO;
  EXPECT_EQ(ReplaceFileBySteps("a/b", "bytes", steps), SystemMessage(EIO));
  EXPECT_EQ(steps.Deleted, 2);
}

TEST(ReplaceSteps, TheFolderIsTheOneThatTheNameStandsIn) {
  ToldSteps steps;
  EXPECT_EQ(ReplaceFileBySteps("a/b/c", "bytes", steps), "");
  EXPECT_EQ(steps.Folder, "a/b/");
  EXPECT_EQ(ReplaceFileBySteps("c", "bytes", steps), "");
  EXPECT_EQ(steps.Folder, ".");
}

TEST(ReplaceSteps, AFolderThatCannotBeFlushedIsNoErrorButOneThatFailsIs) {
  ToldSteps steps;
  for (const int cannot : {EINVAL, ENOTSUP, ENOSYS, EACCES}) {
    steps.OfFolder = cannot;
    EXPECT_EQ(ReplaceFileBySteps("a/b", "bytes", steps), "") << cannot;
  }
  steps.OfFolder = EIO;
  EXPECT_EQ(ReplaceFileBySteps("a/b", "bytes", steps), SystemMessage(EIO));
  EXPECT_EQ(steps.Deleted, 0) << "the new file has its name by then";
}

TEST(ReplaceSteps, TellWhatTheSystemRefuses) {
  ReplaceSteps steps;
  size_t written = 0;
  EXPECT_EQ(steps.Write(-1, "bytes", 5, written), EBADF);
  EXPECT_EQ(steps.Flush(-1), EBADF);
  EXPECT_EQ(steps.Close(-1), EBADF);
  EXPECT_EQ(steps.FlushFolder("/no/such/folder"), ENOENT);
  EXPECT_EQ(steps.Delete("/no/such/file"), ENOENT);
}

TEST(ReplaceSteps, AFileWhoseModeCannotBeSetIsNotWritten) {
  ReplaceSteps steps;
  int file = -1;
  const std::string fixed = "/proc/self/comm";  // can be written, but its mode stays
  if (access(fixed.c_str(), W_OK) != 0) GTEST_SKIP() << "no such file here";
  EXPECT_EQ(steps.Create(fixed, 0600, file), EPERM);
  EXPECT_EQ(steps.Close(file), EBADF) << "it has been closed";
}

TEST(ReplaceSteps, AFileOfAnotherIsNotAskedForInVain) {
  const auto folder = MakeTemporaryFolder("orvane-steps-");
  const std::string file = (folder / "Save01.sav").string();
  std::ofstream(file) << "record";
  std::optional<unsigned> mode;
  ReplaceSteps steps;
  EXPECT_EQ(steps.AskToWrite(file, mode), 0);
  EXPECT_TRUE(mode.has_value());
  // Root may write everything, so root becomes somebody else.
  const uid_t own = geteuid();
  if (own == 0) {
    ASSERT_EQ(seteuid(65534), 0);
  }
  EXPECT_EQ(steps.AskToWrite("/etc/passwd", mode), EACCES);
  ASSERT_EQ(seteuid(own), 0);
  RemoveFolder(folder);
}

TEST(RemoveFolder, GivesUpOnWhatDoesNotGo) {
  if (!std::filesystem::exists("/proc/self/ns")) GTEST_SKIP() << "no such folder here";
  RemoveFolder("/proc/self/ns");
  EXPECT_TRUE(std::filesystem::exists("/proc/self/ns"));
}

}  // namespace
}  // namespace orvane
