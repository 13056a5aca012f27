#include "tools/texts/literals.h"

#include <gtest/gtest.h>

#include "tools/texts/template.h"

namespace orvane::texts {
namespace {

using Texts = std::vector<std::string>;

TEST(LiteralsOfSources, AreTheJapaneseOnes) {
  EXPECT_EQ(Literals(R"(f("薬", "potion"); // "剣"
                        /* "盾" */ g("一"
                        "二");)"),
            (Texts{"薬", "一二"}));
  EXPECT_EQ(Literals(R"(x = "薬\n\"剣\"";)"), (Texts{"薬\n\"剣\""}));
}

TEST(LiteralsOfSources, ArePartedByWhatVaries) {
  EXPECT_EQ(Literals("tell(`${name}を${verb}する`, '薬', '剣');"),
            (Texts{"を", "する", "薬", "剣"}));
}

TEST(TextsOfAPage, AreItsWordsAndAttributes) {
  EXPECT_EQ(PageTexts("<p lang=\"ja\" aria-label=\"薬\">剣</p>\n<p>word</p>"), (Texts{"薬", "剣"}));
}

TEST(Template, HasEachTextOnce) {
  Template texts;
  texts.Add("薬  ", "first");
  texts.Add("薬", "second");
  texts.Add("12/30", "no letters");
  texts.Add("一\n\"二\"", "first");
  EXPECT_EQ(texts.Texts(), (Texts{"薬", "一\n\"二\""}));
  EXPECT_NE(texts.Written().find("\n#. first\n#. second\nmsgid \"薬\"\nmsgstr \"\"\n"),
            std::string::npos);
  EXPECT_NE(texts.Written().find("msgid \"一\\n\\\"二\\\"\"\n"), std::string::npos);
}

}  // namespace
}  // namespace orvane::texts
