#include "src/frontend/desktop/paint/fonts.h"

#include <QFontDatabase>
#include <QStringList>
#include <vector>

#include "src/frontend/shared/faces.h"

namespace orvane {
namespace {

std::vector<std::string> InstalledJapanese() {
  std::vector<std::string> families;
  const QStringList installed = QFontDatabase::families(QFontDatabase::Japanese);
  for (const QString& family : installed) families.push_back(family.toStdString());
  return families;
}

}  // namespace

QFont DesktopFont(const Font& font) {
  static const std::vector<std::string> japanese = InstalledJapanese();
  QStringList families;
  for (const std::string& family : Substitutes(font.Name, japanese)) {
    families.append(QString::fromStdString(family));
  }
  QFont result;
  result.setFamilies(families);
  result.setPixelSize(PixelSize(font));
  result.setBold(font.Bold);
  return result;
}

QFont DefaultFont() {
  return DesktopFont({});
}

std::string DesktopFontHint() {
  return FontHint(InstalledJapanese());
}

}  // namespace orvane
