// The table of items and the record file that the game reads.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "src/core/item_kind.h"

namespace orvane::items {

constexpr int kItems = 50;

struct Item {
  std::string Name;  // UTF-8, at most 10 full-width characters
  ItemKind Kind = ItemKind::Other;
  int32_t Value = 0;  // by kind: attack, defence, number of the skill from 1, or HP given
};

// Reads the table from text: a head line "number,name,kind,value", then one line for each of the 50
// items in order of their numbers. Blank lines and lines that begin with '#' are skipped. Throws
// std::runtime_error that names the line at fault.
std::vector<Item> ReadTable(std::string_view text);

// What is wrong with a table, one sentence each; empty when it keeps every rule of the game: the
// kinds of the number ranges, names that fit and that differ where the bag compares them, books
// that teach the skills in order, recovery items whose values are their effects in battle, gear
// that grows stronger in each line.
std::vector<std::string> Faults(const std::vector<Item>& items);

// The record file: 32 bytes an item. Throws std::runtime_error on a name that CP932 cannot hold or
// that is longer than 20 bytes.
std::string WriteRecords(const std::vector<Item>& items);

}  // namespace orvane::items
