// The rules that a table of items keeps.
#include <map>
#include <string>
#include <vector>

#include "src/battle/rules/battle_items.h"
#include "tools/items/cp932.h"
#include "tools/items/item_table.h"

namespace orvane::items {
namespace {

struct Line {
  int First;
  int Last;
  ItemKind Kind;
  const char* What;
};

constexpr Line kLines[] = {
    {1, 12, ItemKind::HisWeapon, "his weapon"},
    {13, 20, ItemKind::HisArmour, "his armour"},
    {21, 28, ItemKind::HerWeapon, "her weapon"},
    {29, 36, ItemKind::HerArmour, "her armour"},
    {37, 46, ItemKind::Book, "book"},
    {kFirstBattleItem, kLastBattleItem, ItemKind::Recovery, "recovery item"},
};

// The bag compares this many characters when it protects what is worn.
constexpr size_t kCompared = 5;

size_t Characters(const std::string& utf8) {
  size_t count = 0;
  for (const char each : utf8) count += (static_cast<unsigned char>(each) & 0xC0) != 0x80;
  return count;
}

std::string FirstCharacters(const std::string& utf8, size_t wanted) {
  size_t end = 0;
  for (size_t count = 0; end < utf8.size(); ++end) {
    if ((static_cast<unsigned char>(utf8[end]) & 0xC0) != 0x80 && count++ == wanted) break;
  }
  return utf8.substr(0, end);
}

std::string Named(int number, const Item& item) {
  return "item " + std::to_string(number) + " \"" + item.Name + "\"";
}

void CheckLine(const Line& line, const std::vector<Item>& items, std::vector<std::string>& faults) {
  for (int number = line.First; number <= line.Last; ++number) {
    const Item& item = items[static_cast<size_t>(number - 1)];
    if (item.Kind != line.Kind) faults.push_back(Named(number, item) + " must be a " + line.What);
    const int place = number - line.First;
    if (line.Kind == ItemKind::Book) {
      if (item.Value != place + 1) {
        faults.push_back(Named(number, item) + " must train skill " + std::to_string(place + 1));
      }
    } else if (line.Kind == ItemKind::Recovery) {
      // What it gives out of the bag must agree with what it gives in a battle.
      const int given = kBattleItems[place].HP;
      if (item.Value != given) {
        faults.push_back(Named(number, item) + " must give " + std::to_string(given));
      }
    } else if (item.Value < 1 || item.Value > 999) {
      faults.push_back(Named(number, item) + " has a strength outside of 1 to 999");
    } else if (place > 0 && item.Value <= items[static_cast<size_t>(number - 2)].Value) {
      faults.push_back(Named(number, item) + " is no stronger than the one before");
    }
  }
}

void CheckName(int number, const Item& item, std::vector<std::string>& faults) {
  if (item.Name.empty() || item.Name == "なし") {
    faults.push_back(Named(number, item) + " needs a name of its own");
  }
  const size_t characters = Characters(item.Name);
  if (characters > 10) faults.push_back(Named(number, item) + " has more than 10 characters");
  if (Cp932Of(item.Name).size() != characters * 2) {
    faults.push_back(Named(number, item) + " has characters that are not full-width");
  }
}

}  // namespace

std::vector<std::string> Faults(const std::vector<Item>& items) {
  std::vector<std::string> faults;
  if (items.size() != kItems) return {"the table must hold 50 items"};
  for (const Line& line : kLines) CheckLine(line, items, faults);
  std::map<std::string, int> seen;
  for (int number = 1; number <= kItems; ++number) {
    const Item& item = items[static_cast<size_t>(number - 1)];
    CheckName(number, item, faults);
    const auto [found, is_new] = seen.emplace(FirstCharacters(item.Name, kCompared), number);
    if (is_new) continue;
    const Item& other = items[static_cast<size_t>(found->second - 1)];
    faults.push_back(Named(number, item) + " begins like " + Named(found->second, other));
  }
  return faults;
}

}  // namespace orvane::items
