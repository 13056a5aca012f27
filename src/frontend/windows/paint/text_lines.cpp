#include "src/frontend/windows/paint/text_lines.h"

#include <cstddef>

namespace orvane {
namespace {

constexpr wchar_t kFirstWide = 0x2E80;  // from here on come the signs of East Asia
constexpr std::wstring_view kNeverFirst =
    L"、。，．・：；？！ー」』）］｝〉》】ぁぃぅぇぉっゃゅょァィゥェォッャュョ…";

bool IsBlank(wchar_t sign) {
  return sign == L' ' || sign == 0x3000;
}

bool IsWide(wchar_t sign) {
  return sign >= kFirstWide;
}

// Whether a line may end before `at`, which is within the text.
bool MayBreak(std::wstring_view text, size_t at) {
  if (IsBlank(text[at - 1])) return true;
  if (kNeverFirst.find(text[at]) != std::wstring_view::npos) return false;
  return IsBlank(text[at]) || IsWide(text[at]) || IsWide(text[at - 1]);
}

std::wstring_view WithoutLastBlanks(std::wstring_view text) {
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

// How much of the text goes into one line; more than fits where it cannot be broken.
size_t LineLength(std::wstring_view text, int width, const MeasureText& measure) {
  size_t fitting = 0;
  for (size_t at = 1; at <= text.size(); ++at) {
    if (at < text.size() && !MayBreak(text, at)) continue;
    if (fitting > 0 && measure(WithoutLastBlanks(text.substr(0, at))) > width) break;
    fitting = at;
  }
  return fitting;
}

}  // namespace

std::vector<std::wstring> BreakLines(std::wstring_view text, int width,
                                     const MeasureText& measure) {
  std::vector<std::wstring> lines;
  while (true) {
    const size_t end = text.find(L'\n');
    std::wstring_view paragraph = text.substr(0, end);
    do {
      const size_t length = LineLength(paragraph, width, measure);
      lines.emplace_back(WithoutLastBlanks(paragraph.substr(0, length)));
      paragraph.remove_prefix(length);
    } while (!paragraph.empty());
    if (end == std::wstring_view::npos) return lines;
    text.remove_prefix(end + 1);
  }
}

}  // namespace orvane
