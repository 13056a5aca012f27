#include "src/platform/whole_file.h"

#include <gtest/gtest.h>

#include <fstream>

namespace orvane {
namespace {

class WholeFileTest : public testing::Test {
 protected:
  WholeFileTest()
      : folder_(std::filesystem::temp_directory_path() /
                ("orvane-whole-" +
                 std::string(testing::UnitTest::GetInstance()->current_test_info()->name()))) {
    std::filesystem::create_directories(folder_);
  }
  ~WholeFileTest() override { std::filesystem::remove_all(folder_); }

  std::optional<std::string> Kept(const std::string& bytes) const {
    std::ofstream(folder_ / "file", std::ios::binary) << bytes;
    return ReadWholeFile(folder_ / "file");
  }

  std::filesystem::path folder_;
};

TEST_F(WholeFileTest, GivesEveryByteAsItIs) {
  const std::string bytes("a\0\r\n\xFF\x1A", 6);
  EXPECT_EQ(Kept(bytes), bytes);
  EXPECT_EQ(Kept(""), "");
}

TEST_F(WholeFileTest, WritesEveryByteAsItIs) {
  const std::string bytes("a\0\r\n\xFF\x1A", 6);
  EXPECT_TRUE(WriteWholeFile(folder_ / "file", "something longer"));
  EXPECT_TRUE(WriteWholeFile(folder_ / "file", bytes));
  EXPECT_EQ(ReadWholeFile(folder_ / "file"), bytes);
  EXPECT_FALSE(WriteWholeFile(folder_ / "none" / "file", bytes));
}

TEST_F(WholeFileTest, GivesLargeFilesWhole) {
  for (const size_t size : {65535u, 65536u, 65537u, 300000u}) {
    std::string bytes(size, 'x');
    bytes.back() = 'y';
    EXPECT_EQ(Kept(bytes), bytes) << size;
  }
}

TEST_F(WholeFileTest, GivesNothingOfWhatIsNoFile) {
  EXPECT_EQ(ReadWholeFile(folder_ / "none"), std::nullopt);
  EXPECT_EQ(ReadWholeFile(folder_), std::nullopt);
}

TEST_F(WholeFileTest, GivesNothingWhereReadingFails) {
  const std::filesystem::path unreadable =
      "/proc/self/mem";  // opens, but its first byte does not read
  if (!std::filesystem::exists(unreadable)) GTEST_SKIP() << "no such file here";
  EXPECT_EQ(ReadWholeFile(unreadable), std::nullopt);
}

}  // namespace
}  // namespace orvane
