// What screen readers are told of the controls, by the interface that they ask.
#include <gtest/gtest.h>

// clang-format off: after the system's first header
#include <oleacc.h>

#include "src/frontend/windows/system/windows_api.h"
// clang-format on

#include <map>
#include <set>
#include <string>

#include "src/frontend/shared/spoken_names.h"
#include "src/frontend/windows/app/front.h"
#include "src/platform/folder_storage.h"
#include "src/platform/quiet_services.h"
#include "src/platform/windows/wide_text.h"

namespace orvane {
namespace {

// By the interface itself; empty where it does not answer.
std::string NameOf(HWND window) {
  void* made = nullptr;
  if (FAILED(AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                                        &made))) {
    return {};
  }
  auto* spoken = static_cast<IAccessible*>(made);
  VARIANT self{};
  self.vt = VT_I4;
  self.lVal = CHILDID_SELF;
  BSTR name = nullptr;
  spoken->get_accName(self, &name);
  spoken->Release();
  if (name == nullptr) return {};
  const std::string text = Utf8(name);
  SysFreeString(name);
  return text;
}

using Names = std::map<std::string, std::set<std::string>>;  // by the titles of windows

// EnumChildWindows goes down by itself.
BOOL CALLBACK Collect(HWND window, LPARAM names) {
  const HWND screen = GetAncestor(window, GA_ROOT);
  std::wstring title(200, L'\0');
  title.resize(static_cast<size_t>(GetWindowTextW(screen, title.data(), 200)));
  (*reinterpret_cast<Names*>(names))[Utf8(title)].insert(NameOf(window));
  return TRUE;
}

BOOL CALLBACK CollectWithin(HWND screen, LPARAM names) {
  EnumChildWindows(screen, &Collect, names);
  return TRUE;
}

// Other controls are called by annotations, which wine takes no notice of.
TEST(SpokenTest, PicturesAreCalledByTheirNames) {
  QuietServices services;
  services.Files.Files["Item.dat"] =
      FolderStorage(ORVANE_GAME_FOLDER).Read("Item.dat").value_or("");
  Program program(services.All());
  Translator texts;
  const Front front(program, texts, 1.0, L"spoken test");
  Names names;
  EnumThreadWindows(GetCurrentThreadId(), &CollectWithin, reinterpret_cast<LPARAM>(&names));
  int count = 0;
  for (const Screen* screen : program.TheStage().Screens()) {
    for (const Control* control : screen->Controls()) {
      const std::string wanted = SpokenName(*control);
      if (control->Kind() != ControlKind::Picture || wanted.empty()) continue;
      EXPECT_EQ(names[screen->Caption].count(wanted), 1U) << screen->Name() << ": " << wanted;
      ++count;
    }
  }
  EXPECT_GE(count, 20);
}

}  // namespace
}  // namespace orvane
