#include "src/platform/arguments.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(Arguments, AreTheWordsBehindTheProgramsName) {
  char name[] = "orvane";
  char option[] = "--seed";
  char* words[] = {name, option};
  EXPECT_EQ(ProgramArguments(2, words), std::vector<std::string>{"--seed"});
  EXPECT_TRUE(ProgramArguments(1, words).empty());
  EXPECT_TRUE(ProgramArguments(0, words).empty()) << "a program may be started without its name";
}

}  // namespace
}  // namespace orvane
