// What keys do in a list, where no toolkit knows.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

class ListKeys {
 public:
  // The row that is highlighted once a key has been pressed. `row` is the one before, or -1; `page`
  // how many rows are seen at once; `key` as browsers name it, "ArrowDown" or a letter, and `time`
  // when it was pressed, in ms. Letters in quick succession look for the rows that begin with them.
  // Nothing for a key that is none of a list's; a blank is one only within a word.
  std::optional<int> Take(const std::vector<std::string>& rows, int row, int page,
                          std::string_view key, double time);

 private:
  int Look(const std::vector<std::string>& rows, int row) const;

  std::string typed_;
  double typed_at_ = 0;
};

}  // namespace orvane
