#include "src/frontend/windows/paint/fonts.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <vector>

#include "src/frontend/shared/faces.h"
#include "src/platform/windows/wide_text.h"

namespace orvane {
namespace {

// A description that means the face of this name with Japanese letters; with an empty name, all
// that have them.
LOGFONTW Japanese(const std::string& name) {
  LOGFONTW wanted{};
  wanted.lfCharSet = SHIFTJIS_CHARSET;
  const std::wstring wide = Wide(name);
  std::copy_n(wide.begin(), std::min<size_t>(wide.size(), LF_FACESIZE - 1), wanted.lfFaceName);
  return wanted;
}

int CALLBACK Collect(const LOGFONTW* font, const TEXTMETRICW* /*metrics*/, DWORD /*kind*/,
                     LPARAM families) {
  // Names with "@" are for lines that run from top to bottom.
  if (font->lfFaceName[0] != L'@') {
    reinterpret_cast<std::vector<std::string>*>(families)->push_back(Utf8(font->lfFaceName));
  }
  return 1;
}

// The families with Japanese letters that have this name, or with an empty one all of them.
std::vector<std::string> Installed(const std::string& name) {
  std::vector<std::string> families;
  LOGFONTW wanted = Japanese(name);
  const HDC screen = GetDC(nullptr);
  EnumFontFamiliesExW(screen, &wanted, &Collect, reinterpret_cast<LPARAM>(&families), 0);
  ReleaseDC(nullptr, screen);
  return families;
}

// By the names that the system's own faces go by, its letters and Latin ones: not every edition has
// all of them.
std::vector<std::string> Candidates(const std::string& asked) {
  std::vector<std::string> names = {asked};
  const bool has_serifs = asked == kMincho;
  for (const char* name : {"MS PMincho", "BIZ UDPMincho", "Yu Mincho"}) {
    if (has_serifs) names.emplace_back(name);
  }
  for (const char* name : {"MS PGothic", "MS UI Gothic", "BIZ UDPGothic", "Meiryo", "Yu Gothic"}) {
    if (!has_serifs) names.emplace_back(name);
  }
  return names;
}

std::string FindFamily(const std::string& asked) {
  for (const std::string& name : Candidates(asked)) {
    if (!Installed(name).empty()) return name;
  }
  const std::vector<std::string> japanese = Installed({});
  for (const std::string& name : Substitutes(asked, japanese)) {
    if (std::find(japanese.begin(), japanese.end(), name) != japanese.end()) return name;
  }
  return asked;
}

const std::wstring& FamilyFor(const std::string& asked) {
  static std::map<std::string, std::wstring> found;
  const auto [entry, is_new] = found.try_emplace(asked);
  if (is_new) entry->second = Wide(FindFamily(asked));
  return entry->second;
}

HFONT Make(const Font& font, int pixels, int width) {
  return CreateFontW(-pixels, width, 0, 0, font.Bold ? FW_BOLD : FW_NORMAL, FALSE, FALSE, FALSE,
                     SHIFTJIS_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                     VARIABLE_PITCH | FF_DONTCARE, FamilyFor(font.Name).c_str());
}

// How wide the letters of a font are on the average, as a font is asked for.
int AverageWidth(HFONT font) {
  const HDC screen = GetDC(nullptr);
  const HGDIOBJ before = SelectObject(screen, font);
  TEXTMETRICW metrics;
  GetTextMetricsW(screen, &metrics);
  SelectObject(screen, before);
  ReleaseDC(nullptr, screen);
  return static_cast<int>(metrics.tmAveCharWidth);
}

}  // namespace

Fonts::~Fonts() {
  for (const auto& [key, font] : made_) DeleteObject(font);
}

HFONT Fonts::Get(const Font& font, int pixels, double squeeze) {
  int width = 0;
  if (squeeze < 1) {
    width = std::max(1, static_cast<int>(std::floor(AverageWidth(Get(font, pixels)) * squeeze)));
  }
  HFONT& made = made_[{font.Name, pixels, font.Bold, width}];
  if (made == nullptr) made = Make(font, pixels, width);
  return made;
}

std::string Fonts::Hint() {
  if (!Installed({}).empty()) return {};
  return "日本語のフォントがないため、文字が正しく表示されません。設定の「オプション機能」から"
         "「日本語補助フォント」を追加してください。\n\n"
         "No installed font has Japanese letters, so texts show as boxes. Add the optional feature "
         "\"Japanese Supplemental Fonts\" in the system's settings, or play in English: click the "
         "game with the right button.";
}

}  // namespace orvane
