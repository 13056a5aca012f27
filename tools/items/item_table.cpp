#include "tools/items/item_table.h"

#include <charconv>
#include <stdexcept>

#include "tools/items/cp932.h"

namespace orvane::items {
namespace {

constexpr size_t kNameBytes = 20;
constexpr std::string_view kHead = "number,name,kind,value";

[[noreturn]] void Refuse(int line, const std::string& what) {
  throw std::runtime_error("line " + std::to_string(line) + ": " + what);
}

std::vector<std::string> Fields(std::string_view line) {
  std::vector<std::string> fields(1);
  for (const char each : line) {
    if (each == ',') {
      fields.emplace_back();
    } else {
      fields.back() += each;
    }
  }
  return fields;
}

int32_t Number(const std::string& text, int line) {
  int32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size() || text.empty()) {
    Refuse(line, "\"" + text + "\" is not a number");
  }
  return number;
}

void AddItem(std::string_view text, int line, std::vector<Item>& items) {
  const std::vector<std::string> fields = Fields(text);
  if (fields.size() != 4) Refuse(line, "expected number,name,kind,value");
  if (Number(fields[0], line) != static_cast<int32_t>(items.size()) + 1) {
    Refuse(line, "the numbers must run from 1 without a gap");
  }
  items.push_back(
      {fields[1], static_cast<ItemKind>(Number(fields[2], line)), Number(fields[3], line)});
}

void AddInt32(int32_t value, std::string& bytes) {
  const auto bits = static_cast<uint32_t>(value);
  for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(bits >> shift & 0xFF);
}

}  // namespace

std::vector<Item> ReadTable(std::string_view text) {
  std::vector<Item> items;
  bool head = false;
  int line = 0;
  while (!text.empty()) {
    const size_t end = text.find('\n');
    std::string_view each = text.substr(0, end);
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    ++line;
    if (!each.empty() && each.back() == '\r') each.remove_suffix(1);
    if (each.empty() || each.front() == '#') continue;
    if (head) {
      AddItem(each, line, items);
    } else if (each == kHead) {
      head = true;
    } else {
      Refuse(line, "the table must begin with " + std::string(kHead));
    }
  }
  if (items.size() != kItems) {
    throw std::runtime_error("the table has " + std::to_string(items.size()) + " items, not 50");
  }
  return items;
}

std::string WriteRecords(const std::vector<Item>& items) {
  std::string bytes;
  for (const Item& item : items) {
    std::string name = Cp932Of(item.Name);
    if (name.size() > kNameBytes) {
      throw std::runtime_error("\"" + item.Name + "\" is longer than 20 bytes");
    }
    name.resize(kNameBytes, ' ');
    bytes.append(4, '\0');
    bytes += name;
    AddInt32(static_cast<int32_t>(item.Kind), bytes);
    AddInt32(item.Value, bytes);
  }
  return bytes;
}

}  // namespace orvane::items
