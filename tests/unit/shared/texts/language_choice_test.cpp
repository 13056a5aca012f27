#include "src/frontend/shared/texts/language_choice.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(LanguageChoice, TakesTheFirstWishThatThereIs) {
  const Translator texts;
  EXPECT_EQ(BestLanguage(texts, {"en"}), "en");
  EXPECT_EQ(BestLanguage(texts, {"xx", "en-GB", "ja"}), "en");
  EXPECT_EQ(BestLanguage(texts, {"", "EN_US.UTF-8"}), "en");
  EXPECT_EQ(BestLanguage(texts, {"ja-JP", "en"}), "ja");
}

TEST(LanguageChoice, IsTheGamesOwnWithoutAny) {
  const Translator texts;
  EXPECT_EQ(BestLanguage(texts, {}), "ja");
  EXPECT_EQ(BestLanguage(texts, {"", "xx", "english"}), "ja");
}

TEST(LanguageChoice, RefusesWhatThereIsNot) {
  const Translator texts;
  EXPECT_EQ(LanguageProblem(texts, ""), "");
  EXPECT_EQ(LanguageProblem(texts, "en"), "");
  EXPECT_EQ(LanguageProblem(texts, "ja"), "");
  EXPECT_EQ(LanguageProblem(texts, "xx"), "--language needs one of: ja, en");
}

}  // namespace
}  // namespace orvane
