#include "src/frontend/shared/options.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(Options, WithoutArgumentsLeaveEverythingToTheProgram) {
  const Options options = ReadOptions({});
  EXPECT_TRUE(options.Error.empty());
  EXPECT_FALSE(options.Folder.has_value());
  EXPECT_FALSE(options.Scale.has_value());
  EXPECT_FALSE(options.Seed.has_value());
  EXPECT_FALSE(options.WantsHelp);
}

TEST(Options, AreRead) {
  const Options options = ReadOptions(
      {"--folder", "/a b", "--scale", "1.5", "--seed", "7", "--record", "/r", "--language", "en"});
  EXPECT_EQ(options.Error, "");
  EXPECT_EQ(options.Folder, "/a b");
  EXPECT_EQ(options.Scale, 1.5);
  EXPECT_EQ(options.Seed, 7U);
  EXPECT_EQ(options.Record, "/r");
  EXPECT_EQ(options.Language, "en");
}

TEST(Options, OfHelpWantHelp) {
  EXPECT_TRUE(ReadOptions({"--help"}).WantsHelp);
  EXPECT_TRUE(ReadOptions({"-h"}).WantsHelp);
  EXPECT_NE(HelpText().find("--folder"), std::string::npos);
}

TEST(Options, ThatNobodyKnowsAreErrors) {
  EXPECT_EQ(ReadOptions({"--fast"}).Error, "unknown option --fast");
  EXPECT_EQ(ReadOptions({"save.sav"}).Error, "unknown option save.sav");
  EXPECT_EQ(ReadOptions({"--fast", "--slow"}).Error, "unknown option --fast") << "the first";
}

TEST(Options, WithoutTheirValueAreErrors) {
  EXPECT_EQ(ReadOptions({"--seed", "1", "--scale"}).Error, "--scale needs a value");
}

TEST(Options, WithAValueOutOfRangeAreErrors) {
  for (const char* bad : {"0.4", "8.1", "nan", "2x", "", "-1"}) {
    EXPECT_EQ(ReadOptions({"--scale", bad}).Error, "--scale needs a number from 0.5 to 8") << bad;
  }
  for (const char* good : {"0.5", "8"}) EXPECT_EQ(ReadOptions({"--scale", good}).Error, "") << good;
  for (const char* bad : {"-1", "1.5", "seven", "4294967296"}) {
    EXPECT_EQ(ReadOptions({"--seed", bad}).Error, "--seed needs a whole number") << bad;
  }
}

}  // namespace
}  // namespace orvane
