// The choice of the language, by the windows that show it.
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "src/frontend/shared/preferences.h"
#include "src/frontend/windows/app/front.h"
#include "src/platform/folder_storage.h"
#include "src/platform/quiet_services.h"
#include "src/platform/windows/wide_text.h"

namespace orvane {
namespace {

constexpr WPARAM kJapanese = 0x100;  // the commands of the system menu
constexpr WPARAM kEnglish = 0x110;

std::string TextOf(HWND window) {
  std::array<wchar_t, 200> text{};
  const int length = GetWindowTextW(window, text.data(), static_cast<int>(text.size()));
  return Utf8(std::wstring(text.data(), static_cast<size_t>(length)));
}

std::string ItemOf(HMENU menu, UINT item, UINT by) {
  std::array<wchar_t, 200> text{};
  const int length = GetMenuStringW(menu, item, text.data(), static_cast<int>(text.size()), by);
  return Utf8(std::wstring(text.data(), static_cast<size_t>(length)));
}

struct Search {
  std::string Text;
  const wchar_t* Kind;
  HWND Found;
};

BOOL CALLBACK Look(HWND window, LPARAM search) {
  auto& wanted = *reinterpret_cast<Search*>(search);
  std::array<wchar_t, 32> kind{};
  GetClassNameW(window, kind.data(), static_cast<int>(kind.size()));
  if (wcscmp(kind.data(), wanted.Kind) != 0 || TextOf(window) != wanted.Text) return TRUE;
  wanted.Found = window;
  return FALSE;
}

// A window of this kind with this text within another, or null.
HWND Within(HWND window, const wchar_t* kind, const std::string& text) {
  Search search = {text, kind, nullptr};
  EnumChildWindows(window, &Look, reinterpret_cast<LPARAM>(&search));
  return search.Found;
}

HWND Top(const char* title) {
  return FindWindowW(nullptr, Wide(title).c_str());
}

class LanguagesTest : public testing::Test {
 protected:
  // Lets something happen in the game, and the windows follow.
  void Do(const std::function<void(Program&)>& event) { front_.Send(event); }
  Control& On(const char* screen, const char* name) {
    return *program_.TheStage().Find(screen)->Find(name);
  }
  static HWND Main() { return FindWindowW(L"Orvane", L"Orvane"); }
  static void Choose(WPARAM language) { SendMessageW(Main(), WM_SYSCOMMAND, language, 0); }

  // With the files that every start reads.
  static QuietServices Built() {
    const FolderStorage built(ORVANE_GAME_FOLDER);
    QuietServices services;
    for (const char* name : {"Item.dat", "Mapdata/map3-3.dat"}) {
      services.Files.Files[name] = built.Read(name).value_or("");
    }
    return services;
  }

  QuietServices services_ = Built();
  Program program_{services_.All()};
  Translator texts_;
  Front front_{program_, texts_, 1.0, L"language test"};
};

TEST_F(LanguagesTest, TheGameOpensInJapanese) {
  Do([](Program& /*program*/) {});
  EXPECT_NE(Within(Main(), L"Button", "始めから"), nullptr);
  EXPECT_EQ(Within(Main(), L"Button", "New Game"), nullptr);
  EXPECT_NE(Top("名前の入力"), nullptr);
  EXPECT_EQ(ItemOf(GetMenu(Main()), 0, MF_BYPOSITION), "ファイル");
}

TEST_F(LanguagesTest, EverySystemMenuOffersThem) {
  const HMENU menu = GetSystemMenu(Main(), FALSE);
  EXPECT_EQ(ItemOf(menu, kJapanese, MF_BYCOMMAND), "日本語");
  EXPECT_EQ(ItemOf(menu, kEnglish, MF_BYCOMMAND), "English");
  EXPECT_TRUE(GetMenuState(menu, kJapanese, MF_BYCOMMAND) & MF_CHECKED);
  EXPECT_EQ(ItemOf(GetSystemMenu(Top("名前の入力"), FALSE), kEnglish, MF_BYCOMMAND), "English");
  Choose(kEnglish);
  EXPECT_FALSE(GetMenuState(menu, kJapanese, MF_BYCOMMAND) & MF_CHECKED);
  EXPECT_TRUE(GetMenuState(menu, kEnglish, MF_BYCOMMAND) & MF_CHECKED);
}

TEST_F(LanguagesTest, AChoiceShowsAtOnceAndIsTold) {
  std::vector<std::string> chosen;
  front_.TellOfLanguage([&chosen](const std::string& code) { chosen.push_back(code); });
  Do([](Program& /*program*/) {});
  Choose(kEnglish);
  EXPECT_EQ(chosen, std::vector<std::string>{"en"});
  EXPECT_NE(Within(Main(), L"Button", "New Game"), nullptr);
  EXPECT_EQ(ItemOf(GetMenu(Main()), 0, MF_BYPOSITION), "File");
  EXPECT_EQ(static_cast<CommandButton&>(On("Main", "Command1")).Caption, "始めから");
  Choose(kJapanese);
  EXPECT_NE(Within(Main(), L"Button", "始めから"), nullptr);
  EXPECT_EQ(ItemOf(GetMenu(Main()), 0, MF_BYPOSITION), "ファイル");
}

TEST_F(LanguagesTest, ABoxThatStandsChanges) {
  Do([this](Program& program) { program.Close(*program_.TheStage().Find("Main")); });
  const HWND box = Top("ゲームの終了");
  ASSERT_NE(box, nullptr);
  EXPECT_NE(Within(box, L"Button", "キャンセル"), nullptr);
  front_.ChooseLanguage("en");
  EXPECT_EQ(TextOf(box), "Quit Game");
  EXPECT_NE(Within(box, L"Button", "Cancel"), nullptr);
  EXPECT_NE(Within(box, L"Static", "Do you want to quit?"), nullptr);
}

TEST_F(LanguagesTest, TitlesTextsAndPicturesChange) {
  Do([this](Program& program) { program.Click(On("Main", "Command1")); });
  const HWND names = Top("名前の入力");
  ASSERT_NE(names, nullptr);
  EXPECT_NE(Within(names, L"Static", "主人公（男）"), nullptr);
  EXPECT_NE(Within(FindWindowW(nullptr, L"BATTLE !"), L"Orvane", "戦闘の場面"), nullptr);
  Choose(kEnglish);
  EXPECT_EQ(TextOf(names), texts_.Of("名前の入力"));
  EXPECT_NE(TextOf(names), "名前の入力");
  EXPECT_NE(Within(names, L"Static", "Hero"), nullptr);
  EXPECT_NE(Within(FindWindowW(nullptr, L"BATTLE!"), L"Orvane", "Battle scene"), nullptr);
}

TEST(PreferencesTest, TheLanguageIsKept) {
  PreferLanguage("en");
  EXPECT_EQ(PreferredLanguage(), "en");
  PreferLanguage("ja");
  EXPECT_EQ(PreferredLanguage(), "ja");
}

}  // namespace
}  // namespace orvane
