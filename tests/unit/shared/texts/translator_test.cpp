#include "src/frontend/shared/texts/translator.h"

#include <gtest/gtest.h>

#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "src/ui/controls.h"
#include "src/ui/screen.h"
#include "src/ui/stage.h"

namespace orvane {
namespace {

// A catalogue as msgfmt makes it.
std::string Made(const std::vector<std::pair<std::string, std::string>>& entries) {
  const auto word = [](size_t number) {
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(number >> shift & 0xFF);
    return bytes;
  };
  constexpr size_t head = 28;
  const size_t tables = 8 * entries.size();
  std::string texts;
  std::string table[2];
  for (const size_t which : {size_t{0}, size_t{1}}) {
    for (const auto& [text, translation] : entries) {
      const std::string& each = which == 0 ? text : translation;
      table[which] += word(each.size()) + word(head + 2 * tables + texts.size());
      texts += each + '\0';
    }
  }
  return word(0x950412DE) + word(0) + word(entries.size()) + word(head) + word(head + tables) +
         word(0) + word(head + 2 * tables) + table[0] + table[1] + texts;
}

// A language of a few words.
class Translations : public testing::Test {
 protected:
  Translations() { texts_.Choose("xx"); }

  const std::string bytes_ = Made({{"", "Language: xx\n"},
                                   {"日本語", "Exish"},
                                   {"薬", "Potion"},
                                   {"剣", "Sword"},
                                   {"気絶", "Fainted"},
                                   {"{item}({number})", "{item} no. {number}"},
                                   {"{number}の{number2}", "{number2} of {number}"},
                                   {"{hero}は強い", "{hero} is strong"},
                                   {"{hero}は{item}を持つ", "{item}: {hero}"}});
  Translator texts_{{{"xx", bytes_}}};
};

TEST_F(Translations, GiveTheCatalogueTexts) {
  EXPECT_EQ(texts_.Of("薬"), "Potion");
  EXPECT_EQ(texts_.Of("薬    "), "Potion");
  EXPECT_EQ(texts_.Of(" 薬"), "Potion");
  EXPECT_EQ(texts_.Of("盾"), "盾");
  EXPECT_EQ(texts_.Of(""), "");
}

TEST_F(Translations, GiveTextsOfWhichPartsVary) {
  EXPECT_EQ(texts_.Of("剣                 (3)"), "Sword no. 3");
  EXPECT_EQ(texts_.Of("剣(-12)"), "Sword no. -12");
  EXPECT_EQ(texts_.Of("盾(2)"), "盾 no. 2");
  EXPECT_EQ(texts_.Of("剣(二)"), "剣(二)");
  EXPECT_EQ(texts_.Of("剣()"), "剣()");
  EXPECT_EQ(texts_.Of("1の20"), "20 of 1");
}

TEST_F(Translations, KeepNamesInTexts) {
  EXPECT_EQ(texts_.Of("薬は強い"), "薬 is strong");
  EXPECT_EQ(texts_.Of("剣は剣を持つ"), "Sword: 剣");
}

TEST_F(Translations, GiveTheSameASecondTime) {
  for (int number = 0; number < 5000; ++number) {
    const std::string digits = std::to_string(number);
    EXPECT_EQ(texts_.Of("剣(" + digits + ")"), "Sword no. " + digits);
  }
  EXPECT_EQ(texts_.Of("剣(7)"), "Sword no. 7");
}

TEST_F(Translations, TellWhichTextOfTheCatalogueServes) {
  using Sources = std::vector<std::string>;
  EXPECT_EQ(texts_.SourcesOf("剣    (3)"), (Sources{"{item}({number})", "剣"}));
  EXPECT_EQ(texts_.SourcesOf("薬  "), Sources{"薬"});
  EXPECT_EQ(texts_.SourcesOf("盾"), Sources{});
}

TEST_F(Translations, ChangeWithTheLanguage) {
  texts_.Choose("ja");
  EXPECT_EQ(texts_.Of("薬   "), "薬   ");
  texts_.Choose("yy");
  EXPECT_EQ(texts_.Language(), "ja");
  texts_.Choose("xx");
  EXPECT_EQ(texts_.Of("薬"), "Potion");
}

TEST_F(Translations, NameTheLanguages) {
  EXPECT_EQ(texts_.Languages(), (std::vector<std::string>{"ja", "xx"}));
  EXPECT_EQ(texts_.NameOf("xx"), "Exish");
  EXPECT_EQ(texts_.NameOf("ja"), "日本語");
  EXPECT_EQ(texts_.NameOf("yy"), "yy");
  const std::string nameless = Made({{"薬", "Potion"}});
  EXPECT_EQ(Translator({{"zz", nameless}}).NameOf("zz"), "zz");
}

TEST_F(Translations, KeepTheNamesOfHeroes) {
  Stage stage;
  Screen screen(stage, "Battle", "", 100, 100);
  TabStrip tabs(screen, "SSTab1", {}, {{"", ""}, {true, true}});
  Label label(screen, "Label24", {});
  EXPECT_EQ(texts_.Of(tabs, "薬"), "薬");
  EXPECT_EQ(texts_.Of(tabs, "気絶"), "Fainted");
  EXPECT_EQ(texts_.Of(label, "薬"), "Potion");
  Screen settings(stage, "Custom", "", 100, 100);
  TabStrip others(settings, "SSTab1", {}, {{"", ""}, {true, true}});
  EXPECT_EQ(texts_.Of(others, "薬"), "Potion") << "of another screen";
}

TEST_F(Translations, GiveOfAPlaceWithoutANameATextToo) {
  const std::string bytes = Made({{"薬", "Potion"}, {"{1}と{2}", "{1} and {2}"}});
  Translator texts({{"zz", bytes}});
  texts.Choose("zz");
  EXPECT_EQ(texts.Of("薬と盾"), "Potion and 盾");
}

TEST_F(Translations, StayWhenTheirLanguageIsChosenAgain) {
  texts_.Choose("xx");
  EXPECT_EQ(texts_.Language(), "xx");
  EXPECT_EQ(texts_.Of("薬"), "Potion");
}

TEST(Translator, ShowsTheGamesOwnTextsAtFirst) {
  const Translator texts;
  EXPECT_EQ(texts.Language(), "ja");
  EXPECT_EQ(texts.Of("逃げる  "), "逃げる  ");
}

TEST(Translator, HasEnglish) {
  Translator texts;
  ASSERT_TRUE(texts.Has("en"));
  texts.Choose("en");
  EXPECT_EQ(texts.Of("経験値　15000ポイント獲得！"), "Gained 15000 experience points!");
  EXPECT_EQ(texts.Of("月の使者            (2)"), "Moon Envoy (2)");
  EXPECT_EQ(texts.Of("カイ    LEVEL UP !"), "カイ: LEVEL UP!");
  EXPECT_EQ(texts.Of("捨ててもよろしいですか？\n青銅の剣            "),
            "Throw this away?\nBronze Sword");
  EXPECT_EQ(texts.Of("エラーのため終了します。\n番号が範囲を超えました。\n地図"),
            "The game has to end because of an error.\nAn index is out of range.\n地図");
}

// What the tool that collects them makes of a place, every language has.
TEST(Translator, HasEveryPlaceInEveryTranslation) {
  for (const CatalogueData& catalogue : AllCatalogues()) {
    for (const CatalogueEntry& entry : ReadCatalogue(catalogue.Bytes)) {
      const auto places = [](std::string_view text) {
        std::set<std::string> names;
        for (size_t at = text.find('{'); at != std::string_view::npos;
             at = text.find('{', at + 1)) {
          names.emplace(text.substr(at, text.find('}', at) - at));
        }
        return names;
      };
      EXPECT_EQ(places(entry.Text), places(entry.Translation)) << entry.Text;
      EXPECT_FALSE(entry.Translation.empty()) << entry.Text;
    }
  }
}

TEST(Catalogue, RefusesWhatIsNone) {
  EXPECT_THROW(ReadCatalogue(""), std::runtime_error);
  EXPECT_THROW(ReadCatalogue("no catalogue at all, but long enough"), std::runtime_error);
  const std::string whole = Made({{"薬", "Potion"}});
  EXPECT_EQ(ReadCatalogue(whole).size(), 1U);
  for (size_t length = 0; length + 1 < whole.size(); ++length) {
    EXPECT_THROW(ReadCatalogue(std::string_view(whole).substr(0, length)), std::runtime_error);
  }
}

TEST(TextPattern, RefusesWhatCannotBeMatched) {
  EXPECT_THROW(TextPattern("{number", ""), std::runtime_error);
  EXPECT_THROW(TextPattern("{number}{item}", ""), std::runtime_error);
  EXPECT_THROW(TextPattern("a{number}", "{item}"), std::runtime_error);
}

}  // namespace
}  // namespace orvane
