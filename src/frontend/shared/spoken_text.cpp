#include "src/frontend/shared/spoken_text.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string_view>
#include <vector>

#include "src/base/text.h"
#include "src/frontend/shared/spoken_names.h"
#include "src/ui/reach.h"
#include "src/ui/screen.h"

namespace orvane {
namespace {

constexpr const char* kCredits =
    "STAFF\n企画・脚本・プログラム\nグラフィック・マップ\n音楽・効果音\nSPECIAL THANKS\n"
    "テストプレイのみなさん\n道具を作ったみなさん\n龍の狭間の龍たち\n"
    "最後まで旅してくれたあなたへ\nありがとう　また会う日まで";

constexpr std::string_view kWideBlank = "\u3000";
constexpr std::string_view kColon = "：";

bool IsBlank(std::string_view sign) {
  return sign == " " || sign == "\n" || sign == kWideBlank;
}

// The text without the blanks of either width at both ends.
std::string TrimAll(const std::string& text) {
  const auto signs = Characters(text);
  const auto first = std::find_if_not(signs.begin(), signs.end(), IsBlank);
  const auto last = std::find_if_not(signs.rbegin(), signs.rend(), IsBlank).base();
  std::string rest;
  for (auto sign = first; sign < last; ++sign) rest += *sign;
  return rest;
}

// The number of a character that is well formed.
char32_t CodeOf(std::string_view sign) {
  if (sign.size() == 1) return static_cast<unsigned char>(sign[0]);
  char32_t code = static_cast<unsigned char>(sign[0]) & (0xFFU >> (sign.size() + 1));
  for (const char byte : sign.substr(1))
    code = code << 6 | (static_cast<unsigned char>(byte) & 0x3F);
  return code;
}

// A letter or a number, of any language; the ranges hold what only points, frames or draws.
bool IsWord(std::string_view sign) {
  struct Range {
    char32_t First, Last;
  };
  constexpr Range others[] = {
      {0x00, '0' - 1},  {'9' + 1, 'A' - 1}, {'Z' + 1, 'a' - 1}, {'z' + 1, 0xA9},  {0x2000, 0x2BFF},
      {0x3000, 0x3004}, {0x3008, 0x3020},   {0x3030, 0x3030},   {0x30FB, 0x30FB}, {0xFF01, 0xFF0F},
      {0xFF1A, 0xFF20}, {0xFF3B, 0xFF40},   {0xFF5B, 0xFF65}};
  const char32_t code = CodeOf(sign);
  return std::none_of(std::begin(others), std::end(others), [code](const Range& range) {
    return code >= range.First && code <= range.Last;
  });
}

// An arrow that blinks says nothing.
bool HasWords(const std::string& text) {
  const auto signs = Characters(text);
  return std::any_of(signs.begin(), signs.end(), IsWord);
}

std::string LinesOn(const Screen& screen, const Control* holder, const Translator& texts) {
  std::vector<std::string> lines;
  for (const Control* control : screen.Controls()) {
    if (control->Parent() != holder || control->Kind() != ControlKind::Label) continue;
    const std::string text = TrimAll(static_cast<const Label*>(control)->Caption);
    if (!HasWords(text) || !IsShown(*control)) continue;
    std::string line = texts.Of(SpokenName(*control));
    if (!line.empty()) line += texts.Of(kColon);
    line += texts.Of(*control, text);
    // A title and its shadow are one.
    if (std::find(lines.begin(), lines.end(), line) == lines.end()) lines.push_back(line);
  }
  std::string words;
  for (const std::string& line : lines) {
    if (!words.empty()) words += '\n';
    words += line;
  }
  return words;
}

bool IsCaption(const Control& control) {
  return control.Kind() == ControlKind::Label &&
         TrimAll(static_cast<const Label&>(control).Caption).ends_with(kColon);
}

}  // namespace

std::string SpokenText(const PictureBox& picture, const Translator& texts) {
  return IsShown(picture) ? LinesOn(picture.Owner(), &picture, texts) : std::string();
}

std::string SpokenText(const Screen& screen, const Translator& texts) {
  std::string words = LinesOn(screen, nullptr, texts);
  const bool has_credits = screen.OwnSurface != nullptr;
  if (!has_credits) return words;
  return words.empty() ? texts.Of(kCredits) : words;
}

std::string CaptionBeside(const Control& control) {
  if (control.Kind() != ControlKind::Label || IsCaption(control)) return {};
  const Control* nearest = nullptr;
  for (const Control* other : control.Owner().Controls()) {
    const bool beside = other->Parent() == control.Parent() && other->Pane() == control.Pane() &&
                        std::abs(other->Top() - control.Top()) < 1 &&
                        other->Left() < control.Left();
    if (!beside || !IsCaption(*other)) continue;
    if (nearest == nullptr || other->Left() > nearest->Left()) nearest = other;
  }
  if (nearest == nullptr) return {};
  return TrimAll(static_cast<const Label*>(nearest)->Caption);
}

std::string SpokenMeaning(const Control& control) {
  if (control.Kind() != ControlKind::Label) return {};
  const std::string whose = SpokenName(control);
  return whose.empty() ? CaptionBeside(control) : whose;
}

}  // namespace orvane
