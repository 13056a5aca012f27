#include "src/frontend/shared/faces.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <string_view>

#include "src/base/text.h"

namespace orvane {
namespace {

struct Face {
  std::vector<std::string> Known;  // best first
  const char* Generic = "";
  bool HasSerifs = false;
};

const Face& FaceFor(const std::string& name) {
  static const Face gothic = {{"IPAPGothic", "IPA Pゴシック", "IPAexGothic", "TakaoPGothic",
                               "Takao Pゴシック", "VL PGothic", "Noto Sans CJK JP"},
                              "sans-serif",
                              false};
  static const Face mincho = {{"IPAPMincho", "IPA P明朝", "IPAexMincho", "TakaoPMincho",
                               "Takao P明朝", "Noto Serif CJK JP"},
                              "serif",
                              true};
  return name == kMincho ? mincho : gothic;
}

// Whether the family's name has one of these words in it, in capitals or not.
bool NamesOneOf(const std::string& family, std::initializer_list<std::string_view> words) {
  const std::string lower = LowerCase(family);
  return std::any_of(words.begin(), words.end(),
                     [&](std::string_view word) { return lower.find(word) != std::string::npos; });
}

// How well a family that the game does not know stands in; its name is all there is to go by.
int Fitness(const std::string& family, bool serifs_wanted) {
  const bool has_serifs = NamesOneOf(family, {"mincho", "明朝", "serif", "ming", "song"});
  const bool is_for_japan = NamesOneOf(family, {" jp", "ゴシック", "明朝", "gothic", "mincho"});
  const bool is_wide = NamesOneOf(family, {"mono", "fixed"});
  return (has_serifs == serifs_wanted ? 4 : 0) + (is_for_japan ? 2 : 0) + (is_wide ? 0 : 1);
}

}  // namespace

std::vector<std::string> Substitutes(const std::string& asked,
                                     const std::vector<std::string>& japanese) {
  const Face& face = FaceFor(asked);
  std::vector<std::string> result = face.Known;
  const auto best = std::max_element(
      japanese.begin(), japanese.end(), [&](const std::string& one, const std::string& other) {
        return Fitness(one, face.HasSerifs) < Fitness(other, face.HasSerifs);
      });
  if (best != japanese.end()) result.push_back(*best);
  result.emplace_back(face.Generic);
  return result;
}

int PixelSize(const Font& font) {
  constexpr double pixels_per_point = 96.0 / 72.0;
  return std::max(1, static_cast<int>(std::lround(font.Size * pixels_per_point)));
}

std::string FontHint(const std::vector<std::string>& japanese) {
  if (!japanese.empty()) return {};
  return "日本語のフォントがないため、文字が正しく表示されません。"
         "fonts-ipafont-gothic と fonts-ipafont-mincho を入れてください。 / "
         "No installed font has Japanese letters, so texts show as boxes; install "
         "fonts-ipafont-gothic and fonts-ipafont-mincho.";
}

}  // namespace orvane
