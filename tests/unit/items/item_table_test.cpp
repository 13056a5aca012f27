#include "tools/items/item_table.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "src/platform/whole_file.h"
#include "tools/items/cp932.h"

namespace orvane::items {
namespace {

std::string TableText() {
  return ReadWholeFile(ORVANE_ITEM_TABLE).value_or("");
}

std::vector<Item> GameItems() {
  return ReadTable(TableText());
}

int32_t Int32At(const std::string& bytes, size_t at) {
  uint32_t value = 0;
  for (size_t byte = 0; byte < 4; ++byte) {
    value |= static_cast<uint32_t>(static_cast<unsigned char>(bytes[at + byte])) << (8 * byte);
  }
  return static_cast<int32_t>(value);
}

TEST(ItemTable, TheItemsOfTheGameKeepEveryRule) {
  for (const std::string& fault : Faults(GameItems())) ADD_FAILURE() << fault;
}

TEST(ItemTable, RecordsAreThirtyTwoBytes) {
  const std::vector<Item> items = GameItems();
  const std::string bytes = WriteRecords(items);
  ASSERT_EQ(bytes.size(), 50u * 32u);
  for (size_t number = 0; number < items.size(); ++number) {
    const size_t at = number * 32;
    EXPECT_EQ(Int32At(bytes, at), 0);
    std::string name = Cp932Of(items[number].Name);
    name.resize(20, ' ');
    EXPECT_EQ(bytes.substr(at + 4, 20), name);
    EXPECT_EQ(Int32At(bytes, at + 24), static_cast<int32_t>(items[number].Kind));
    EXPECT_EQ(Int32At(bytes, at + 28), items[number].Value);
  }
}

TEST(ItemTable, NamesAreCp932) {
  EXPECT_EQ(Cp932Of("剣A"),
            "\x8C\x95"
            "A");
  EXPECT_THROW(Cp932Of("🐉"), std::runtime_error);
}

TEST(ItemTable, NegativeValuesKeepTheirBytes) {
  std::vector<Item> items = GameItems();
  items[49].Value = -2;
  EXPECT_EQ(Int32At(WriteRecords(items), 49 * 32 + 28), -2);
}

TEST(ItemTable, RefusesNamesThatDoNotFit) {
  std::vector<Item> items = GameItems();
  items[0].Name = "一二三四五六七八九十百";
  EXPECT_THROW(WriteRecords(items), std::runtime_error);
}

TEST(ItemTable, RefusesTablesThatCannotBeRead) {
  const std::string head = "number,name,kind,value\n";
  EXPECT_THROW(ReadTable(""), std::runtime_error);
  EXPECT_THROW(ReadTable("1,剣,1,6\n"), std::runtime_error);
  EXPECT_THROW(ReadTable(head + "1,剣,1,6\n"), std::runtime_error);
  EXPECT_THROW(ReadTable(head + "2,剣,1,6\n"), std::runtime_error);
  EXPECT_THROW(ReadTable(head + "1,剣,1\n"), std::runtime_error);
  EXPECT_THROW(ReadTable(head + "1,剣,1,six\n"), std::runtime_error);
}

TEST(ItemTable, LineEndsOfEitherKindAreRead) {
  std::string text;
  for (const char each : TableText())
    text += each == '\n' ? std::string("\r\n") : std::string(1, each);
  EXPECT_EQ(ReadTable(text).size(), 50u);
}

struct Plant {
  const char* What;
  size_t Index;
  Item item;
};

TEST(ItemTable, FindsEachPlantedFault) {
  const std::vector<Item> good = GameItems();
  const Plant plants[] = {
      {"a kind out of its range", 0, {"別の剣", ItemKind::HerWeapon, good[0].Value}},
      {"a weapon weaker than the one before", 5, {"弱い剣", ItemKind::HisWeapon, 1}},
      {"a strength out of range", 11, {"強すぎる剣", ItemKind::HisWeapon, 1000}},
      {"a book of another skill", 38, {"別の書", ItemKind::Book, 9}},
      {"a draught of another strength", 47, {"別の雫", ItemKind::Recovery, 501}},
      {"a name too long", 2, {"一二三四五六七八九十百", ItemKind::HisWeapon, good[2].Value}},
      {"a name with narrow characters", 2, {"剣 x", ItemKind::HisWeapon, good[2].Value}},
      {"the name of an empty slot", 2, {"なし", ItemKind::HisWeapon, good[2].Value}},
      {"no name", 2, {"", ItemKind::HisWeapon, good[2].Value}},
      {"a beginning like another's", 49, {good[0].Name, ItemKind::Other, 0}},
  };
  for (const Plant& plant : plants) {
    std::vector<Item> items = good;
    items[plant.Index] = plant.item;
    EXPECT_FALSE(Faults(items).empty()) << plant.What;
  }
  std::vector<Item> short_table = good;
  short_table.pop_back();
  EXPECT_FALSE(Faults(short_table).empty());
}

}  // namespace
}  // namespace orvane::items
