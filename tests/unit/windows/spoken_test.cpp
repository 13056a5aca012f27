// What screen readers are told of the windows, by the interface that they ask.
#include <gtest/gtest.h>

// clang-format off: after the system's first header
#include <oleacc.h>

#include "src/frontend/windows/system/windows_api.h"
// clang-format on

#include <atomic>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <thread>

#include "src/frontend/shared/spoken_names.h"
#include "src/frontend/shared/spoken_text.h"
#include "src/frontend/windows/app/front.h"
#include "src/frontend/windows/views/view.h"
#include "src/platform/folder_storage.h"
#include "src/platform/quiet_services.h"
#include "src/platform/windows/wide_text.h"

namespace orvane {
namespace {

// A window as readers see it. Without an answer everything is empty.
class Heard {
 public:
  explicit Heard(HWND window) {
    void* made = nullptr;
    const HRESULT result = AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT),
                                                      __uuidof(IAccessible), &made);
    if (SUCCEEDED(result)) object_ = static_cast<IAccessible*>(made);
  }
  ~Heard() {
    if (object_ != nullptr) object_->Release();
  }
  Heard(const Heard&) = delete;
  Heard& operator=(const Heard&) = delete;

  std::string Name() const { return Text(&IAccessible::get_accName); }
  std::string Description() const { return Text(&IAccessible::get_accDescription); }
  LONG Role() const {
    VARIANT role{};
    if (object_ == nullptr || FAILED(object_->get_accRole(kSelf, &role))) return 0;
    return role.lVal;
  }
  HWND Window() const {
    HWND window = nullptr;
    if (auto* other = As<IOleWindow>()) {
      other->GetWindow(&window);
      other->Release();
    }
    return window;
  }
  // How many children readers come to from here.
  LONG Children() const {
    LONG count = 0;
    if (auto* children = As<IEnumVARIANT>()) {
      children->Reset();
      for (VARIANT child{}; children->Next(1, &child, nullptr) == S_OK; ++count) {
        if (child.vt == VT_DISPATCH) child.pdispVal->Release();
      }
      children->Release();
    }
    return count;
  }

 private:
  using Asking = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR*);

  // The same by another interface, with a reference of its own; null where it is unknown.
  template <class Interface>
  Interface* As() const {
    void* found = nullptr;
    if (object_ == nullptr || FAILED(object_->QueryInterface(__uuidof(Interface), &found))) {
      return nullptr;
    }
    return static_cast<Interface*>(found);
  }
  std::string Text(Asking ask) const {
    BSTR said = nullptr;
    if (object_ == nullptr || FAILED((object_->*ask)(kSelf, &said)) || said == nullptr) return {};
    const std::string text = Utf8(said);
    SysFreeString(said);
    return text;
  }

  static constexpr VARIANT kSelf = [] {
    VARIANT self{};
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    return self;
  }();
  IAccessible* object_ = nullptr;
};

// A caption may stand in two lines, and its blanks be of either width.
std::string WithoutBlanks(std::string text) {
  for (const std::string_view blank : {" ", "\u3000", "\r", "\n"}) {
    for (size_t at = 0; (at = text.find(blank, at)) != std::string::npos;) {
      text.erase(at, blank.size());
    }
  }
  return text;
}

// Kinds without a caption. Sheets, which are pictures too, have nothing to tell.
bool NeedsName(ControlKind kind) {
  return kind == ControlKind::List || kind == ControlKind::FileList || kind == ControlKind::Tabs ||
         kind == ControlKind::Field || kind == ControlKind::Slider;
}

using Views = std::map<const Control*, HWND>;

// EnumChildWindows goes down by itself.
BOOL CALLBACK Collect(HWND window, LPARAM views) {
  if (const View* view = View::Of(window)) {
    (*reinterpret_cast<Views*>(views))[&view->Model()] = window;
  }
  return TRUE;
}

BOOL CALLBACK CollectWithin(HWND screen, LPARAM views) {
  EnumChildWindows(screen, &Collect, views);
  return TRUE;
}

void Pump() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) DispatchMessageW(&message);
}

class SpokenTest : public testing::Test {
 protected:
  SpokenTest() {
    front_.Send([](Program& /*program*/) {});
    EnumThreadWindows(GetCurrentThreadId(), &CollectWithin, reinterpret_cast<LPARAM>(&views_));
  }

  HWND Of(const char* screen, const char* name) {
    return views_[program_.TheStage().Find(screen)->Find(name)];
  }
  // What stands on a control in the language that is shown; nothing for kinds without a caption.
  std::string CaptionOf(const Control& control) const {
    switch (control.Kind()) {
      case ControlKind::Label:
        return texts_.Of(control, static_cast<const Label&>(control).Caption);
      case ControlKind::Button:
        return texts_.Of(control, static_cast<const CommandButton&>(control).Caption);
      case ControlKind::Frame:
        return texts_.Of(control, static_cast<const Frame&>(control).Caption);
      default:
        return {};
    }
  }
  void EveryControlIsCalledByItsName() {
    std::map<ControlKind, int> counts;
    for (const auto& [control, window] : views_) {
      const std::string own = texts_.Of(SpokenName(*control));
      // Of a text the own name says whose it is.
      const bool by_caption = own.empty() || control->Kind() == ControlKind::Label;
      const std::string wanted = by_caption ? CaptionOf(*control) : own;
      EXPECT_EQ(WithoutBlanks(Heard(window).Name()), WithoutBlanks(wanted))
          << control->Owner().Name() << "." << control->Name();
      EXPECT_FALSE(wanted.empty() && NeedsName(control->Kind()))
          << control->Owner().Name() << "." << control->Name();
      if (!wanted.empty()) ++counts[control->Kind()];
    }
    for (const ControlKind kind : {ControlKind::Label, ControlKind::Button, ControlKind::Frame,
                                   ControlKind::Picture, ControlKind::List, ControlKind::FileList,
                                   ControlKind::Tabs, ControlKind::Field, ControlKind::Slider}) {
      EXPECT_GE(counts[kind], 1) << static_cast<int>(kind);
    }
  }

  static QuietServices Built() {
    QuietServices services;
    services.Files.Files["Item.dat"] =
        FolderStorage(ORVANE_GAME_FOLDER).Read("Item.dat").value_or("");
    return services;
  }

  QuietServices services_ = Built();
  Program program_{services_.All()};
  Translator texts_;
  Front front_{program_, texts_, 1.0, L"spoken test"};
  Views views_;
};

TEST_F(SpokenTest, EveryControlIsCalledByItsName) {
  EveryControlIsCalledByItsName();
  EXPECT_EQ(Heard(Of("InputName", "Text1(1)")).Name(), "主人公（女）の名前");
}

TEST_F(SpokenTest, NamesAreInTheLanguageThatIsShown) {
  front_.ChooseLanguage("en");
  EveryControlIsCalledByItsName();
  EXPECT_EQ(Heard(Of("Custom", "Slider1")).Name(), "Battle Speed");
}

TEST_F(SpokenTest, ATextTellsWhoseItIs) {
  int count = 0;
  for (const auto& [control, window] : views_) {
    const std::string wanted = SpokenMeaning(*control);
    if (wanted.empty()) continue;
    EXPECT_EQ(Heard(window).Description(), wanted)
        << control->Owner().Name() << "." << control->Name();
    ++count;
  }
  EXPECT_GE(count, 20);
}

TEST_F(SpokenTest, PicturesAndFramesTellWhatTheyAre) {
  for (const auto& [control, window] : views_) {
    if (control->Kind() == ControlKind::Picture) {
      const bool is_button = static_cast<const PictureBox*>(control)->OnClick != nullptr;
      EXPECT_EQ(Heard(window).Role(), is_button ? ROLE_SYSTEM_PUSHBUTTON : ROLE_SYSTEM_GRAPHIC)
          << control->Owner().Name() << "." << control->Name();
    }
    if (control->Kind() == ControlKind::Frame) {
      EXPECT_EQ(Heard(window).Role(), ROLE_SYSTEM_GROUPING);
    }
  }
}

TEST_F(SpokenTest, AllElseIsTheSystemsOwn) {
  const HWND list = Of("Item", "List1");
  EXPECT_EQ(Heard(list).Window(), list);
  EXPECT_GE(Heard(Of("Battle", "Picture1")).Children(), 1);
}

// Readers ask from processes of their own, so from other threads.
TEST_F(SpokenTest, OtherThreadsAreToldToo) {
  const HWND field = Of("InputName", "Text1(0)");
  std::string name;
  std::atomic<bool> done = false;
  std::thread reader([&] {
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    name = Heard(field).Name();
    CoUninitialize();
    done = true;
  });
  while (!done) {
    Pump();
    Sleep(1);
  }
  reader.join();
  EXPECT_EQ(name, "主人公（男）の名前");
}

std::set<HWND>& Renamed() {
  static std::set<HWND> windows;
  return windows;
}

void CALLBACK NoteRenamed(HWINEVENTHOOK /*hook*/, DWORD /*event*/, HWND window, LONG object,
                          LONG /*child*/, DWORD /*thread*/, DWORD /*time*/) {
  if (object == OBJID_CLIENT) Renamed().insert(window);
}

TEST_F(SpokenTest, ReadersHearOfNewNames) {
  const HWINEVENTHOOK hook =
      SetWinEventHook(EVENT_OBJECT_NAMECHANGE, EVENT_OBJECT_NAMECHANGE, nullptr, &NoteRenamed,
                      GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT);
  front_.ChooseLanguage("en");
  const HWND slider = Of("Custom", "Slider1");
  for (int tries = 0; tries < 1000 && Renamed().count(slider) == 0; ++tries) {
    Pump();
    Sleep(1);
  }
  UnhookWinEvent(hook);
  EXPECT_EQ(Renamed().count(slider), 1U);
}

// What stands on a picture is told while a reader runs, which is looked after once a second.
TEST_F(SpokenTest, WhatStandsOnPicturesIsTold) {
  const auto set_reader = [](bool runs) {
    SystemParametersInfoW(SPI_SETSCREENREADER, runs ? 1 : 0, nullptr, 0);
    Sleep(1100);
  };
  const auto follow = [this] { front_.Send([](Program& /*program*/) {}); };
  const auto& title =
      static_cast<const PictureBox&>(*program_.TheStage().Find("Main")->Find("Picture1"));
  const HWND window = views_[&title];
  EXPECT_EQ(Heard(window).Description(), "");
  set_reader(true);
  follow();
  const std::string told = Heard(window).Description();
  EXPECT_EQ(told, SpokenText(title, texts_));
  EXPECT_NE(told, "");
  front_.ChooseLanguage("en");
  EXPECT_EQ(Heard(window).Description(), SpokenText(title, texts_));
  EXPECT_NE(Heard(window).Description(), told);
  set_reader(false);
}

TEST(SpokenWindowTest, AnAnswerMayBeKeptLongerThanItsWindow) {
  const Speech speech;
  const HWND window = CreateWindowW(WC_LISTBOXW, L"", WS_OVERLAPPED, 0, 0, 10, 10, nullptr, nullptr,
                                    GetModuleHandleW(nullptr), nullptr);
  Speech::SetName(window, "rows");
  const Heard heard(window);
  EXPECT_EQ(heard.Name(), "rows");
  DestroyWindow(window);
  EXPECT_EQ(heard.Name(), "rows");
  EXPECT_EQ(heard.Children(), 0);
}

}  // namespace
}  // namespace orvane
