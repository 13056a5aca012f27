// The tables of what the chests hold.
#include "src/field/pickups.h"

#include <gtest/gtest.h>

#include <set>
#include <span>
#include <utility>

namespace orvane {
namespace {

// How many maps a table names, each no more than once; every thing in it is one of `first` to
// `last`.
size_t MapsOf(std::span<const Find> finds, int first, int last) {
  std::set<std::pair<int, int>> maps;
  for (const Find& find : finds) {
    EXPECT_TRUE(maps.emplace(find.MapA, find.MapB).second) << find.MapA << ", " << find.MapB;
    for (const int item : find.Item) {
      EXPECT_GE(item, first);
      EXPECT_LE(item, last);
    }
  }
  return maps.size();
}

TEST(Finds, EachChestOfTheRecordHasAMapOfItsOwn) {
  EXPECT_EQ(MapsOf(Treasures(), 1, 50), 15u);
}

TEST(Finds, EachBookOfTheRecordHasAMapOfItsOwn) {
  EXPECT_EQ(MapsOf(Books(), 37, 46), 4u);
}

TEST(Finds, TenBooksTeachTenSkills) {
  std::set<int> books;
  for (const Find& find : Books()) {
    for (const int item : find.Item) books.insert(item);
  }
  EXPECT_EQ(books.size(), 10u);
}

}  // namespace
}  // namespace orvane
