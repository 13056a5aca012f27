#include "src/frontend/desktop/fonts.h"

#include <QStringList>
#include <algorithm>
#include <cmath>

namespace orvane {
namespace {

struct Substitute {
  const char* Asked = "";
  QStringList Families;  // best first; the last one every desktop knows
};

const Substitute& SubstituteFor(const std::string& name) {
  static const Substitute gothic = {
      Gothic,
      {"IPAPGothic", "IPA Pゴシック", "IPAexGothic", "Takao Pゴシック", "Noto Sans CJK JP",
       "VL PGothic", "sans-serif"}};
  static const Substitute mincho = {
      Mincho,
      {"IPAPMincho", "IPA P明朝", "IPAexMincho", "Takao P明朝", "Noto Serif CJK JP", "serif"}};
  return name == mincho.Asked ? mincho : gothic;
}

}  // namespace

QFont DesktopFont(const Font& font) {
  constexpr double pixels_per_point = 96.0 / 72.0;
  QFont result;
  result.setFamilies(SubstituteFor(font.Name).Families);
  result.setPixelSize(std::max(1, static_cast<int>(std::lround(font.Size * pixels_per_point))));
  result.setBold(font.Bold);
  return result;
}

QFont DefaultFont() {
  return DesktopFont({});
}

}  // namespace orvane
