// Replacing a file on Windows: each step of it fails once, is held up, or is a writer's last.
#include "src/platform/durable_file.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <thread>

#include "src/platform/path_text.h"
#include "src/platform/program_path.h"
#include "src/platform/system_message.h"
#include "src/platform/temporary_folder.h"
#include "src/platform/whole_file.h"
#include "src/platform/windows/replace_steps.h"
#include "src/platform/windows/wide_text.h"
#include "tests/unit/environment.h"

namespace orvane {
namespace {

const std::string kOldRecord = std::string(540, 'o');
const std::string kNewRecord = std::string(540, 'n');

// Steps that a test has its hand in: `Before` sees each of them, counted from 1, and may give an
// error in its place; `After` sees it done.
class WatchedSteps : public ReplaceSteps {
 public:
  enum class Kind { Ask, Create, Write, Flush, RenameOpen, Close, Move, Delete };

  virtual DWORD Before(Kind kind) = 0;
  virtual void After() {}

  DWORD AskToWrite(const std::wstring& name) override {
    return Take(Kind::Ask, [&] { return ReplaceSteps::AskToWrite(name); });
  }
  DWORD Create(const std::wstring& name, HANDLE& file) override {
    return Take(Kind::Create, [&] { return ReplaceSteps::Create(name, file); });
  }
  DWORD Write(HANDLE file, const char* bytes, size_t size, size_t& written) override {
    return Take(Kind::Write, [&] {
      return ReplaceSteps::Write(file, bytes, std::min(size, LargestPart), written);
    });
  }
  DWORD Flush(HANDLE file) override {
    return Take(Kind::Flush, [&] { return ReplaceSteps::Flush(file); });
  }
  DWORD RenameOpen(HANDLE file, const std::wstring& to) override {
    if (IsOldSystem) return ERROR_INVALID_PARAMETER;
    return Take(Kind::RenameOpen, [&] { return ReplaceSteps::RenameOpen(file, to); });
  }
  DWORD Close(HANDLE file) override {
    const DWORD closed = ReplaceSteps::Close(file);
    const DWORD error = Take(Kind::Close, [] { return DWORD{ERROR_SUCCESS}; });
    return error != ERROR_SUCCESS ? error : closed;
  }
  DWORD Move(const std::wstring& from, const std::wstring& to) override {
    return Take(Kind::Move, [&] { return ReplaceSteps::Move(from, to); });
  }
  DWORD Delete(const std::wstring& name) override {
    return Take(Kind::Delete, [&] { return ReplaceSteps::Delete(name); });
  }
  void Wait(DWORD milliseconds) override {
    ++Waits;
    if (!Hurries) ReplaceSteps::Wait(milliseconds);
  }

  size_t LargestPart = 200;
  bool IsOldSystem = false;  // that knows no rename of an open file
  bool Hurries = true;       // does not wait
  int Waits = 0;

 private:
  template <class Step>
  DWORD Take(Kind kind, const Step& step) {
    const DWORD error = Before(kind);
    if (error != ERROR_SUCCESS) return error;
    const DWORD done = step();
    After();
    return done;
  }
};

// One step fails.
class FailingSteps : public WatchedSteps {
 public:
  FailingSteps(int fails_at, DWORD error) : fails_at_(fails_at), error_(error) {}
  DWORD Before(Kind kind) override {
    if (kind == Kind::Delete || ++step_ != fails_at_) return ERROR_SUCCESS;
    HasFailed = true;
    return error_;
  }
  bool HasFailed = false;

 private:
  int step_ = 0;
  int fails_at_;
  DWORD error_;
};

// Renaming is held up so many times.
class HeldSteps : public WatchedSteps {
 public:
  HeldSteps(Kind held, int times, DWORD error) : held_(held), times_(times), error_(error) {}
  DWORD Before(Kind kind) override {
    return kind == held_ && times_-- > 0 ? error_ : DWORD{ERROR_SUCCESS};
  }

 private:
  Kind held_;
  int times_;
  DWORD error_;
};

// The process ends, as if the power went, before or after a step.
class LastSteps : public WatchedSteps {
 public:
  explicit LastSteps(int last) : last_(last) {}
  DWORD Before(Kind /*kind*/) override {
    EndIfLast();
    return ERROR_SUCCESS;
  }
  void After() override { EndIfLast(); }

 private:
  void EndIfLast() {
    if (++moment_ == last_) TerminateProcess(GetCurrentProcess(), 99);
  }
  int moment_ = 0;
  int last_;
};

class DurableFileTest : public testing::Test {
 protected:
  DurableFileTest() { std::ofstream(file_, std::ios::binary) << kOldRecord; }
  ~DurableFileTest() override { RemoveFolder(folder_); }

  std::string Content() const { return ReadWholeFile(file_).value_or(""); }
  int FilesInFolder() const {
    return static_cast<int>(std::distance(std::filesystem::directory_iterator(folder_), {}));
  }
  void ExpectOldRecord() const {
    EXPECT_EQ(Content(), kOldRecord);
    EXPECT_EQ(FilesInFolder(), 1) << "nothing is left beside it";
  }
  void ExpectNewRecord() const {
    EXPECT_EQ(Content(), kNewRecord);
    EXPECT_EQ(FilesInFolder(), 1) << "nothing is left beside it";
  }

  const std::filesystem::path folder_ = MakeTemporaryFolder("orvane-記録 の-");
  const std::filesystem::path file_ = folder_ / PathOf("セーブ 01.sav");
};

TEST_F(DurableFileTest, ReplacesTheFile) {
  EXPECT_EQ(ReplaceFileDurably(file_, kNewRecord), "");
  ExpectNewRecord();
}

TEST_F(DurableFileTest, MakesAFileThatIsNotThere) {
  std::filesystem::remove(file_);
  EXPECT_EQ(ReplaceFileDurably(file_, kNewRecord), "");
  ExpectNewRecord();
}

TEST_F(DurableFileTest, TakesNamesWithSeparatorsOfBothKinds) {
  const auto name = PathOf(TextOf(folder_) + "/" + TextOf(file_.filename()));
  EXPECT_EQ(ReplaceFileDurably(name, kNewRecord), "");
  ExpectNewRecord();
}

TEST_F(DurableFileTest, RefusesAFolderThatIsNotThere) {
  EXPECT_EQ(ReplaceFileDurably(folder_ / "no" / "such", kNewRecord),
            SystemMessage(ERROR_PATH_NOT_FOUND));
}

TEST_F(DurableFileTest, AFileThatMayNotBeWrittenIsNotReplaced) {
  SetFileAttributesW(file_.c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(ReplaceFileDurably(file_, kNewRecord), SystemMessage(ERROR_ACCESS_DENIED));
  ExpectOldRecord();
  SetFileAttributesW(file_.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(DurableFileTest, AStepThatFailsLeavesTheOldRecordOrHasNoHarmToDo) {
  for (const bool old_system : {false, true}) {
    int refusals = 0;
    for (int step = 1;; ++step) {
      ASSERT_EQ(ReplaceFileDurably(file_, kOldRecord), "");
      FailingSteps steps(step, ERROR_DISK_FULL);
      steps.IsOldSystem = old_system;
      const std::string failure = ReplaceFileBySteps(file_, kNewRecord, steps);
      if (!steps.HasFailed) break;
      SCOPED_TRACE("step " + std::to_string(step) + (old_system ? " of the old way" : ""));
      if (failure.empty()) {
        ExpectNewRecord();
        continue;
      }
      ++refusals;
      EXPECT_EQ(failure, SystemMessage(ERROR_DISK_FULL));
      // Where the last of it fails, to bring the name to the disk, nobody knows which one lasts.
      if (Content() == kNewRecord) continue;
      ExpectOldRecord();
    }
    ExpectNewRecord();
    EXPECT_GE(refusals, 6) << "one file made, three parts written, flushed, renamed";
  }
}

TEST_F(DurableFileTest, WaitsForWhoHoldsTheFileForAMoment) {
  using Kind = WatchedSteps::Kind;
  for (const Kind held : {Kind::Create, Kind::RenameOpen, Kind::Move}) {
    ASSERT_EQ(ReplaceFileDurably(file_, kOldRecord), "");
    HeldSteps steps(held, 3, ERROR_SHARING_VIOLATION);
    steps.IsOldSystem = held == Kind::Move;
    EXPECT_EQ(ReplaceFileBySteps(file_, kNewRecord, steps), "");
    EXPECT_EQ(steps.Waits, 3);
    ExpectNewRecord();
  }
}

TEST_F(DurableFileTest, DoesNotWaitForEver) {
  using Kind = WatchedSteps::Kind;
  for (const Kind held : {Kind::Create, Kind::RenameOpen, Kind::Move}) {
    HeldSteps steps(held, 1000, ERROR_SHARING_VIOLATION);
    steps.IsOldSystem = held == Kind::Move;
    EXPECT_EQ(ReplaceFileBySteps(file_, kNewRecord, steps), SystemMessage(ERROR_SHARING_VIOLATION));
    EXPECT_GT(steps.Waits, 5);
    EXPECT_LT(steps.Waits, 50);
    ExpectOldRecord();
  }
}

TEST_F(DurableFileTest, AReaderWhoLetsGoIsNoHindrance) {
  for (const bool old_system : {false, true}) {
    ASSERT_EQ(ReplaceFileDurably(file_, kOldRecord), "");
    // As most scanners open what they read: nobody may delete it meanwhile.
    const HANDLE reader = CreateFileW(file_.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(reader, INVALID_HANDLE_VALUE);
    std::thread lets_go([reader] {
      Sleep(80);
      CloseHandle(reader);
    });
    HeldSteps steps(WatchedSteps::Kind::Delete, 0, ERROR_SUCCESS);
    steps.IsOldSystem = old_system;
    steps.Hurries = false;
    EXPECT_EQ(ReplaceFileBySteps(file_, kNewRecord, steps), "");
    lets_go.join();
    ExpectNewRecord();
  }
}

// What a writer that is a process of its own does: see below.
TEST_F(DurableFileTest, DISABLED_WritesUntilItsLastStep) {
  const char* last = std::getenv("ORVANE_LAST_STEP");
  const wchar_t* file = _wgetenv(L"ORVANE_LAST_FILE");
  ASSERT_TRUE(last != nullptr && file != nullptr);
  LastSteps steps(std::atoi(last));
  steps.IsOldSystem = std::getenv("ORVANE_LAST_WAY") != nullptr;
  EXPECT_EQ(ReplaceFileBySteps(file, kNewRecord, steps), "");
}

// Starts this program as a writer that ends at a moment of its work; returns whether it came to
// that moment.
bool EndsAt(int moment, bool old_system, const std::filesystem::path& file) {
  test::SetVariable("ORVANE_LAST_STEP", std::to_string(moment));
  test::SetVariable("ORVANE_LAST_WAY", old_system ? "old" : "");
  _wputenv_s(L"ORVANE_LAST_FILE", file.c_str());
  std::wstring command = L"\"" + ProgramPath().native() +
                         L"\" --gtest_also_run_disabled_tests --gtest_brief=1 "
                         L"--gtest_filter=DurableFileTest.DISABLED_WritesUntilItsLastStep";
  STARTUPINFOW begin{};
  begin.cb = sizeof begin;
  PROCESS_INFORMATION writer{};
  if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &begin,
                     &writer) == 0) {
    return false;
  }
  WaitForSingleObject(writer.hProcess, INFINITE);
  DWORD status = 0;
  GetExitCodeProcess(writer.hProcess, &status);
  CloseHandle(writer.hThread);
  CloseHandle(writer.hProcess);
  return status == 99;
}

TEST_F(DurableFileTest, AWriterKilledAtAnyStepLeavesTheOldOrTheNewRecordWhole) {
  for (const bool old_system : {false, true}) {
    int old_ones = 0;
    int new_ones = 0;
    int moment = 1;
    while (EndsAt(moment, old_system, file_)) {
      const std::string content = Content();
      ASSERT_TRUE(content == kOldRecord || content == kNewRecord) << "killed at moment " << moment;
      (content == kOldRecord ? old_ones : new_ones) += 1;
      ASSERT_EQ(ReplaceFileDurably(file_, kOldRecord), "") << "after a kill at moment " << moment;
      ASSERT_LT(++moment, 100);
    }
    ExpectNewRecord();
    EXPECT_GT(old_ones, 10) << "it was stopped before, within";
    EXPECT_GT(new_ones, 0) << "and after the rename";
    ASSERT_EQ(ReplaceFileDurably(file_, kOldRecord), "");
  }
}

}  // namespace
}  // namespace orvane
