#include "src/base/error.h"

#include <gtest/gtest.h>

#include <set>

namespace orvane {
namespace {

constexpr ErrorKind kKinds[] = {ErrorKind::Overflow, ErrorKind::Subscript, ErrorKind::File,
                                ErrorKind::Type};

TEST(RunError, EveryKindHasASentenceAndANameOfItsOwn) {
  std::set<std::string> sentences;
  std::set<std::string> names;
  for (const ErrorKind kind : kKinds) {
    sentences.insert(ErrorText(RunError(kind, "Item.dat")));
    names.insert(ErrorKindName(kind));
  }
  EXPECT_EQ(sentences.size(), std::size(kKinds));
  EXPECT_EQ(names.size(), std::size(kKinds));
}

TEST(RunError, ItsTextEndsWithWhatItIsAbout) {
  EXPECT_TRUE(ErrorText(RunError(ErrorKind::File, "Item.dat")).ends_with("\nItem.dat"));
}

TEST(RunError, IsToldBySubjectWhereItIsCaughtAsAnException) {
  try {
    throw RunError(ErrorKind::Subscript, "Label1(7)");
  } catch (const std::exception& error) {
    EXPECT_STREQ(error.what(), "Label1(7)");
  }
}

}  // namespace
}  // namespace orvane
