#include "src/frontend/web/list_keys.h"

#include <algorithm>
#include <utility>

#include "src/base/text.h"

namespace orvane {
namespace {

constexpr double kRestMs = 1000;  // after which letters begin a new word

// Whether a row begins with a word, blanks before it and capitals aside.
bool BeginsWith(std::string_view row, std::string_view word) {
  const size_t blanks = row.find_first_not_of(' ');
  if (blanks == std::string_view::npos) return false;
  return LowerCase(row.substr(blanks)).starts_with(LowerCase(word));
}

}  // namespace

std::optional<int> ListKeys::Take(const std::vector<std::string>& rows, int row, int page,
                                  std::string_view key, double time) {
  const int count = static_cast<int>(rows.size());
  const int leap = std::max(1, page - 1);
  const std::pair<std::string_view, int> steps[] = {{"ArrowUp", -1},   {"ArrowDown", 1},
                                                    {"PageUp", -leap}, {"PageDown", leap},
                                                    {"Home", -count},  {"End", count}};
  for (const auto& [name, step] : steps) {
    if (key != name) continue;
    typed_.clear();
    return count == 0 ? -1 : std::clamp(row + step, 0, count - 1);
  }
  if (time - typed_at_ > kRestMs) typed_.clear();
  const bool begins = typed_.empty();
  if (CharCount(key) != 1 || (begins && key == " ")) return std::nullopt;
  typed_ += key;
  typed_at_ = time;
  // The first letter goes on to the next row that begins so; more may stay where it is.
  const int found = Look(rows, std::max(0, begins ? row + 1 : row));
  return found < 0 ? row : found;
}

// The first row from `row` on that begins as typed, or from the beginning; -1 where none does.
int ListKeys::Look(const std::vector<std::string>& rows, int row) const {
  const int count = static_cast<int>(rows.size());
  for (int i = 0; i < count; ++i) {
    const int at = (row + i) % count;
    if (BeginsWith(rows[static_cast<size_t>(at)], typed_)) return at;
  }
  return -1;
}

}  // namespace orvane
