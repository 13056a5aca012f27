#include "src/core/item_file.h"

#include <gtest/gtest.h>

#include "src/base/error.h"
#include "src/platform/memory_storage.h"

namespace orvane {
namespace {

// A file of so many records, each with its number as its value.
std::string Records(int count) {
  std::string bytes;
  for (int number = 1; number <= count; ++number) {
    std::string record(ItemFile::RecordSize, '\0');
    record.replace(4, 20, "item" + std::string(16, ' '));
    record[28] = static_cast<char>(number);
    bytes += record;
  }
  return bytes;
}

class ItemFileTest : public testing::Test {
 protected:
  void Open(const std::string& bytes) {
    MemoryStorage files;
    files.Files["Item.dat"] = bytes;
    items.Open(files);
  }
  ItemRecord Read(int number) {
    ItemRecord record;
    record.Value = 99;
    items.Read(number, record);
    return record;
  }

  ItemFile items;
};

TEST_F(ItemFileTest, HoldsFiftyRecordsAtLeast) {
  EXPECT_THROW(items.Open(MemoryStorage()), RunError);
  EXPECT_THROW(Open(Records(49)), RunError);
  EXPECT_THROW(Open(Records(50).substr(1)), RunError);
  EXPECT_NO_THROW(Open(Records(50)));
}

TEST_F(ItemFileTest, ReadsItsRecordsByTheirNumbers) {
  Open(Records(51));
  EXPECT_EQ(int{Read(1).Value}, 1);
  EXPECT_EQ(int{Read(51).Value}, 51);
  EXPECT_EQ(Read(51).Name.Trimmed(), "item");
}

TEST_F(ItemFileTest, WhereThereIsNoRecordItIsBlank) {
  EXPECT_EQ(int{Read(1).Value}, 0) << "nothing is open";
  Open(Records(51) + "half a record");
  for (const int number : {-1, 0, 52, 99}) {
    EXPECT_EQ(int{Read(number).Value}, 0) << number;
    EXPECT_EQ(Read(number).Name.Trimmed(), "") << number;
  }
}

}  // namespace
}  // namespace orvane
