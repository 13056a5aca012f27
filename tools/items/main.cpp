// orvane-items: makes the game's item file from its table.
//   orvane-items build TABLE.csv Item.dat   writes the file; refuses a table that breaks a rule
//   orvane-items check TABLE.csv            prints what is wrong; exit 1 when anything is
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

#include "tools/files.h"
#include "tools/items/item_table.h"

namespace orvane::items {
namespace {

std::vector<Item> ReadTableFile(const std::string& file) {
  const std::string text = ReadFile(file);
  try {
    return ReadTable(text);
  } catch (const std::runtime_error& error) {
    throw std::runtime_error(file + ": " + error.what());
  }
}

int Run(const std::vector<std::string>& words) {
  const bool build = words.size() == 3 && words[0] == "build";
  const bool check = words.size() == 2 && words[0] == "check";
  if (!build && !check) {
    std::fprintf(stderr, "usage: orvane-items build TABLE.csv Item.dat | check TABLE.csv\n");
    return 2;
  }
  const std::vector<Item> items = ReadTableFile(words[1]);
  const std::vector<std::string> faults = Faults(items);
  for (const std::string& fault : faults) std::printf("%s: %s\n", words[1].c_str(), fault.c_str());
  if (!faults.empty()) return 1;
  if (check) {
    std::printf("%s: 50 items, no fault\n", words[1].c_str());
    return 0;
  }
  WriteFile(words[2], WriteRecords(items));
  return 0;
}

}  // namespace
}  // namespace orvane::items

int main(int count, char** words) {
  try {
    return orvane::items::Run(std::vector<std::string>(words + 1, words + count));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "orvane-items: %s\n", error.what());
    return 2;
  }
}
