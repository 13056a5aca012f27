#include "src/frontend/shared/caption_fit.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "src/base/text.h"

namespace orvane {
namespace {

bool IsBlank(std::string_view sign) {
  return sign == " " || sign == "\u3000";
}

}  // namespace

int CaptionSize(int size, int height) {
  constexpr int frame = 2;
  constexpr int smallest = 6;
  return std::min(size, std::max(smallest, height - 2 * frame + 2));
}

std::string InTwoLines(const std::string& caption) {
  const std::vector<std::string_view> signs = Characters(caption);
  size_t first_end = 0;
  size_t second_begin = 0;
  for (size_t i = 1, at = signs.empty() ? 0 : signs[0].size(); i < signs.size(); ++i) {
    if (IsBlank(signs[i])) {
      if (!IsBlank(signs[i - 1])) first_end = at;
      second_begin = at + signs[i].size();
    }
    at += signs[i].size();
  }
  if (first_end == 0 || second_begin == caption.size()) return caption;
  return caption.substr(0, first_end) + '\n' + caption.substr(second_begin);
}

}  // namespace orvane
