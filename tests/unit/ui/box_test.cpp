// What a message box offers, and what closing it means.
#include "src/ui/box.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

// The answers that a box with these buttons takes.
std::string Answers(BoxButtons buttons) {
  std::string answers;
  if (Offers(buttons, BoxAnswer::Ok)) answers += "Ok ";
  if (Offers(buttons, BoxAnswer::Cancel)) answers += "Cancel ";
  if (Offers(buttons, BoxAnswer::Yes)) answers += "Yes ";
  if (Offers(buttons, BoxAnswer::No)) answers += "No ";
  return answers;
}

TEST(Box, TakesTheAnswersOfItsButtonsAlone) {
  EXPECT_EQ(Answers(BoxButtons::Ok), "Ok ");
  EXPECT_EQ(Answers(BoxButtons::OkCancel), "Ok Cancel ");
  EXPECT_EQ(Answers(BoxButtons::YesNo), "Yes No ");
}

TEST(Box, ClosingItIsTheRefusalWhereThereIsOne) {
  EXPECT_EQ(AnswerOfClosing(BoxButtons::Ok), BoxAnswer::Ok);
  EXPECT_EQ(AnswerOfClosing(BoxButtons::OkCancel), BoxAnswer::Cancel);
  EXPECT_EQ(AnswerOfClosing(BoxButtons::YesNo), BoxAnswer::No);
}

TEST(Box, ItsNoteStandsApartBelowItsText) {
  EXPECT_EQ(ShownText({"text"}), "text");
  EXPECT_EQ(ShownText({"text", "title", BoxButtons::Ok, "note"}), "text\n\nnote");
}

}  // namespace
}  // namespace orvane
