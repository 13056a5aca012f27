#include "src/frontend/windows/windows/language_menu.h"

#include <algorithm>
#include <vector>

#include "src/frontend/windows/system/captions.h"

namespace orvane {
namespace {

// The system's own commands begin at 0xF000, and it uses the last four bits of each for itself.
constexpr UINT kFirstCommand = 0x100;
constexpr UINT kStep = 0x10;

UINT CommandOf(size_t language) {
  return kFirstCommand + static_cast<UINT>(language) * kStep;
}

void AppendLanguages(HMENU menu, const Translator& texts) {
  const std::vector<std::string>& codes = texts.Languages();
  for (size_t i = 0; i < codes.size(); ++i) {
    AppendMenuW(menu, MF_STRING, CommandOf(i), WideCaption(texts.NameOf(codes[i])).c_str());
  }
  MarkLanguage(menu, texts);
}

}  // namespace

void AddLanguages(HMENU menu, const Translator& texts) {
  AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
  AppendLanguages(menu, texts);
}

void MarkLanguage(HMENU menu, const Translator& texts) {
  const std::vector<std::string>& codes = texts.Languages();
  const auto shown = std::find(codes.begin(), codes.end(), texts.Language());
  CheckMenuRadioItem(menu, CommandOf(0), CommandOf(codes.size() - 1),
                     CommandOf(static_cast<size_t>(shown - codes.begin())), MF_BYCOMMAND);
}

std::string LanguageOf(WPARAM command, const Translator& texts) {
  const std::vector<std::string>& codes = texts.Languages();
  for (size_t i = 0; i < codes.size(); ++i) {
    if ((command & 0xFFF0) == CommandOf(i)) return codes[i];
  }
  return {};
}

std::string AskLanguage(HWND window, POINT at, const Translator& texts) {
  const HMENU menu = CreatePopupMenu();
  AppendLanguages(menu, texts);
  const BOOL chosen =
      TrackPopupMenu(menu, TPM_RETURNCMD | TPM_RIGHTBUTTON, at.x, at.y, 0, window, nullptr);
  DestroyMenu(menu);
  return LanguageOf(static_cast<WPARAM>(chosen), texts);
}

}  // namespace orvane
