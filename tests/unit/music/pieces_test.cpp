// The pieces themselves, performed from their scores.
#include <gtest/gtest.h>

#include "tests/unit/music/content_files.h"
#include "tools/music/checks.h"
#include "tools/music/performance.h"

namespace orvane::music {
namespace {

class Pieces : public testing::TestWithParam<const char*> {
 protected:
  static MidiFile Performed() {
    const Score score =
        ReadScore(tests::ContentText(std::string("music/") + GetParam() + ".score"));
    EXPECT_EQ(score.Name, GetParam());
    return Perform(WriteOut(score));
  }
};

TEST_P(Pieces, HaveNoFault) {
  for (const std::string& fault : CheckPiece(GetParam(), Performed())) ADD_FAILURE() << fault;
}

TEST_P(Pieces, AreMoreThanALoopOfTwoBars) {
  const PieceNotes piece = CollectNotes(Performed());
  EXPECT_GE(piece.sections.size(), 5U);
  EXPECT_GE(piece.keys.size(), 3U) << "a modulation and the way back";
  EXPECT_GE(piece.Names.size(), 9U) << "eight parts and the conductor";
}

INSTANTIATE_TEST_SUITE_P(All, Pieces,
                         testing::Values("Round1", "Round2", "Round3", "Battle1", "Boss",
                                         "LastBoss", "Ending", "Doukutu"),
                         [](const auto& one) { return std::string(one.param); });

}  // namespace
}  // namespace orvane::music
