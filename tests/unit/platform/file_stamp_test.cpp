#include "src/platform/file_stamp.h"

#include <gtest/gtest.h>

#include <chrono>

#include "src/platform/path_text.h"
#include "src/platform/temporary_folder.h"
#include "src/platform/whole_file.h"

namespace orvane {
namespace {

using std::chrono::minutes;

class FileStampTest : public testing::Test {
 protected:
  FileStampTest() { WriteWholeFile(file_, "bytes"); }
  ~FileStampTest() override { RemoveFolder(folder_); }

  const std::filesystem::path folder_ = MakeTemporaryFolder("orvane-stamp-");
  const std::filesystem::path file_ = folder_ / "a.mid";
};

TEST_F(FileStampTest, TellsEveryStateApart) {
  const auto stamp = StampOf(TextOf(file_));
  ASSERT_TRUE(stamp.has_value());
  EXPECT_EQ(stamp, StampOf(TextOf(file_)));
  const auto later = stamp->Changed + minutes(1);
  EXPECT_NE(*stamp, (FileStamp{stamp->Path, stamp->Size, later}));
  EXPECT_NE(*stamp, (FileStamp{stamp->Path, 4, stamp->Changed}));
  EXPECT_NE(*stamp, (FileStamp{"b.mid", stamp->Size, stamp->Changed}));
  EXPECT_EQ(StampOf(TextOf(folder_ / "none")), std::nullopt);
}

TEST_F(FileStampTest, IsSettledOnceItsTimeIsFarFromNow) {
  FileStamp stamp = *StampOf(TextOf(file_));
  EXPECT_FALSE(IsSettled(stamp));
  const auto now = stamp.Changed;
  stamp.Changed = now - minutes(1);
  EXPECT_TRUE(IsSettled(stamp));
  stamp.Changed = now + minutes(1);
  EXPECT_TRUE(IsSettled(stamp)) << "a clock that was put back";
}

}  // namespace
}  // namespace orvane
