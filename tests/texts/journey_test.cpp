// The texts of a whole journey, in every language that the game has: none is left untranslated, and
// no catalogue has one that nothing shows.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "src/base/error.h"
#include "src/core/save_file.h"
#include "src/frontend/shared/box_captions.h"
#include "src/frontend/shared/spoken_names.h"
#include "src/frontend/shared/spoken_text.h"
#include "src/frontend/shared/texts/translator.h"
#include "src/frontend/web/services/save_check.h"
#include "src/game/program.h"
#include "src/platform/folder_storage.h"
#include "src/platform/quiet_services.h"
#include "src/platform/whole_file.h"
#include "tests/texts/shown.h"
#include "tools/texts/literals.h"

namespace orvane::test {
namespace {

using texts::IsJapanese;

class Journey : public testing::TestWithParam<std::string> {
 protected:
  Journey() { texts_.Choose(GetParam()); }

  std::string Shown(const ShownText& each) {
    const Control* control = ControlOf(program_.TheStage(), each);
    return control == nullptr ? texts_.Of(each.Text) : texts_.Of(*control, each.Text);
  }
  // Without the names that the heroes have been given.
  std::string WithoutNames(std::string text) const {
    for (const std::string& name : names_) {
      for (size_t at = text.find(name); at != std::string::npos; at = text.find(name)) {
        text.erase(at, name.size());
      }
    }
    return text;
  }
  bool IsTranslated(const std::string& text) { return !IsJapanese(WithoutNames(text)); }

  NoSound sound_;
  NoChance luck_;
  FolderStorage files_{ORVANE_GAME_FOLDER};
  Program program_{{sound_, luck_, files_}};
  Translator texts_;
  std::set<std::string> names_ = {"カイ", "リナ"};  // of the bot's heroes
};

// What no journey shows: the texts for screen readers and of boxes' buttons, of errors, of the
// page.
std::vector<std::string> FixedTexts(Program& program) {
  std::vector<std::string> fixed = {kOwnLanguageName, "言語", "メニュー", "："};
  for (const Screen* screen : program.TheStage().Screens()) {
    for (const Control* control : screen->Controls()) fixed.push_back(SpokenName(*control));
    if (screen->OwnSurface != nullptr) fixed.push_back(SpokenText(*screen, Translator()));
  }
  for (const BoxButtons buttons : {BoxButtons::Ok, BoxButtons::OkCancel, BoxButtons::YesNo}) {
    for (const BoxChoice& choice : ChoicesOf(buttons)) fixed.emplace_back(choice.Caption);
  }
  for (const ErrorKind kind :
       {ErrorKind::Overflow, ErrorKind::Subscript, ErrorKind::File, ErrorKind::Type}) {
    fixed.push_back(ErrorText(RunError(kind, "Item.dat")));
  }
  fixed.emplace_back("ここまでの操作の記録：\nreplay");  // of KeptPlay
  fixed.push_back(SaveProblem("short"));
  fixed.push_back(SaveProblem(std::string(kSaveFileSize, '\xFF')));
  GameRecord record = program.TheState();
  record.HeroName[0] = record.SaveName[0] = "A";
  record.HeroName[1] = record.SaveName[1] = "B";
  fixed.push_back(SaveSummary(PackRecord(record)));
  record.SaveRound = 2;
  fixed.push_back(SaveSummary(PackRecord(record)));
  return fixed;
}

// The texts of the page and its services, and their sources, in which the parts of composed ones
// stand.
std::vector<std::string> PageTexts(std::string& sources) {
  std::vector<std::string> found;
  for (const auto& entry :
       std::filesystem::recursive_directory_iterator(ORVANE_SOURCE_FOLDER "/src/frontend/web")) {
    const std::string kind = entry.path().extension().string();
    if (kind != ".mjs" && kind != ".html" && kind != ".cpp") continue;
    const std::string words = ReadWholeFile(entry.path()).value();
    sources += words;
    auto more = kind == ".html" ? texts::PageTexts(words) : texts::Literals(words);
    std::move(more.begin(), more.end(), std::back_inserter(found));
  }
  return found;
}

// Whether all that is fixed of a composed text stands in these sources.
bool StandsIn(const std::string& sources, std::string_view composed) {
  while (!composed.empty()) {
    const size_t end = std::min(composed.find('{'), composed.size());
    if (sources.find(composed.substr(0, end)) == std::string::npos) return false;
    composed.remove_prefix(std::min(composed.size(), composed.find('}', end)));
    if (!composed.empty()) composed.remove_prefix(1);
  }
  return true;
}

TEST_P(Journey, ShowsNothingUntranslated) {
  const std::vector<ShownText> shown = ReadShown();
  ASSERT_GT(shown.size(), 500U) << "the journey has been noted";
  for (const ShownText& each : shown) {
    EXPECT_TRUE(IsTranslated(Shown(each))) << each.Where << ": " << each.Text;
  }
}

TEST_P(Journey, LeavesNothingElseUntranslated) {
  for (const std::string& text : FixedTexts(program_)) {
    EXPECT_TRUE(IsTranslated(texts_.Of(text))) << text;
  }
  std::string sources;
  for (const std::string& text : PageTexts(sources)) {
    const bool is_part = [&] {
      for (const CatalogueData& data : AllCatalogues()) {
        for (const CatalogueEntry& entry : ReadCatalogue(data.Bytes)) {
          if (TextPattern::IsOne(entry.Text) && entry.Text.find(text) != std::string::npos &&
              StandsIn(sources, entry.Text)) {
            return true;
          }
        }
      }
      return text == "、";  // between names
    }();
    EXPECT_TRUE(is_part || IsTranslated(texts_.Of(text))) << text;
  }
}

TEST_P(Journey, ShowsEveryTextOfTheCatalogue) {
  std::set<std::string> shown;
  const auto add = [&](const std::string& text) {
    for (const std::string& source : texts_.SourcesOf(text)) shown.insert(source);
  };
  for (const ShownText& each : ReadShown()) add(each.Text);
  for (const std::string& text : FixedTexts(program_)) add(text);
  std::string sources;
  for (const std::string& text : PageTexts(sources)) add(text);
  for (const CatalogueData& data : AllCatalogues()) {
    if (data.Code != GetParam()) continue;
    for (const CatalogueEntry& entry : ReadCatalogue(data.Bytes)) {
      const bool is_shown = shown.contains(std::string(entry.Text)) ||
                            (TextPattern::IsOne(entry.Text) && StandsIn(sources, entry.Text));
      EXPECT_TRUE(is_shown) << "nothing shows " << entry.Text;
    }
  }
}

std::vector<std::string> Codes() {
  std::vector<std::string> codes;
  for (const CatalogueData& each : AllCatalogues()) codes.emplace_back(each.Code);
  return codes;
}

INSTANTIATE_TEST_SUITE_P(InEveryLanguage, Journey, testing::ValuesIn(Codes()),
                         [](const auto& each) { return each.param; });

}  // namespace
}  // namespace orvane::test
