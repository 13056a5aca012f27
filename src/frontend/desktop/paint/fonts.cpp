#include "src/frontend/desktop/paint/fonts.h"

#include <QFontDatabase>
#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace orvane {
namespace {

struct Face {
  QStringList Known;  // best first
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
  return name == Mincho ? mincho : gothic;
}

bool NamesOneOf(const QString& family, std::initializer_list<const char*> words) {
  return std::any_of(words.begin(), words.end(), [&](const char* word) {
    return family.contains(QString::fromUtf8(word), Qt::CaseInsensitive);
  });
}

// How well a family that the game does not know stands in; its name is all there is to go by.
int Fitness(const QString& family, bool serifs_wanted) {
  const bool has_serifs = NamesOneOf(family, {"mincho", "明朝", "serif", "ming", "song"});
  const bool is_for_japan = NamesOneOf(family, {" JP", "ゴシック", "明朝", "gothic", "mincho"});
  const bool is_wide = NamesOneOf(family, {"mono", "fixed"});
  return (has_serifs == serifs_wanted ? 4 : 0) + (is_for_japan ? 2 : 0) + (is_wide ? 0 : 1);
}

QStringList InstalledJapanese() {
  return QFontDatabase::families(QFontDatabase::Japanese);
}

}  // namespace

QStringList Substitutes(const std::string& asked, const QStringList& japanese) {
  const Face& face = FaceFor(asked);
  QStringList result = face.Known;
  const auto best = std::max_element(
      japanese.begin(), japanese.end(), [&](const QString& one, const QString& other) {
        return Fitness(one, face.HasSerifs) < Fitness(other, face.HasSerifs);
      });
  if (best != japanese.end()) result += *best;
  return result += face.Generic;
}

std::string FontHint(const QStringList& japanese) {
  if (!japanese.isEmpty()) return {};
  return "日本語のフォントがないため、文字が正しく表示されません。"
         "fonts-ipafont-gothic と fonts-ipafont-mincho を入れてください。 / "
         "No installed font has Japanese letters, so texts show as boxes; install "
         "fonts-ipafont-gothic and fonts-ipafont-mincho.";
}

std::string FontHint() {
  return FontHint(InstalledJapanese());
}

QFont DesktopFont(const Font& font) {
  constexpr double pixels_per_point = 96.0 / 72.0;
  static const QStringList japanese = InstalledJapanese();
  QFont result;
  result.setFamilies(Substitutes(font.Name, japanese));
  result.setPixelSize(std::max(1, static_cast<int>(std::lround(font.Size * pixels_per_point))));
  result.setBold(font.Bold);
  return result;
}

QFont DefaultFont() {
  return DesktopFont({});
}

}  // namespace orvane
